#include "fakes/fake_drag_desktop.h"
#include "platform/display.h"
#include "platform/silent_server.h"
#include "platform/x11/base/x11_connection.h"
#include "platform/x11/drags/x11_drag_desktop.h"
#include "platform/x11_client.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QWindow>

#include <gtest/gtest.h>
#include <xcb/xinput.h>

#include <array>

namespace corvane::test {

namespace {

/// The user's verbs on the stand-in ...
struct FakeHands {
    FakeDragDesktop desktop;
    void press() { desktop.press(); }
    void release() { desktop.release(); }
    void pressRight() { desktop.press(FakeDragDesktop::rightButton); }
    void releaseRight() { desktop.release(FakeDragDesktop::rightButton); }
    void pressElsewhere() { desktop.pressElsewhere(QPointF(1, 0)); }
    void move() { desktop.moveTo({1, 0}); }
    void pickUp() { desktop.pickUp(); }
    void putDown() { }
    bool until(const std::function<bool()> &condition) { return condition(); }
    void waitABit() { }
};

/// ... and on a real desktop.
struct RealHands {
    X11Connection connection;
    X11DragDesktop desktop{connection};
    Display display;
    DragSource source{{{"text/plain", "x"}}, "XdndActionCopy"};

    /// Over the source's window: the window manager has menus on the desktop itself.
    RealHands() { display.hands.moveTo(DragSource::frame.center()); }
    ~RealHands()
    {
        display.hands.release(1);
        display.hands.release(3);
    }
    void press() { display.hands.press(1); }
    void release() { display.hands.release(1); }
    void pressRight() { display.hands.press(3); }
    void releaseRight() { display.hands.release(3); }
    void pressElsewhere() { press(); }
    void move() { display.hands.moveBy({7, 3}); }
    void pickUp() { source.pickUp(); }
    void putDown() { source.putDown(); }
    bool until(const std::function<bool()> &condition) { return eventually(condition); }
    void waitABit() { settle(); }
};

template<typename Hands>
class DragDesktopContract : public testing::Test {
protected:
    Hands hands;
    DragPasteboard &pasteboard = hands.desktop;
    EventMonitors &monitors = hands.desktop;
    MouseButtons &buttons = hands.desktop;
    int heard = 0;

