#include "input/shortcut.h"

#include "platform/desktop/shown_keys.h"

#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cmath>
#include <limits>

namespace corvane {

namespace {

const QString keyCodeName = QStringLiteral("keyCode");
const QString modifiersName = QStringLiteral("modifiers");
const QString characterName = QStringLiteral("character");

struct ModifierSign {
    Modifier modifier;
    std::uint32_t bit;
    const char16_t *glyph;
};
/// In the order in which they are shown.
constexpr std::array<ModifierSign, 4> modifierSigns = {{
    {Modifier::Control, Shortcut::control, u"⌃"},
    {Modifier::Option, Shortcut::option, u"⌥"},
    {Modifier::Shift, Shortcut::shift, u"⇧"},
    {Modifier::Command, Shortcut::command, u"⌘"},
}};

std::optional<std::uint32_t> unsignedNumber(const QJsonValue &value)
{
    if (!value.isDouble())
        return std::nullopt;
    const double number = value.toDouble();
    const bool fits = number >= 0 && number <= std::numeric_limits<std::uint32_t>::max()
        && number == std::trunc(number);
    return fits ? std::optional(static_cast<std::uint32_t>(number)) : std::nullopt;
}

} // namespace

const QHash<KeyPosition, QString> &Shortcut::namedKeys()
{
    static const QHash<KeyPosition, QString> names = {
        {KeyPosition::Return, QStringLiteral("↩")},
        {KeyPosition::Tab, QStringLiteral("⇥")},
        {KeyPosition::Space, QStringLiteral("␣")},
        {KeyPosition::DeleteBackward, QStringLiteral("⌫")},
        {KeyPosition::DeleteForward, QStringLiteral("⌦")},
        {KeyPosition::Escape, QStringLiteral("⎋")},
        {KeyPosition::LeftArrow, QStringLiteral("←")},
        {KeyPosition::RightArrow, QStringLiteral("→")},
        {KeyPosition::UpArrow, QStringLiteral("↑")},
        {KeyPosition::DownArrow, QStringLiteral("↓")},
        {KeyPosition::Home, QStringLiteral("↖")},
        {KeyPosition::End, QStringLiteral("↘")},
        {KeyPosition::PageUp, QStringLiteral("⇞")},
        {KeyPosition::PageDown, QStringLiteral("⇟")},
        {KeyPosition::KeypadEnter, QStringLiteral("⌤")},
        {KeyPosition::F1, QStringLiteral("F1")},
        {KeyPosition::F2, QStringLiteral("F2")},
        {KeyPosition::F3, QStringLiteral("F3")},
        {KeyPosition::F4, QStringLiteral("F4")},
        {KeyPosition::F5, QStringLiteral("F5")},
        {KeyPosition::F6, QStringLiteral("F6")},
        {KeyPosition::F7, QStringLiteral("F7")},
        {KeyPosition::F8, QStringLiteral("F8")},
        {KeyPosition::F9, QStringLiteral("F9")},
        {KeyPosition::F10, QStringLiteral("F10")},
        {KeyPosition::F11, QStringLiteral("F11")},
        {KeyPosition::F12, QStringLiteral("F12")},
    };
    return names;
}

QString Shortcut::label(const KeyPress &press)
{
    const auto named = namedKeys().constFind(press.keyCode);
    return named != namedKeys().constEnd() ? *named : press.charactersIgnoringModifiers.toUpper();
}

std::uint32_t Shortcut::modifierBits(Modifiers held)
{
    std::uint32_t bits = 0;
    for (const ModifierSign &sign : modifierSigns) {
        if (held.testFlag(sign.modifier))
            bits |= sign.bit;
    }
    return bits;
}

QString Shortcut::display() const
{
    QString text;
    for (const ModifierSign &sign : modifierSigns) {
        if ((modifiers & sign.bit) != 0)
            text += QStringView(sign.glyph);
    }
    return text + character;
}

KeyEquivalent Shortcut::keyEquivalent() const
{
    if (character.isEmpty())
        return {};
    Modifiers held;
    for (const ModifierSign &sign : modifierSigns)
        held.setFlag(sign.modifier, (modifiers & sign.bit) != 0);
    return {character.toLower(), held};
}

QString Shortcut::shown() const
{
    return shownKeys(keyEquivalent());
}

QByteArray Shortcut::toJson() const
{
    const QJsonObject object = {
        {keyCodeName, static_cast<qint64>(keyCode)},
        {modifiersName, static_cast<qint64>(modifiers)},
        {characterName, character},
    };
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<Shortcut> Shortcut::fromJson(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    const auto keyCode = unsignedNumber(object.value(keyCodeName));
    const auto modifiers = unsignedNumber(object.value(modifiersName));
    const QJsonValue character = object.value(characterName);
    if (!keyCode || !modifiers || !character.isString())
        return std::nullopt;
    return Shortcut{KeyPosition{*keyCode}, *modifiers, character.toString()};
}

} // namespace corvane
