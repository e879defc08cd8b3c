#include "fakes/fake_keyboard_focus.h"
#include "fakes/test_clock.h"
#include "platform/desktop/keyboard_loan.h"
#include "platform/qt/desktop/lending_menu.h"

#include <QGuiApplication>
#include <QWindow>

#include <gtest/gtest.h>

#include <optional>

namespace corvane::test {

namespace {

constexpr WindowNumber editor{77};

class LendingMenuTest : public testing::Test {
protected:
    LendingMenuTest()
    {
        focus.focused = editor;
        menu.emplace(loan);
        menu->addAction(QStringLiteral("Row"));
    }
    ~LendingMenuTest() override { menu.reset(); }

    void open() { menu->popup({100, 100}); }
    bool menuHasKeyboard() const
    {
        return focus.focused == WindowNumber{menu->windowHandle()->winId()};
    }
    /// As the toolkit tells it.
    void tellOfFocus(QWindow *window) { Q_EMIT qGuiApp->focusWindowChanged(window); }

    TestClock clock;
    FakeKeyboardFocus focus;
    KeyboardLoan loan{focus, clock};
    std::optional<LendingMenu> menu;
};

} // namespace

TEST_F(LendingMenuTest, hasTheKeyboardWhileItIsOpenAndGivesItBack)
{
    for (int i = 0; i < 2; ++i) {
        open();
        EXPECT_TRUE(menuHasKeyboard());
        tellOfFocus(menu->windowHandle());
        EXPECT_TRUE(menu->isVisible());
        menu->close();
        EXPECT_EQ(focus.focused, editor);
    }
}

TEST_F(LendingMenuTest, closesWhereTheUserGoesOnElsewhereAndLeavesTheKeyboardThere)
{
    constexpr WindowNumber browser{78};
    open();
    tellOfFocus(menu->windowHandle());
    focus.focused = browser;
    tellOfFocus(nullptr);
    EXPECT_FALSE(menu->isVisible());
    clock.advance(1);
    EXPECT_EQ(focus.focused, browser);
    EXPECT_TRUE(focus.givenBack.empty());
}

// The toolkit tells of what another window of ours loses first.
TEST_F(LendingMenuTest, staysUntilItHasHadTheKeyboard)
{
    open();
    tellOfFocus(nullptr);
    EXPECT_TRUE(menu->isVisible());
}

TEST_F(LendingMenuTest, thatGoesWhileItIsOpenGivesTheKeyboardBack)
{
    open();
    ASSERT_TRUE(menuHasKeyboard());
    menu.reset();
    EXPECT_EQ(focus.focused, editor);
}

} // namespace corvane::test