    Subscription listen()
    {
        auto monitor = monitors.addGlobalMonitor([this] { ++heard; });
        // The hands have a connection of their own, which may be faster.
        hands.waitABit();
        return monitor;
    }
};

using AllHands = testing::Types<FakeHands, RealHands>;
TYPED_TEST_SUITE(DragDesktopContract, AllHands);

} // namespace

TYPED_TEST(DragDesktopContract, theChangeCountGrowsWithEachDrag)
{
    const auto before = this->pasteboard.changeCount();
    this->hands.waitABit();
    EXPECT_EQ(this->pasteboard.changeCount(), before);
    this->hands.pickUp();
    EXPECT_TRUE(this->hands.until([&] { return this->pasteboard.changeCount() == before + 1; }));
    this->hands.putDown();
    this->hands.waitABit();
    EXPECT_EQ(this->pasteboard.changeCount(), before + 1);
    this->hands.pickUp();
    EXPECT_TRUE(this->hands.until([&] { return this->pasteboard.changeCount() == before + 2; }));
    this->hands.putDown();
}

TYPED_TEST(DragDesktopContract, hearsThePointerMoveWithTheLeftButtonHeld)
{
    const Subscription monitor = this->listen();
    ASSERT_TRUE(monitor.isActive());
    this->hands.press();
    this->hands.waitABit();
    this->hands.move();
    EXPECT_TRUE(this->hands.until([&] { return this->heard > 0; }));
    this->hands.release();
    this->hands.waitABit();
    this->heard = 0;
    this->hands.move();
    this->hands.waitABit();
    EXPECT_EQ(this->heard, 0);
}

TYPED_TEST(DragDesktopContract, hearsNothingWithAnotherButton)
{
    const Subscription monitor = this->listen();
    ASSERT_TRUE(monitor.isActive());
    this->hands.pressRight();
    this->hands.waitABit();
    this->hands.move();
    this->hands.waitABit();
    EXPECT_EQ(this->heard, 0);
    this->hands.releaseRight();
}

TYPED_TEST(DragDesktopContract, tellsTheButtonsThatAreDown)
{
    EXPECT_EQ(this->buttons.pressedMouseButtons(), 0U);
    this->hands.press();
    EXPECT_EQ(this->buttons.pressedMouseButtons(), MouseButtons::left);
    this->hands.pressRight();
    EXPECT_EQ(this->buttons.pressedMouseButtons(), 3U);
    this->hands.release();
    EXPECT_EQ(this->buttons.pressedMouseButtons(), 2U);
    this->hands.releaseRight();
    EXPECT_EQ(this->buttons.pressedMouseButtons(), 0U);
}

TYPED_TEST(DragDesktopContract, aRemovedMonitorHearsNothing)
{
    Subscription first = this->listen();
    int second = 0;
    const Subscription other = this->monitors.addGlobalMonitor([&] { ++second; });
    ASSERT_TRUE(first.isActive() && other.isActive());
    first.end();
    first.end();
    this->hands.press();
    this->hands.waitABit();
    this->hands.move();
    EXPECT_TRUE(this->hands.until([&] { return second > 0; }));
    EXPECT_EQ(this->heard, 0);
}

TYPED_TEST(DragDesktopContract, aMonitorMayRemoveItselfFromItsHandler)
{
    Subscription monitor;
    monitor = this->monitors.addGlobalMonitor([&] {
        ++this->heard;
        monitor.end();
    });
    this->hands.waitABit();
    this->hands.press();
    this->hands.waitABit();
    this->hands.move();
    EXPECT_TRUE(this->hands.until([&] { return this->heard == 1; }));
    this->hands.move();
    this->hands.waitABit();
    EXPECT_EQ(this->heard, 1);
}

TYPED_TEST(DragDesktopContract, hearsPressesInOtherProgramsWindows)
{
    int presses = 0;
    Subscription monitor = this->monitors.addGlobalMouseDownMonitor([&] { ++presses; });
    ASSERT_TRUE(monitor.isActive());
    this->hands.waitABit();
    this->hands.pressElsewhere();
    EXPECT_TRUE(this->hands.until([&] { return presses == 1; }));
    this->hands.release();
    monitor.end();
    this->hands.waitABit();
    this->hands.pressElsewhere();
    this->hands.waitABit();
    EXPECT_EQ(presses, 1);
}

TYPED_TEST(DragDesktopContract, hearsPressesOfTheLeftButtonAndOfNoOther)
{
    int presses = 0;
    Subscription monitor = this->monitors.addLeftMouseDownMonitor([&] { ++presses; });
    ASSERT_TRUE(monitor.isActive());
    this->hands.waitABit();
    this->hands.pressRight();
    this->hands.waitABit();
    EXPECT_EQ(presses, 0);
    this->hands.press();
    EXPECT_TRUE(this->hands.until([&] { return presses == 1; }));
    this->hands.releaseRight();
    this->hands.release();
    this->hands.waitABit();
    this->hands.press();
    EXPECT_TRUE(this->hands.until([&] { return presses == 2; }));
    this->hands.release();
    monitor.end();
    this->hands.waitABit();
    this->hands.press();
    this->hands.waitABit();
    EXPECT_EQ(presses, 2);
}

TYPED_TEST(DragDesktopContract, thePressIsToldBeforeTheChangeThatItLeadsTo)
{
    std::optional<qint64> atPress;
    const Subscription monitor
        = this->monitors.addLeftMouseDownMonitor([&] { atPress = this->pasteboard.changeCount(); });
    ASSERT_TRUE(monitor.isActive());
    const auto before = this->pasteboard.changeCount();
    this->hands.waitABit();
    this->hands.press();
    this->hands.pickUp();
    EXPECT_TRUE(this->hands.until([&] { return this->pasteboard.changeCount() == before + 1; }));
    EXPECT_EQ(atPress, before);
    this->hands.putDown();
}

TEST(X11DragDesktop, wheelsPressNothingAndSideButtonsDo)
{
    RealHands hands;
    int presses = 0;
    const Subscription monitor = hands.desktop.addGlobalMouseDownMonitor([&] { ++presses; });
    ASSERT_TRUE(monitor.isActive());
    settle();
    for (const std::uint8_t button : std::initializer_list<std::uint8_t>{4, 5, 6, 7, 2, 3, 8, 9}) {
        hands.display.hands.press(button);
        hands.display.hands.release(button);
    }
    EXPECT_TRUE(eventually([&] { return presses >= 4; }));
    settle();
    EXPECT_EQ(presses, 4);
}

TEST(X11DragDesktop, pressesInOurOwnWindowsAreNotTold)
{
    RealHands hands;
    QWindow window;
    window.setFlag(Qt::X11BypassWindowManagerHint);
    window.setGeometry(200, 200, 100, 100);
    window.show();
    ASSERT_TRUE(eventually([&] { return window.isExposed(); }));
    int presses = 0;
    const Subscription monitor = hands.desktop.addGlobalMouseDownMonitor([&] { ++presses; });
    ASSERT_TRUE(monitor.isActive());
    settle();
    hands.display.hands.click({250, 250});
    settle();
    EXPECT_EQ(presses, 0);
    hands.display.hands.click(DragSource::frame.center());
    EXPECT_TRUE(eventually([&] { return presses == 1; }));
}

TEST(X11DragDesktop, aMonitorOfPressesAloneIsNotWokenByMotion)
{
    RealHands hands;
    int presses = 0;
    int motions = 0;
    Subscription dragging = hands.desktop.addGlobalMonitor([&] { ++motions; });
    const Subscription pressing = hands.desktop.addGlobalMouseDownMonitor([&] { ++presses; });
    ASSERT_TRUE(dragging.isActive() && pressing.isActive());
    dragging.end();
    settle();
    hands.press();
    EXPECT_TRUE(eventually([&] { return presses == 1; }));
    hands.move();
    settle();
    EXPECT_EQ(motions, 0);
}

TEST(X11DragDesktop, aMonitorsSubscriptionMayOutliveIt)
{
    X11Connection connection;
    std::optional<X11DragDesktop> desktop(connection);
    Subscription monitor = desktop->addGlobalMonitor([] {});
    desktop.reset();
    monitor.end();
    EXPECT_TRUE(connection.isConnected());
}

TEST(X11DragDesktop, hasNoLocalMonitorBecauseTheGlobalOneHearsAll)
{
    X11Connection connection;
    X11DragDesktop desktop(connection);
    EXPECT_FALSE(desktop.addLocalMonitor([] {}).isActive());
}

TEST(X11DragDesktop, anOwnDragAndTheClipboardAreNoChange)
{
    X11Connection connection;
    const X11DragDesktop desktop(connection);
    Display display;
    QWindow window;
    window.create();
    // As Qt's own drag does it.
    auto *const qt = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    xcb_set_selection_owner(qt, static_cast<xcb_window_t>(window.winId()),
                            display.server.atom("XdndSelection"), XCB_CURRENT_TIME);
    xcb_flush(qt);
    QGuiApplication::clipboard()->setText(QStringLiteral("text"));
    ASSERT_TRUE(eventually(
        [&] { return display.server.selectionOwner("XdndSelection") == window.winId(); }));
    settle();
    EXPECT_EQ(desktop.changeCount(), 0);
}

TEST(X11DragDesktop, aServerThatKeepsSilentReleasesNoButton)
{
    RealHands hands;
    hands.press();
    EXPECT_EQ(hands.desktop.pressedMouseButtons(), MouseButtons::left);
    EXPECT_TRUE(endsWhileTheServerStandsStill(hands.connection.get(), [&] {
        EXPECT_EQ(hands.desktop.pressedMouseButtons(), MouseButtons::left);
    }));
    hands.release();
    EXPECT_TRUE(eventually([&] { return hands.desktop.pressedMouseButtons() == 0; }));
}

TEST(X11DragDesktop, leftHandedPeopleDragWithTheOtherButton)
{
    RealHands hands;
    int heard = 0;
    const Subscription monitor = hands.desktop.addGlobalMonitor([&] { ++heard; });
    ASSERT_TRUE(monitor.isActive());
    auto *const server = hands.display.server.connection();
    const std::array<std::uint8_t, 10> swapped = {3, 2, 1, 4, 5, 6, 7, 8, 9, 10};
    const auto reply = xcb_set_pointer_mapping_reply(
        server, xcb_set_pointer_mapping(server, swapped.size(), swapped.data()), nullptr);
    ASSERT_TRUE(reply);
    std::free(reply);
    settle();
    hands.pressRight();
    EXPECT_EQ(hands.desktop.pressedMouseButtons(), MouseButtons::left);
    settle();
    hands.move();
    EXPECT_TRUE(eventually([&] { return heard > 0; }));
    hands.releaseRight();
    const std::array<std::uint8_t, 10> usual = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    std::free(xcb_set_pointer_mapping_reply(
        server, xcb_set_pointer_mapping(server, usual.size(), usual.data()), nullptr));
    settle();
}

/// Gives the device behind the hands an order of its own for its buttons, as `xinput
/// set-button-map` does; the order of all devices together stays as it is.
struct DeviceButtons {
    explicit DeviceButtons(xcb_connection_t *connection)
        : m_connection(connection)
    {
        const X11Reply<xcb_input_xi_query_device_reply_t> reply(xcb_input_xi_query_device_reply(
            connection, xcb_input_xi_query_device(connection, XCB_INPUT_DEVICE_ALL), nullptr));
        for (auto info = xcb_input_xi_query_device_infos_iterator(reply.get()); info.rem > 0;
             xcb_input_xi_device_info_next(&info)) {
            const QByteArrayView name(xcb_input_xi_device_info_name(info.data),
                                      info.data->name_len);
            if (info.data->type == XCB_INPUT_DEVICE_TYPE_SLAVE_POINTER
                && name.toByteArray().contains("XTEST"))
                m_device = static_cast<std::uint8_t>(info.data->deviceid);
        }
        std::free(xcb_input_open_device_reply(
            connection, xcb_input_open_device(connection, m_device), nullptr));
    }
    ~DeviceButtons() { set({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}); }

