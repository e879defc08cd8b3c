// The guide and the preferences, from outside: window manager, keys, the settings' file.

#include "e2e/desktop_test.h"

#include <csignal>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

constexpr QSize welcomeSize{520, 560};
constexpr QSize preferencesSize{480, 560};

class Windows : public EveryDesktop {
protected:
    std::optional<WindowFacts> window(QSize size) { return corvane().window(size); }
    /// In front, with the keyboard.
    bool waitUntilActive(QSize size)
    {
        return eventually([&] {
            const auto found = window(size);
            return found && server().activeWindow() == found->id;
        });
    }
    bool waitUntilGone(QSize size)
    {
        return eventually([&] { return !window(size); });
    }
    /// As the desktop's menu for the program does.
    bool openPreferences() { return corvane().activateAction(u"preferences"_s); }
    void startForTheFirstTime() { start({{}, {}, {}, false}); }
    void startAnotherTime() { start({{}, {}, {}, true, true}); }
    void end()
    {
        corvane().program().signal(SIGTERM);
        ASSERT_EQ(corvane().program().waitForEnd(), 0);
    }
};

TEST_P(Windows, theFirstLaunchShowsTheGuideAndTheSecondDoesNot)
{
    startForTheFirstTime();
    ASSERT_TRUE(waitUntilActive(welcomeSize));
    EXPECT_TRUE(eventually([&] { return corvane().settings().contains("seenWelcome=true"); }));
    hands().key(keys::escape);
    ASSERT_TRUE(waitUntilGone(welcomeSize));

    // Starting it once more while it runs is a wish for the shelf.
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty));
    end();

    startAnotherTime();
    // It would have come by the time that the shelf has opened and closed.
    corvane().startAgain();
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::empty));
    corvane().startAgain();
    ASSERT_TRUE(corvane().waitUntilHidden());
    EXPECT_FALSE(window(welcomeSize));
}

TEST_P(Windows, theGuideIsReadWithTheKeyboardAlone)
{
    startForTheFirstTime();
    ASSERT_TRUE(waitUntilActive(welcomeSize));
    for (int i = 0; i < 3; ++i)
        hands().key(keys::enter);
    EXPECT_TRUE(waitUntilGone(welcomeSize));
}

TEST_P(Windows, theGuideIsMovedByItsGround)
{
    startForTheFirstTime();
    ASSERT_TRUE(waitUntilActive(welcomeSize));
    const QRect before = window(welcomeSize).value_or(WindowFacts{}).frame;
    hands().moveTo(before.bottomLeft() + QPoint(8, -8));
    hands().press(1);
    // By more than a click that slips.
    hands().moveBy({30, 0});
    const auto movedBy
        = [&] { return window(welcomeSize).value_or(WindowFacts{}).frame.x() - before.x(); };
    EXPECT_TRUE(eventually([&] {
        hands().moveBy({5, 0});
        return movedBy() > 40;
    }));
    hands().release(1);
}

TEST_P(Windows, preferencesAreChangedWithTheKeyboardAlone)
{
    start();
    ASSERT_TRUE(openPreferences());
    ASSERT_TRUE(waitUntilActive(preferencesSize));
    const QRect frame = window(preferencesSize).value_or(WindowFacts{}).frame;
    EXPECT_NEAR(frame.center().x(), server().size().width() / 2.0, 40);
    m_desktop.pictureAtRest(frame);
    // Past the tabs to the numbers, and from one to three.
    hands().key(keys::tab);
    hands().key(keys::tab);
    hands().key(keys::right);
    hands().key(keys::right);
    EXPECT_TRUE(eventually([&] { return corvane().settings().contains("inViewCount=3"); }));
    // On to the log-in switch and past it, to the drags.
    hands().key(keys::tab);
    hands().key(keys::tab);
    hands().key(keys::space);
    EXPECT_TRUE(eventually([&] { return corvane().settings().contains("autoShowOnDrag=false"); }));
    hands().key('w', {keys::control});
    EXPECT_TRUE(waitUntilGone(preferencesSize));
}

TEST_P(Windows, askingAgainBringsTheOneWindowForward)
{
    start();
    ASSERT_TRUE(openPreferences());
    ASSERT_TRUE(waitUntilActive(preferencesSize));
    const auto first = window(preferencesSize).value_or(WindowFacts{}).id;
    ASSERT_TRUE(openPreferences());
    EXPECT_TRUE(waitUntilActive(preferencesSize));
    EXPECT_EQ(window(preferencesSize).value_or(WindowFacts{}).id, first);
}

INSTANTIATE_TEST_SUITE_P(, Windows, twoDesktops(), nameOf);

} // namespace
} // namespace corvane::e2e
