// The connection beside Qt's own.

#include "platform/display.h"
#include "platform/silent_server.h"
#include "platform/x11/base/x11_connection.h"
#include "platform/x11/base/x11_qt.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>

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

    bool hasAnswer()
    {
        return connection.reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus(connection.get()))
            != nullptr;
    }
    bool endsWhileTheServerStandsStill(const std::function<void()> &work)
    {
        return test::endsWhileTheServerStandsStill(connection.get(), work);
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
    auto late = xcb_timestamp_t{0} - 1;
    EXPECT_TRUE(endsWhileTheServerStandsStill([&] { late = connection.serverTime(); }));
    EXPECT_EQ(late, xcb_timestamp_t{XCB_CURRENT_TIME});
    const xcb_timestamp_t after = connection.serverTime();
    EXPECT_NE(after, xcb_timestamp_t{XCB_CURRENT_TIME});
    EXPECT_GE(connection.serverTime(), after);
}

TEST_F(X11ConnectionTest, anAnswerThatDoesNotComeIsNotWaitedForForEver)
{
    EXPECT_TRUE(hasAnswer());
    EXPECT_TRUE(connection.isAnswering());
    EXPECT_TRUE(endsWhileTheServerStandsStill([&] {
        // More than the socket takes before sending would block.
        for (int i = 0; i < 1'000; ++i)
            EXPECT_FALSE(hasAnswer());
        EXPECT_FALSE(connection.isAnswering());
        EXPECT_EQ(connection.atom("CORVANE_UNHEARD_OF"), xcb_atom_t{XCB_NONE});
    }));
    EXPECT_TRUE(eventually([this] { return hasAnswer(); }));
    EXPECT_NE(connection.atom("CORVANE_UNHEARD_OF"), xcb_atom_t{XCB_NONE});
    EXPECT_NE(connection.serverTime(), xcb_timestamp_t{XCB_CURRENT_TIME});
}

TEST_F(X11ConnectionTest, ofAllThatIsAskedInOneSilenceTheFirstAloneIsWaitedFor)
{
    for (int silence = 0; silence < 2; ++silence) {
        // Far longer than the server stands still, were each of them waited for.
        EXPECT_TRUE(endsWhileTheServerStandsStill([&] {
            for (int i = 0; i < 300; ++i) {
                EXPECT_FALSE(hasAnswer());
                EXPECT_EQ(connection.serverTime(), xcb_timestamp_t{XCB_CURRENT_TIME});
            }
        }));
        EXPECT_TRUE(eventually([this] { return hasAnswer(); }));
    }
}

TEST_F(X11ConnectionTest, anAnswerOnTheToolkitsConnectionIsNotWaitedForForEver)
{
    const auto hasAnswerThere = [] {
        return x11_qt::reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus(x11_qt::connection()))
            != nullptr;
    };
    EXPECT_TRUE(hasAnswerThere());
    EXPECT_TRUE(endsWhileTheServerStandsStill([&] {
        // Each by itself would be waited for.
        for (int i = 0; i < 40; ++i)
            EXPECT_FALSE(hasAnswerThere());
    }));
    EXPECT_TRUE(eventually(hasAnswerThere));
}

TEST_F(X11ConnectionTest, tellsWhatBecameOfRequests)
{
    using Outcome = X11Connection::Outcome;
    const auto outcomeOf = [this](std::initializer_list<xcb_window_t> windows) {
        std::vector<xcb_void_cookie_t> requests;
        for (const xcb_window_t asked : windows)
            requests.push_back(
                xcb_change_window_attributes_checked(connection.get(), asked, 0, nullptr));
        return connection.outcomeOf(requests);
    };
    const xcb_window_t nothing = xcb_generate_id(connection.get());
    EXPECT_EQ(outcomeOf({window, window}), Outcome::Done);
    EXPECT_EQ(outcomeOf({window, nothing}), Outcome::Refused);
    EXPECT_EQ(outcomeOf({nothing, window}), Outcome::Refused);
    EXPECT_EQ(outcomeOf({window}), Outcome::Done);
    EXPECT_TRUE(endsWhileTheServerStandsStill([&] {
        EXPECT_EQ(outcomeOf({nothing, window}), Outcome::Unknown);
    }));
    EXPECT_TRUE(eventually([&] { return outcomeOf({window}) == Outcome::Done; }));
}

TEST_F(X11ConnectionTest, eventsThatComeBeforeAnAnswerAreHandledAfterwardsInTheirOrder)
{
    touch(XCB_ATOM_WM_NAME);
    EXPECT_TRUE(hasAnswer());
    touch(XCB_ATOM_WM_CLASS);
    EXPECT_TRUE(hasAnswer());
    EXPECT_TRUE(heard.empty()) << "nobody is told in the middle of something else";
    touch(XCB_ATOM_WM_HINTS);
    connection.flush();
    ASSERT_TRUE(eventually([this] { return heard.size() == 3; }));
    EXPECT_EQ(heard,
              (std::vector<xcb_atom_t>{XCB_ATOM_WM_NAME, XCB_ATOM_WM_CLASS, XCB_ATOM_WM_HINTS}));
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
