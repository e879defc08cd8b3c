// A window of ours comes forward although the user's last click was in another program.

#include "platform/display.h"
#include "platform/x11/base/x11_qt.h"
#include "platform/x11/windows/x11_window_activation.h"

#include <QWidget>

#include <gtest/gtest.h>

#include <array>

namespace corvane::test {

namespace {

/// A window of another program, in the window manager's care.
class ForeignWindow {
public:
    ForeignWindow()
    {
        xcb_connection_t *const connection = m_server.connection();
        m_window = xcb_generate_id(connection);
        const std::uint32_t events = XCB_EVENT_MASK_BUTTON_PRESS;
        xcb_create_window(connection, XCB_COPY_FROM_PARENT, m_window, m_server.root(), 0, 0, 300,
                          200, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                          XCB_CW_EVENT_MASK, &events);
        xcb_map_window(connection, m_window);
        xcb_flush(connection);
    }
    ~ForeignWindow() { xcb_destroy_window(m_server.connection(), m_window); }
    ForeignWindow(const ForeignWindow &) = delete;
    ForeignWindow &operator=(const ForeignWindow &) = delete;

    xcb_window_t id() const { return m_window; }
    /// As programs do that were clicked.
    void setUserTime(std::uint32_t time)
    {
        xcb_change_property(m_server.connection(), XCB_PROP_MODE_REPLACE, m_window,
                            m_server.atom("_NET_WM_USER_TIME"), XCB_ATOM_CARDINAL, 32, 1, &time);
        xcb_flush(m_server.connection());
    }
    std::optional<std::uint32_t> timeOfClick()
    {
        std::optional<std::uint32_t> time;
        eventually([&] {
            if (auto *event = xcb_poll_for_event(m_server.connection())) {
                if ((event->response_type & 0x7f) == XCB_BUTTON_PRESS)
                    time = reinterpret_cast<xcb_button_press_event_t *>(event)->time;
                std::free(event);
            }
            return time.has_value();
        });
        return time;
    }

private:
    e2e::XServer m_server{qgetenv("DISPLAY")};
    xcb_window_t m_window = e2e::noWindow;
};

class WindowActivationTest : public testing::Test {
protected:
    /// Another program comes forward and is clicked: whoever asks with an older time is refused.
    void useAnotherProgram()
    {
        ASSERT_TRUE(eventually([&] { return facts().isViewable; }));
        display.server.activate(other.id());
        ASSERT_TRUE(eventually([&] { return display.server.activeWindow() == other.id(); }));
        display.hands.click(facts().frame.center());
        const auto time = other.timeOfClick();
        ASSERT_TRUE(time);
        other.setUserTime(*time);
    }
    e2e::WindowFacts facts()
    {
        return display.server.facts(other.id()).value_or(e2e::WindowFacts{});
    }
    bool comesForward(const QWidget &widget) const
    {
        return eventually([&] { return display.server.activeWindow() == widget.winId(); });
    }

    Display display;
    ForeignWindow other;
    X11Connection connection;
    X11WindowActivation activation{connection};
};

} // namespace

TEST_F(WindowActivationTest, AWindowThatIsShownComesToTheFrontWithTheKeyboard)
{
    useAnotherProgram();
    QWidget widget;
    widget.show();
    activation.bringToFront(*widget.windowHandle());
    EXPECT_TRUE(comesForward(widget));
    EXPECT_TRUE(eventually([&] { return widget.isActiveWindow(); }));
}

TEST_F(WindowActivationTest, AWindowThatLiesBehindAnotherComesForwardAgain)
{
    QWidget widget;
    widget.show();
    activation.bringToFront(*widget.windowHandle());
    ASSERT_TRUE(comesForward(widget));
    useAnotherProgram();
    activation.bringToFront(*widget.windowHandle());
    EXPECT_TRUE(comesForward(widget));
}

TEST_F(WindowActivationTest, TheWindowManagerHasBeenAskedWhenTheCallReturns)
{
    useAnotherProgram();
    QWidget widget;
    widget.show();
    activation.bringToFront(*widget.windowHandle());
    // Behind it: an answer that came later would take the keyboard from the other one again.
    std::free(xcb_get_input_focus_reply(x11_qt::connection(),
                                        xcb_get_input_focus(x11_qt::connection()), nullptr));
    display.server.activate(other.id());
    ASSERT_TRUE(eventually([&] { return display.server.activeWindow() == other.id(); }));
    settle();
    EXPECT_EQ(display.server.activeWindow(), other.id());
}

TEST_F(WindowActivationTest, AWindowThatIsGoneBeforeTheWindowManagerActsHarmsNobody)
{
    auto widget = std::make_unique<QWidget>();
    widget->show();
    activation.bringToFront(*widget->windowHandle());
    widget.reset();
    settle();
    EXPECT_TRUE(connection.isConnected());
}

} // namespace corvane::test
