// Reading a selection from owners of every kind, with a clock of the test's own.

#include "fakes/test_clock.h"
#include "platform/display.h"
#include "platform/x11/drags/selection_reader.h"
#include "platform/x11_client.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace corvane::test {

namespace {

/// A program that owns the selection and hands over what it is told to, in pieces when it is large.
class Owner : public X11Client {
public:
    explicit Owner(QByteArray contents,
                   qsizetype stopsAfter = std::numeric_limits<qsizetype>::max())
        : X11Client({0, 0, 10, 10})
        , m_contents(std::move(contents))
        , m_stopsAfter(stopsAfter)
    {
        xcb_set_selection_owner(connection(), window(), atom("XdndSelection"), XCB_CURRENT_TIME);
        xcb_flush(connection());
        m_server.facts(window());
        startThread();
    }
    ~Owner() override { stopThread(); }

    /// Stops only after so many bytes from now on, and goes on where it has stopped.
    void goOnUntil(qsizetype stopsAfter)
    {
        const std::lock_guard lock(m_mutex);
        m_stopsAfter = stopsAfter;
        if (const auto news = std::exchange(m_unanswered, std::nullopt))
            send(*news);
        xcb_flush(connection());
    }

    /// Whether its reader has taken all that it was to give.
    bool hasStopped()
    {
        const std::lock_guard lock(m_mutex);
        return m_unanswered.has_value();
    }

    static constexpr qsizetype pieceBytes = 64 * 1024;

private:
    void handle(const xcb_generic_event_t &event) override
    {
        const int type = event.response_type & 0x7f;
        if (type == XCB_SELECTION_REQUEST)
            begin(reinterpret_cast<const xcb_selection_request_event_t &>(event));
        else if (type == XCB_PROPERTY_NOTIFY)
            goOn(reinterpret_cast<const xcb_property_notify_event_t &>(event));
    }
    void begin(const xcb_selection_request_event_t &request)
    {
        if (m_stopsAfter == 0)
            return;
        xcb_selection_notify_event_t notify = {};
        notify.response_type = XCB_SELECTION_NOTIFY;
        notify.requestor = request.requestor;
        notify.selection = request.selection;
        notify.target = request.target;
        notify.property = request.target == atom("text/plain") ? request.property : e2e::noAtom;
        if (m_contents.size() > pieceBytes) {
            const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
            xcb_change_window_attributes(connection(), request.requestor, XCB_CW_EVENT_MASK, &mask);
            const auto size = static_cast<std::uint32_t>(m_contents.size());
            xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, request.requestor,
                                request.property, atom("INCR"), 32, 1, &size);
        } else {
            xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, request.requestor,
                                request.property, request.target, 8,
                                static_cast<std::uint32_t>(m_contents.size()),
                                m_contents.constData());
        }
        xcb_send_event(connection(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                       reinterpret_cast<const char *>(&notify));
    }
    void goOn(const xcb_property_notify_event_t &news)
    {
        const std::lock_guard lock(m_mutex);
        if (news.state != XCB_PROPERTY_DELETE || news.window == window())
            return;
        if (m_sent < m_stopsAfter)
            send(news);
        else
            m_unanswered = news;
    }
    void send(const xcb_property_notify_event_t &news)
    {
        const QByteArray piece = m_contents.mid(m_sent, pieceBytes);
        xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, news.window, news.atom,
                            atom("text/plain"), 8, static_cast<std::uint32_t>(piece.size()),
                            piece.constData());
        m_sent += piece.size();
    }

    QByteArray m_contents;
    qsizetype m_stopsAfter;
    qsizetype m_sent = 0;
    std::optional<xcb_property_notify_event_t> m_unanswered;
};

class SelectionReaderTest : public testing::Test {
protected:
    using Outcome = SelectionReader::Outcome;
    void read(const char *type = "text/plain", qsizetype maximum = 100'000'000)
    {
        id = reader.read(connection.atom(type), XCB_CURRENT_TIME, maximum,
                         [this](Outcome result, const QByteArray &given) {
                             outcome = result;
                             bytes = given;
                         });
    }
    bool isOver()
    {
        return eventually([this] {
            clock.runPending();
            return outcome.has_value();
        });
    }
    /// Lets come what comes, and then time pass.
    void waitInVain(double seconds)
    {
        for (int i = 0; i < 20; ++i) {
            settleAMoment();
            clock.runPending();
        }
        clock.advance(seconds);
    }
    static void settleAMoment()
    {
        eventually([] { return false; }, std::chrono::milliseconds{10});
    }

    X11Connection connection;
    TestClock clock;
    SelectionReader reader{connection, clock, "XdndSelection"};
    SelectionReader::Id id = 0;
    std::optional<Outcome> outcome;
    QByteArray bytes;
};

} // namespace

TEST_F(SelectionReaderTest, bringsWhatFitsIntoOneProperty)
{
    const Owner owner("hello");
    read();
    ASSERT_TRUE(isOver());
    EXPECT_EQ(outcome, Outcome::Arrived);
    EXPECT_EQ(bytes, "hello");
    clock.advance(SelectionReader::patience);
    EXPECT_EQ(clock.pendingCount(), 0U) << "nothing wakes up any more";
}