    bool set(const std::array<std::uint8_t, 10> &order) const
    {
        const X11Reply<xcb_input_set_device_button_mapping_reply_t> reply(
            xcb_input_set_device_button_mapping_reply(
                m_connection,
                xcb_input_set_device_button_mapping(
                    m_connection, m_device, static_cast<std::uint8_t>(order.size()), order.data()),
                nullptr));
        settle();
        return reply && reply->status == 0;
    }

private:
    xcb_connection_t *m_connection;
    std::uint8_t m_device = 0;
};

TEST(X11DragDesktop, buttonsThatAreExchangedForOneDeviceAloneDragToo)
{
    RealHands hands;
    const DeviceButtons buttons(hands.display.server.connection());
    ASSERT_TRUE(buttons.set({3, 2, 1, 4, 5, 6, 7, 8, 9, 10}));
    int heard = 0;
    int presses = 0;
    const Subscription dragging = hands.desktop.addGlobalMonitor([&] { ++heard; });
    const Subscription pressing = hands.desktop.addLeftMouseDownMonitor([&] { ++presses; });
    ASSERT_TRUE(dragging.isActive() && pressing.isActive());
    settle();
    // The first button is the right one now.
    hands.press();
    settle();
    hands.move();
    settle();
    EXPECT_EQ(heard, 0);
    EXPECT_EQ(presses, 0);
    hands.release();
    settle();

    hands.pressRight();
    EXPECT_TRUE(eventually([&] { return presses == 1; }));
    hands.move();
    EXPECT_TRUE(eventually([&] { return heard > 0; }));
    hands.releaseRight();
    settle();
    heard = 0;
    hands.move();
    settle();
    EXPECT_EQ(heard, 0);
}

TEST(X11DragDesktop, aSecondPressRightAfterAReleaseIsToldToo)
{
    RealHands hands;
    int presses = 0;
    const Subscription monitor = hands.desktop.addLeftMouseDownMonitor([&] { ++presses; });
    ASSERT_TRUE(monitor.isActive());
    settle();
    hands.press();
    EXPECT_TRUE(eventually([&] { return presses == 1; }));
    // Both are there before either is looked at.
    hands.release();
    hands.press();
    EXPECT_TRUE(eventually([&] { return presses == 2; }));
}

TEST(X11DragDesktop, motionOfAPressThatWasOverBeforeItWasLookedAtIsNone)
{
    RealHands hands;
    int heard = 0;
    int presses = 0;
    const Subscription dragging = hands.desktop.addGlobalMonitor([&] { ++heard; });
    const Subscription pressing = hands.desktop.addLeftMouseDownMonitor([&] { ++presses; });
    ASSERT_TRUE(dragging.isActive() && pressing.isActive());
    settle();
    hands.press();
    hands.waitABit();
    ASSERT_EQ(presses, 1);
    // All of it is there before any is looked at: the server still tells motion then.
    hands.release();
    hands.press();
    hands.move();
    hands.release();
    hands.pressRight();
    settle();
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(heard, 0);
}

TEST(X11DragDesktop, leftPressesInOurOwnWindowsAreToldToo)
{
    RealHands hands;
    QWindow window;
    window.setFlag(Qt::X11BypassWindowManagerHint);
    window.setGeometry(200, 200, 100, 100);
    window.show();
    ASSERT_TRUE(eventually([&] { return window.isExposed(); }));
    int presses = 0;
    const Subscription monitor = hands.desktop.addLeftMouseDownMonitor([&] { ++presses; });
    ASSERT_TRUE(monitor.isActive());
    settle();
    hands.display.hands.moveTo({250, 250});
    hands.press();
    EXPECT_TRUE(eventually([&] { return presses == 1; }));
}

TEST(X11DragDesktop, startedInMidDragItHearsTheRest)
{
    RealHands hands;
    int heard = 0;
    hands.press();
    const Subscription monitor = hands.desktop.addGlobalMonitor([&] { ++heard; });
    ASSERT_TRUE(monitor.isActive());
    settle();
    hands.move();
    EXPECT_TRUE(eventually([&] { return heard > 0; }));
}

} // namespace corvane::test
