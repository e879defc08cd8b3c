// The connection beside Qt's own.

#include "platform/display.h"
#include "platform/x11/base/x11_connection.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <sys/socket.h>

#include <csignal>
#include <future>
#include <thread>

namespace corvane::test {

namespace {

class X11ConnectionTest : public testing::Test {
protected:
    X11ConnectionTest()
        : window(xcb_generate_id(connection.get()))
    {
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_create_window(connection.get(), XCB_COPY_FROM_PARENT, window, connection.root(), 0, 0,
                          1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
                          XCB_CW_EVENT_MASK, &events);
        listener = connection.addListener([this](const xcb_generic_event_t &event) {
            const auto &news = reinterpret_cast<const xcb_property_notify_event_t &>(event);
            if ((event.response_type & 0x7f) == XCB_PROPERTY_NOTIFY && news.window == window)
                heard.push_back(news.atom);
        });
    }
    void touch(xcb_atom_t property)
    {
        xcb_change_property(connection.get(), XCB_PROP_MODE_REPLACE, window, property,
                            XCB_ATOM_CARDINAL, 32, 0, nullptr);
    }

    X11Connection connection;
    xcb_window_t window;
    std::vector<xcb_atom_t> heard;
    Subscription listener;
};

} // namespace

TEST_F(X11ConnectionTest, theServersTimeNeverRunsBackwards)
{
    const xcb_timestamp_t first = connection.serverTime();
    EXPECT_NE(first, xcb_timestamp_t{XCB_CURRENT_TIME});
    EXPECT_GE(connection.serverTime(), first);
}

TEST_F(X11ConnectionTest, aServerThatStandsStillIsNotWaitedForAndItsLateAnswerIsNoLaterTime)
{
    connection.serverTime();
    ucred server = {};
    socklen_t size = sizeof server;
    ASSERT_EQ(::getsockopt(xcb_get_file_descriptor(connection.get()), SOL_SOCKET, SO_PEERCRED,
                           &server, &size),
              0);
    ASSERT_EQ(::kill(server.pid, SIGSTOP), 0);
    std::promise<void> answered;
    bool isAnsweredInTime = false;
    // Whatever happens the server goes on, or this test would never end.
    std::thread rescue([&, answer = answered.get_future()] {
        isAnsweredInTime = answer.wait_for(std::chrono::seconds{20}) == std::future_status::ready;
        ::kill(server.pid, SIGCONT);
    });
    const xcb_timestamp_t late = connection.serverTime();
    answered.set_value();
    rescue.join();
    EXPECT_TRUE(isAnsweredInTime);
    EXPECT_EQ(late, xcb_timestamp_t{XCB_CURRENT_TIME});
    const xcb_timestamp_t after = connection.serverTime();
    EXPECT_NE(after, xcb_timestamp_t{XCB_CURRENT_TIME});
    EXPECT_GE(connection.serverTime(), after);
}

TEST_F(X11ConnectionTest, eventsThatComeWhileTheTimeIsAskedForAreHandledAfterwardsInTheirOrder)
{
    touch(XCB_ATOM_WM_NAME);
    touch(XCB_ATOM_WM_CLASS);
    connection.serverTime();
    EXPECT_TRUE(heard.empty()) << "nobody is told in the middle of something else";
    touch(XCB_ATOM_WM_HINTS);
    connection.flush();
    ASSERT_TRUE(eventually([this] { return heard.size() == 3; }));
    EXPECT_EQ(heard,
              (std::vector<xcb_atom_t>{XCB_ATOM_WM_NAME, XCB_ATOM_WM_CLASS, XCB_ATOM_WM_HINTS}));
}

TEST_F(X11ConnectionTest, aListenerMayAskForTheTime)
{
    const Subscription asking
        = connection.addListener([this](const xcb_generic_event_t &) { connection.serverTime(); });
    touch(XCB_ATOM_WM_NAME);
    touch(XCB_ATOM_WM_CLASS);
    touch(XCB_ATOM_WM_HINTS);
    connection.flush();
    ASSERT_TRUE(eventually([this] { return heard.size() == 3; }));
    EXPECT_EQ(heard,
              (std::vector<xcb_atom_t>{XCB_ATOM_WM_NAME, XCB_ATOM_WM_CLASS, XCB_ATOM_WM_HINTS}));
}

} // namespace corvane::test