TEST_F(SelectionReaderTest, bringsWhatComesInPieces)
{
    const QByteArray contents = numberedBytes(3'000'001);
    const Owner owner(contents);
    read();
    ASSERT_TRUE(isOver());
    EXPECT_EQ(outcome, Outcome::Arrived);
    EXPECT_TRUE(bytes == contents);
}

TEST_F(SelectionReaderTest, isRefusedWhatIsNotThere)
{
    const Owner owner("hello");
    read("image/png");
    ASSERT_TRUE(isOver());
    EXPECT_EQ(outcome, Outcome::Refused);
}

TEST_F(SelectionReaderTest, isRefusedWhereNobodyOwnsTheSelection)
{
    read();
    ASSERT_TRUE(isOver());
    EXPECT_EQ(outcome, Outcome::Refused);
}

TEST_F(SelectionReaderTest, takesNoMoreThanIsWanted)
{
    const Owner owner(numberedBytes(300'000));
    read("text/plain", 100'000);
    ASSERT_TRUE(isOver());
    EXPECT_EQ(outcome, Outcome::TooLarge);
    EXPECT_TRUE(bytes.isEmpty());
}

TEST_F(SelectionReaderTest, givesASilentOwnerUp)
{
    const Owner owner("hello", 0);
    read();
    waitInVain(SelectionReader::patience - 4);
    EXPECT_FALSE(outcome);
    clock.advance(8);
    EXPECT_EQ(outcome, Outcome::Lost);
    EXPECT_EQ(reader.count(), 0U);
}

TEST_F(SelectionReaderTest, givesAnOwnerUpThatStopsInTheMiddle)
{
    const Owner owner(numberedBytes(300'000), 130'000);
    read();
    waitInVain(SelectionReader::patience + 4);
    EXPECT_EQ(outcome, Outcome::Lost);
}

TEST_F(SelectionReaderTest, waitsForASlowOwnerThatGoesOn)
{
    const QByteArray contents = numberedBytes(300'000);
    Owner owner(contents, 100'000);
    read();
    waitInVain(SelectionReader::patience - 10);
    owner.goOnUntil(200'000);
    waitInVain(SelectionReader::patience - 10);
    EXPECT_FALSE(outcome) << "it has given something meanwhile";
    owner.goOnUntil(std::numeric_limits<qsizetype>::max());
    ASSERT_TRUE(isOver());
    EXPECT_EQ(bytes, contents);
}

TEST_F(SelectionReaderTest, givesAnOwnerUpThatNeverComesToAnEnd)
{
    constexpr int step = 20;
    constexpr auto steps = static_cast<qsizetype>(SelectionReader::longest) / step;
    Owner owner(QByteArray((steps + 2) * Owner::pieceBytes, 'x'), 1);
    read();
    for (qsizetype i = 1; i <= steps; ++i) {
        ASSERT_TRUE(eventually([&] {
            clock.runPending();
            return owner.hasStopped();
        }));
        EXPECT_FALSE(outcome) << "it gives something every time";
        owner.goOnUntil(i * Owner::pieceBytes + 1);
        clock.advance(step);
    }
    EXPECT_EQ(outcome, Outcome::Lost);
    EXPECT_EQ(reader.count(), 0U);
}

TEST_F(SelectionReaderTest, hearsThatItsOwnerEnds)
{
    auto owner = std::make_unique<Owner>("hello", 0);
    read();
    owner.reset();
    ASSERT_TRUE(isOver());
    EXPECT_EQ(outcome, Outcome::Lost);
}

TEST_F(SelectionReaderTest, hearsThatItsOwnerEndsInTheMiddle)
{
    auto owner = std::make_unique<Owner>(numberedBytes(300'000), 130'000);
    read();
    waitInVain(1);
    EXPECT_FALSE(outcome);
    owner.reset();
    ASSERT_TRUE(isOver());
    EXPECT_EQ(outcome, Outcome::Lost);
}

TEST_F(SelectionReaderTest, hearsThatItsOwnerEndsWhileAPieceIsBeingTaken)
{
    const auto settleAWhile = [] {
        for (int i = 0; i < 10; ++i)
            settleAMoment();
    };
    {
        const Owner owner(QByteArray(10 * Owner::pieceBytes, 'x'));
        read();
        // Its first answer is here and has not been looked at.
        settleAWhile();
    }
    settleAWhile();
    ASSERT_TRUE(isOver());
    EXPECT_EQ(outcome, Outcome::Lost);
}

TEST_F(SelectionReaderTest, cancelledTellsNobody)
{
    const Owner owner("hello", 0);
    read();
    reader.cancel(id);
    waitInVain(SelectionReader::patience + 4);
    EXPECT_FALSE(outcome);
    EXPECT_EQ(clock.pendingCount(), 0U);
}

} // namespace corvane::test
