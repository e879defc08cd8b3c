#include "platform/desktop/stored_modifiers.h"
#include "platform/freedesktop/shortcuts/key_notation.h"

#include <QKeySequence>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using namespace key_notation;
using namespace stored_modifiers;

constexpr KeyPosition one{18};
constexpr KeyPosition accent{33};

/// A keyboard on which the key in the position of D types an é, as a letter that is no Latin one
/// would.
KeyName french(KeyPosition key, bool isShifted)
{
    if (key == KeyPosition::D)
        return {.text = isShifted ? QStringLiteral("É") : QStringLiteral("é"),
                .symbol = isShifted ? QStringLiteral("Eacute") : QStringLiteral("eacute")};
    if (key == one)
        return {.text = isShifted ? QStringLiteral("!") : QStringLiteral("1"),
                .symbol = isShifted ? QStringLiteral("exclam") : QStringLiteral("1")};
    if (key == KeyPosition::Return)
        return {.symbol = QStringLiteral("Return")};
    return {};
}

QString qtText(const Combination &combination)
{
    const auto keys = qtKeys(combination, french);
    return keys
        ? QKeySequence(QKeyCombination::fromCombined(*keys)).toString(QKeySequence::PortableText)
        : QString();
}

} // namespace

TEST(KeyNotation, QtNumbersALetterWithItsModifiers)
{
    EXPECT_EQ(qtText({KeyPosition::D, command | shift}), QStringLiteral("Meta+Shift+É"));
    EXPECT_EQ(qtText({KeyPosition::D, control | option}), QStringLiteral("Ctrl+Alt+É"));
}

TEST(KeyNotation, QtNumbersACharacterThatTakesShiftWithoutShift)
{
    EXPECT_EQ(qtText({one, command}), QStringLiteral("Meta+1"));
    EXPECT_EQ(qtText({one, command | shift}), QStringLiteral("Meta+!"));
}

TEST(KeyNotation, QtNumbersKeysThatTypeNothing)
{
    EXPECT_EQ(qtText({KeyPosition::Return, command}), QStringLiteral("Meta+Return"));
    EXPECT_EQ(qtText({KeyPosition::F12, control | shift}), QStringLiteral("Ctrl+Shift+F12"));
    EXPECT_EQ(qtText({KeyPosition::Tab, command | shift}), QStringLiteral("Meta+Shift+Tab"));
}

TEST(KeyNotation, AKeyThatDoesNothingHasNoNotation)
{
    EXPECT_EQ(qtKeys({accent, command}, french), std::nullopt);
    EXPECT_EQ(trigger({accent, command}, french), QString());
    EXPECT_EQ(settingsLine(Settings::Sway, {accent, command}, QStringLiteral("corvane"), french),
              QString());
}

TEST(KeyNotation, PortalsTakeASymbolAfterItsModifiers)
{
    EXPECT_EQ(trigger({KeyPosition::D, command | shift}, french),
              QStringLiteral("SHIFT+LOGO+eacute"));
    EXPECT_EQ(trigger({one, control | option}, french), QStringLiteral("CTRL+ALT+1"));
}

TEST(KeyNotation, CompositorsHaveLinesOfTheirOwn)
{
    const Combination keys = {KeyPosition::Return, command | shift | option};
    const auto command = QStringLiteral("corvane");
    EXPECT_EQ(settingsLine(Settings::Sway, keys, command, french),
              QStringLiteral("bindsym Mod1+Shift+Mod4+Return exec corvane"));
    EXPECT_EQ(settingsLine(Settings::Hyprland, keys, command, french),
              QStringLiteral("bind = ALT SHIFT SUPER, Return, exec, corvane"));
    EXPECT_EQ(settingsLine(Settings::Unknown, keys, command, french), QString());
}

TEST(KeyNotation, CompositorsAreToldByTheDesktopsNames)
{
    EXPECT_EQ(settingsOf(QStringLiteral("sway")), Settings::Sway);
    EXPECT_EQ(settingsOf(QStringLiteral("Hyprland")), Settings::Hyprland);
    EXPECT_EQ(settingsOf(QStringLiteral("distribution:sway:wlroots")), Settings::Sway);
    EXPECT_EQ(settingsOf(QStringLiteral("KDE")), Settings::Unknown);
    EXPECT_EQ(settingsOf(QStringLiteral("notsway")), Settings::Unknown);
    EXPECT_EQ(settingsOf({}), Settings::Unknown);
}

} // namespace corvane::test
