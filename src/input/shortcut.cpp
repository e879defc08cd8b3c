#include "input/shortcut.h"

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

const QHash<std::uint32_t, QString> &Shortcut::namedKeys()
{
    static const QHash<std::uint32_t, QString> names = {
        {36, QStringLiteral("↩")},    {48, QStringLiteral("⇥")},    {49, QStringLiteral("␣")},
        {51, QStringLiteral("⌫")},    {117, QStringLiteral("⌦")},   {53, QStringLiteral("⎋")},
        {123, QStringLiteral("←")},   {124, QStringLiteral("→")},   {126, QStringLiteral("↑")},
        {125, QStringLiteral("↓")},   {115, QStringLiteral("↖")},   {119, QStringLiteral("↘")},
        {116, QStringLiteral("⇞")},   {121, QStringLiteral("⇟")},   {76, QStringLiteral("⌤")},
        {122, QStringLiteral("F1")},  {120, QStringLiteral("F2")},  {99, QStringLiteral("F3")},
        {118, QStringLiteral("F4")},  {96, QStringLiteral("F5")},   {97, QStringLiteral("F6")},
        {98, QStringLiteral("F7")},   {100, QStringLiteral("F8")},  {101, QStringLiteral("F9")},
        {109, QStringLiteral("F10")}, {103, QStringLiteral("F11")}, {111, QStringLiteral("F12")},
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
    return Shortcut{*keyCode, *modifiers, character.toString()};
}

} // namespace corvane
