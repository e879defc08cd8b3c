// The key that opens and closes the shelf whichever program has the keyboard.

#include "e2e/desktop/rival.h"
#include "e2e/desktop/text_editor.h"
#include "e2e/desktop_test.h"

#include <csignal>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

constexpr uint32_t capsLock = 0xffe5;
constexpr uint32_t numLock = 0xff7f;
/// Of the key that carries the d, whatever the layout.
constexpr xcb_keycode_t positionOfD = 40;

constexpr auto claimed
    = "[Corvane] A shortcut is already claimed by another app; the menu bar item still works.";

class HotKey : public EveryDesktop {
protected:
    void pressHotKey() { hands().key('d', {keys::super, keys::shift}); }
};
INSTANTIATE_TEST_SUITE_P(, HotKey, twoDesktops(), nameOf);

TEST_P(HotKey, opensAndClosesTheShelfWithAnotherProgramFocused)
{
    start();
    TextEditor editor(m_desktop, "text", QRect(100, 400, 500, 300));
    ASSERT_EQ(editor.problem(), QString());
    hands().click(editor.middle());
    const xcb_window_t focused = server().focusedWindow();
    pressHotKey();
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty));
    pressHotKey();
    EXPECT_TRUE(corvane().waitUntilHidden());
    EXPECT_TRUE(eventually([&] { return server().focusedWindow() == focused; }));
    EXPECT_EQ(editor.text("text").trimmed(), "text") << "nothing of it was typed";
}

TEST_P(HotKey, worksWithNumLockAndCapsLockOn)
{
    start();
    for (const auto &locks : {QList<uint32_t>{numLock}, QList<uint32_t>{capsLock},
                              QList<uint32_t>{numLock, capsLock}}) {
        for (const uint32_t lock : locks)
            hands().key(lock);
        pressHotKey();
        EXPECT_TRUE(corvane().waitUntilShown()) << locks.size();
        pressHotKey();
        EXPECT_TRUE(corvane().waitUntilHidden()) << locks.size();
        for (const uint32_t lock : locks)
            hands().key(lock);
    }
}

TEST_P(HotKey, bringsBackWhatLiesOnTheShelf)
{
    start();
    ASSERT_TRUE(dropFiles({makeFile(u"one.txt"_s, "x")}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    pressHotKey();
    ASSERT_TRUE(corvane().waitUntilHidden());
    pressHotKey();
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
}

TEST_P(HotKey, thatAnotherProgramHoldsIsSaidOnceAndTheShelfWorksAllTheSame)
{
    Rival rival(m_desktop);
    ASSERT_TRUE(rival.grab(positionOfD));
    start();
    EXPECT_EQ(corvane().program().output().count(claimed), 1);
    pressHotKey();
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty))
        << "the key had opened it, and the second start closed it";
}

TEST_P(HotKey, isFreeForOthersAfterTheEnd)
{
    start();
    EXPECT_FALSE(corvane().program().output().contains(claimed));
    EXPECT_FALSE(Rival(m_desktop).grab(positionOfD));
    corvane().program().signal(SIGTERM);
    ASSERT_EQ(corvane().program().waitForEnd(), 0);
    EXPECT_TRUE(eventually([&] { return Rival(m_desktop).grab(positionOfD); }));
}

} // namespace
} // namespace corvane::e2e
