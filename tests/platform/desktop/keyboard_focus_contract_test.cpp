#include "fakes/fake_keyboard_focus.h"
#include "platform/managed_window.h"
#include "platform/x11/windows/x11_keyboard_focus.h"
#include "platform/x11/windows/x11_panel_surface.h"

#include <QWindow>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// A program that has the keyboard, and a panel, on the stand-in ...
struct FakeDesk {
    FakeDesk() { focus.focused = focus.active = program; }
    bool until(const std::function<bool()> &condition)
    {
        focus.answer();
        return condition();
    }

    const WindowNumber program{20};
    const WindowNumber panel{10};
    FakeKeyboardFocus focus;
};

/// ... and on a real desktop.
struct RealDesk {
    RealDesk()
    {
        surface.adopt(window);
        surface.place(window, {nullptr, 400, {300, 100}});
        window.show();
        panel = WindowNumber{window.winId()};
        const auto id = static_cast<xcb_window_t>(window.winId());
        eventually([&] { return display.server.facts(id)->isViewable; });
    }
    bool until(const std::function<bool()> &condition) { return eventually(condition); }

    Display display;
    ManagedWindow other{{100, 100, 300, 200}};
    X11Connection connection;
    X11PanelSurface surface{connection};
    QWindow window;
    X11KeyboardFocus focus{connection};
    const WindowNumber program{other.id()};
    WindowNumber panel = WindowNumber::None;
};

template<typename Desk>
class KeyboardFocusContract : public testing::Test {
protected:
    bool hasIt(WindowNumber window)
    {
        return desk.until([&] { return desk.focus.focusedWindow() == window; });
    }

    Desk desk;
};

using AllDesks = testing::Types<FakeDesk, RealDesk>;
TYPED_TEST_SUITE(KeyboardFocusContract, AllDesks);

} // namespace

TYPED_TEST(KeyboardFocusContract, isWithThePanelThatItIsGivenTo)
{
    ASSERT_TRUE(this->hasIt(this->desk.program));
    this->desk.focus.giveTo(this->desk.panel);
    EXPECT_TRUE(this->hasIt(this->desk.panel));
}

TYPED_TEST(KeyboardFocusContract, isWithItsOwnerAgainWhoIsAskedFor)
{
    ASSERT_TRUE(this->hasIt(this->desk.program));
    auto &focus = this->desk.focus;
    // A window manager that has just lost another window says so a moment later than the server.
    ASSERT_TRUE(this->desk.until([&] { return focus.owner().active == this->desk.program; }));
    const KeyboardFocus::Owner owner = focus.owner();
    EXPECT_EQ(owner.focused, this->desk.program);
    int answers = 0;
    focus.observeAnswers([&] { ++answers; });
    focus.giveTo(this->desk.panel);
    ASSERT_TRUE(this->hasIt(this->desk.panel));
    EXPECT_EQ(answers, 0);
    EXPECT_TRUE(focus.giveBackTo(owner));
    EXPECT_EQ(focus.focusedWindow(), this->desk.program) << "without waiting for anybody";
    EXPECT_TRUE(this->desk.until([&] { return answers > 0; }));
    EXPECT_TRUE(this->hasIt(this->desk.program));
    EXPECT_EQ(answers, 1);
}

TYPED_TEST(KeyboardFocusContract, isTakenFromAPanelAlsoWhereNobodyHadItBefore)
{
    auto &focus = this->desk.focus;
    focus.giveTo(this->desk.panel);
    ASSERT_TRUE(this->hasIt(this->desk.panel));
    EXPECT_FALSE(focus.giveBackTo({}));
    EXPECT_NE(focus.focusedWindow(), this->desk.panel);
}

TYPED_TEST(KeyboardFocusContract, tellsWhenTheWindowManagerHasComeSoFar)
{
    ASSERT_TRUE(this->hasIt(this->desk.program));
    auto &focus = this->desk.focus;
    int answers = 0;
    focus.observeAnswers([&] { ++answers; });
    focus.giveTo(this->desk.panel);
    EXPECT_TRUE(focus.askForAnswer());
    EXPECT_EQ(answers, 0) << "it is not waited for";
    EXPECT_TRUE(this->desk.until([&] { return answers > 0; }));
    EXPECT_TRUE(this->hasIt(this->desk.panel)) << "asking gives it to nobody";
    EXPECT_EQ(answers, 1);
}

TYPED_TEST(KeyboardFocusContract, knowsThatNothingIsHeldDown)
{
    EXPECT_FALSE(this->desk.focus.isAnyKeyDown());
    EXPECT_FALSE(this->desk.focus.isKeyDown(NativeKey{38}));
    EXPECT_FALSE(this->desk.focus.isLeftButtonDown());
}

} // namespace corvane::test
