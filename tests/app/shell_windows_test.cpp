#include "app/preferences/preferences_window_controller.h"
#include "app/shell_windows.h"
#include "app/welcome/welcome_window_controller.h"
#include "app/widget_hands.h"
#include "fakes/fake_window_activation.h"
#include "fakes/preferences_desk.h"

#include <QWindow>

#include <gtest/gtest.h>

#include <optional>

namespace corvane::test {

namespace {

class ShellWindowsTest : public testing::Test {
protected:
    ShellWindowsTest() { launch(); }
    ~ShellWindowsTest() override
    {
        windows.reset();
        deletePending();
    }

    void launch()
    {
        windows.emplace(ShellWindows::Context{desk.context(), activation, desk.clock});
    }

    PreferencesDesk desk;
    FakeWindowActivation activation;
    std::optional<ShellWindows> windows;
};

} // namespace

TEST_F(ShellWindowsTest, TheFirstLaunchShowsTheGuideAfterAMomentAndTheSecondDoesNot)
{
    windows->showWelcomeOnFirstLaunch();
    desk.clock.advance(0.59);
    EXPECT_EQ(windows->welcome(), nullptr);
    EXPECT_FALSE(desk.settings.seenWelcome());
    desk.clock.advance(0.02);
    ASSERT_NE(windows->welcome(), nullptr);
    EXPECT_TRUE(windows->welcome()->window().isVisible());
    EXPECT_TRUE(desk.settings.seenWelcome());

    launch();
    windows->showWelcomeOnFirstLaunch();
    EXPECT_EQ(desk.clock.pendingCount(), 0U);
    EXPECT_EQ(windows->welcome(), nullptr);
}

TEST_F(ShellWindowsTest, AGuideThatWasScheduledBeforeTheEndNeverComes)
{
    windows->showWelcomeOnFirstLaunch();
    windows.reset();
    desk.clock.advance(1);
    EXPECT_FALSE(desk.settings.seenWelcome());
    EXPECT_TRUE(activation.broughtForward.isEmpty());
}

TEST_F(ShellWindowsTest, ClosingTheGuideDropsIt)
{
    windows->showWelcome();
    windows->welcome()->window().close();
    EXPECT_EQ(windows->welcome(), nullptr);
    windows->showWelcome();
    EXPECT_NE(windows->welcome(), nullptr);
}

TEST_F(ShellWindowsTest, AskingTwiceBringsTheOneWindowForwardAndSwitchesTheTab)
{
    windows->showPreferences(PreferencesTab::General);
    PreferencesWindowController *const first = windows->preferences();
    windows->showPreferences(PreferencesTab::About);
    EXPECT_EQ(windows->preferences(), first);
    EXPECT_EQ(first->selection().tab(), PreferencesTab::About);
    const QWindow *const handle = first->window().windowHandle();
    EXPECT_EQ(activation.broughtForward, (QList<const QWindow *>{handle, handle}));
}

TEST_F(ShellWindowsTest, ClosingThePreferencesDropsThem)
{
    windows->showPreferences(PreferencesTab::About);
    windows->preferences()->window().close();
    EXPECT_EQ(windows->preferences(), nullptr);
    windows->showPreferences(PreferencesTab::General);
    EXPECT_EQ(windows->preferences()->selection().tab(), PreferencesTab::General);
}

TEST_F(ShellWindowsTest, NothingIsMadeBeforeItIsAskedFor)
{
    EXPECT_EQ(windows->preferences(), nullptr);
    EXPECT_EQ(windows->welcome(), nullptr);
}

} // namespace corvane::test
