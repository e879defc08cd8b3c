#include "platform/desktop/stored_modifiers.h"
#include "platform/freedesktop/shortcuts/action_shortcuts.h"
#include "platform/freedesktop/shortcuts/super_shift.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

std::vector<DesktopAction> commandActions()
{
    return {{.id = 1,
             .name = QStringLiteral("toggle"),
             .title = QStringLiteral("Toggle"),
             .command = QStringLiteral("corvane")},
            {.id = 2,
             .name = QStringLiteral("view-all"),
             .title = QStringLiteral("View all"),
             .command = QStringLiteral("corvane-all")}};
}

KeyName typesD(KeyPosition /*key*/, bool /*isShifted*/)
{
    return {.text = QStringLiteral("d"), .symbol = QStringLiteral("d")};
}

} // namespace

TEST(ActionShortcuts, SayWhichCommandToBindAndInWhichLine)
{
    ActionShortcuts shortcuts(commandActions(), key_notation::Settings::Sway, typesD);
    EXPECT_EQ(shortcuts.presence(), OptionalHotKeys::Presence::There);
    EXPECT_EQ(shortcuts.choice(), ShortcutChoice::InTheDesktop);
    EXPECT_EQ(shortcuts.registerHotKey(KeyPosition::D, superShift, {1, 1}, {}).outcome,
              ShortcutOutcome::setInDesktop(QStringLiteral("corvane"),
                                            QStringLiteral("bindsym Shift+Mod4+d exec corvane")));
}

TEST(ActionShortcuts, SayTheCommandAloneWhereNoKeysAreWantedOrTheSettingsAreUnknown)
{
    ActionShortcuts shortcuts(commandActions(), key_notation::Settings::Unknown, typesD);
    const auto command = ShortcutOutcome::setInDesktop(QStringLiteral("corvane-all"));
    EXPECT_EQ(shortcuts.registerHotKey(KeyPosition::D, superShift, {1, 2}, {}).outcome, command);
    EXPECT_EQ(shortcuts.outcomeWithoutKeys({1, 2}), command);
}

TEST(ActionShortcuts, KnowNoOtherHotKeys)
{
    ActionShortcuts shortcuts(commandActions(), key_notation::Settings::Sway, typesD);
    EXPECT_TRUE(
        shortcuts.registerHotKey(KeyPosition::D, superShift, {1, 3}, {}).outcome.isRefused());
    EXPECT_EQ(shortcuts.outcomeWithoutKeys({1, 3}), ShortcutOutcome());
}

} // namespace corvane::test
