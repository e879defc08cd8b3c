#include "platform/freedesktop/shortcuts/key_notation.h"

#include "platform/desktop/stored_modifiers.h"

#include <QHash>
#include <QStringList>

#include <array>
#include <utility>

namespace corvane::key_notation {

namespace {

constexpr KeyPosition insertKey{114};

/// Keys that type nothing, or that have a number of their own whatever they type.
std::optional<Qt::Key> namedKey(KeyPosition position)
{
    static const QHash<KeyPosition, Qt::Key> keys = {
        {KeyPosition::Return, Qt::Key_Return},
        {KeyPosition::Tab, Qt::Key_Tab},
        {KeyPosition::Space, Qt::Key_Space},
        {KeyPosition::DeleteBackward, Qt::Key_Backspace},
        {KeyPosition::DeleteForward, Qt::Key_Delete},
        {KeyPosition::Escape, Qt::Key_Escape},
        {KeyPosition::KeypadEnter, Qt::Key_Enter},
        {insertKey, Qt::Key_Insert},
        {KeyPosition::Home, Qt::Key_Home},
        {KeyPosition::End, Qt::Key_End},
        {KeyPosition::PageUp, Qt::Key_PageUp},
        {KeyPosition::PageDown, Qt::Key_PageDown},
        {KeyPosition::LeftArrow, Qt::Key_Left},
        {KeyPosition::RightArrow, Qt::Key_Right},
        {KeyPosition::UpArrow, Qt::Key_Up},
        {KeyPosition::DownArrow, Qt::Key_Down},
        {KeyPosition::F1, Qt::Key_F1},
        {KeyPosition::F2, Qt::Key_F2},
        {KeyPosition::F3, Qt::Key_F3},
        {KeyPosition::F4, Qt::Key_F4},
        {KeyPosition::F5, Qt::Key_F5},
        {KeyPosition::F6, Qt::Key_F6},
        {KeyPosition::F7, Qt::Key_F7},
        {KeyPosition::F8, Qt::Key_F8},
        {KeyPosition::F9, Qt::Key_F9},
        {KeyPosition::F10, Qt::Key_F10},
        {KeyPosition::F11, Qt::Key_F11},
        {KeyPosition::F12, Qt::Key_F12},
    };
    const auto found = keys.constFind(position);
    return found == keys.constEnd() ? std::nullopt : std::optional(*found);
}

struct Name {
    std::uint32_t bit;
    const char *text;
};
using Names = std::array<Name, 4>;
constexpr Names triggerNames = {{{stored_modifiers::control, "CTRL"},
                                 {stored_modifiers::option, "ALT"},
                                 {stored_modifiers::shift, "SHIFT"},
                                 {stored_modifiers::command, "LOGO"}}};
constexpr Names swayNames = {{{stored_modifiers::control, "Ctrl"},
                              {stored_modifiers::option, "Mod1"},
                              {stored_modifiers::shift, "Shift"},
                              {stored_modifiers::command, "Mod4"}}};
constexpr Names hyprlandNames = {{{stored_modifiers::control, "CTRL"},
                                  {stored_modifiers::option, "ALT"},
                                  {stored_modifiers::shift, "SHIFT"},
                                  {stored_modifiers::command, "SUPER"}}};

QStringList held(std::uint32_t modifiers, const Names &names)
{
    QStringList all;
    for (const Name &name : names) {
        if ((modifiers & name.bit) != 0)
            all << QLatin1String(name.text);
    }
    return all;
}

/// The one character of a text; none where there are others, or none.
std::optional<char32_t> oneCharacter(const QString &text)
{
    const QList<uint> characters = text.toUcs4();
    return characters.size() == 1 ? std::optional<char32_t>(characters.front()) : std::nullopt;
}

} // namespace

std::optional<int> qtKeys(const Combination &combination, const KeyNaming &naming)
{
    Qt::KeyboardModifiers modifiers;
    const std::array bits = {std::pair(stored_modifiers::command, Qt::MetaModifier),
                             std::pair(stored_modifiers::option, Qt::AltModifier),
                             std::pair(stored_modifiers::control, Qt::ControlModifier),
                             std::pair(stored_modifiers::shift, Qt::ShiftModifier)};
    for (const auto &[bit, modifier] : bits)
        modifiers.setFlag(modifier, (combination.modifiers & bit) != 0);
    if (const auto named = namedKey(combination.key))
        return QKeyCombination(modifiers, *named).toCombined();

    auto character = oneCharacter(naming(combination.key, false).text);
    if (!character)
        return std::nullopt;
    const bool isLetter = QChar::toUpper(*character) != QChar::toLower(*character);
    if (!isLetter && modifiers.testFlag(Qt::ShiftModifier)) {
        const auto shifted = oneCharacter(naming(combination.key, true).text);
        modifiers.setFlag(Qt::ShiftModifier, !shifted);
        character = shifted ? shifted : character;
    }
    const auto key = static_cast<Qt::Key>(QChar::toUpper(*character));
    return QKeyCombination(modifiers, key).toCombined();
}

QString trigger(const Combination &combination, const KeyNaming &naming)
{
    const QString symbol = naming(combination.key, false).symbol;
    return symbol.isEmpty()
        ? QString()
        : (held(combination.modifiers, triggerNames) << symbol).join(QLatin1Char('+'));
}

Settings settingsOf(const QString &currentDesktop)
{
    const QStringList names = currentDesktop.split(QLatin1Char(':'));
    if (names.contains(QLatin1String("sway"), Qt::CaseInsensitive))
        return Settings::Sway;
    if (names.contains(QLatin1String("hyprland"), Qt::CaseInsensitive))
        return Settings::Hyprland;
    return Settings::Unknown;
}

QString settingsLine(Settings settings, const Combination &combination, const QString &command,
                     const KeyNaming &naming)
{
    const QString symbol = naming(combination.key, false).symbol;
    if (symbol.isEmpty())
        return {};
    switch (settings) {
    case Settings::Sway: {
        const QStringList keys = held(combination.modifiers, swayNames) << symbol;
        return QLatin1String("bindsym ") % keys.join(QLatin1Char('+')) % QLatin1String(" exec ")
            % command;
    }
    case Settings::Hyprland:
        return QLatin1String("bind = ")
            % held(combination.modifiers, hyprlandNames).join(QLatin1Char(' '))
            % QLatin1String(", ") % symbol % QLatin1String(", exec, ") % command;
    case Settings::Unknown:
        break;
    }
    return {};
}

} // namespace corvane::key_notation
