#include "fakes/test_clock.h"
#include "platform/display.h"
#include "platform/x11/drags/incremental_transfers.h"
#include "platform/x11/drags/property_reader.h"
#include "platform/x11/drags/x11_drag_support.h"
#include "platform/x11_client.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// A program that reads what is put into a property of its window, up to a point.
class Reader : public X11Client {
public:
    explicit Reader(qsizetype stopsAfter = std::numeric_limits<qsizetype>::max())
        : X11Client({0, 0, 10, 10})
        , m_stopsAfter(stopsAfter)
        , m_reader(connection(), window(), atom("GIVEN"), atom("INCR"))
    {
        startThread();
    }
    ~Reader() override { stopThread(); }

    std::optional<QByteArray> received()
    {
        const std::lock_guard lock(m_mutex);
        return m_received;
    }
    bool hasStopped()
    {
        const std::lock_guard lock(m_mutex);
        return m_reader.size() >= m_stopsAfter;
    }

private:
    void handle(const xcb_generic_event_t &event) override
    {
        if ((event.response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
            return;
        const auto &news = reinterpret_cast<const xcb_property_notify_event_t &>(event);
        const std::lock_guard lock(m_mutex);
        if (news.atom != atom("GIVEN") || news.state != XCB_PROPERTY_NEW_VALUE
            || m_reader.size() >= m_stopsAfter)
            return;
        if (auto bytes = m_reader.take())
            m_received = std::move(bytes);
    }

    qsizetype m_stopsAfter;
    PropertyReader m_reader;
    std::optional<QByteArray> m_received;
};

class IncrementalTransfersTest : public testing::Test {
protected:
    bool begin(const Reader &reader, const QByteArray &contents)
    {
        const bool hasBegun = transfers.begin(reader.window(), connection.atom("GIVEN"),
                                              connection.atom("UTF8_STRING"), contents);
        connection.flush();
        return hasBegun;
    }
    bool allEnd()
    {
        return eventually([this] { return transfers.count() == 0; });
    }

    X11Connection connection;
    TestClock clock;
    IncrementalTransfers transfers{connection, clock};
    const QByteArray bytes = numberedBytes(2'000'001);
};

} // namespace

TEST_F(IncrementalTransfersTest, everyByteArrivesInOrder)
{
    Reader reader;
    ASSERT_TRUE(begin(reader, bytes));
    ASSERT_TRUE(eventually([&] { return reader.received().has_value(); }));
    EXPECT_TRUE(reader.received() == bytes);
    EXPECT_TRUE(allEnd());
}

TEST_F(IncrementalTransfersTest, contentsThatFillTheirPiecesAreEndedToo)
{
    Reader reader;
    const QByteArray twoPieces = numberedBytes(2 * IncrementalTransfers::pieceBytes);
    ASSERT_TRUE(begin(reader, twoPieces));
    ASSERT_TRUE(eventually([&] { return reader.received().has_value(); }));
    EXPECT_TRUE(reader.received() == twoPieces);
}

TEST_F(IncrementalTransfersTest, severalReadersAreServedAtOnceFromTheSameBytes)
{
    Reader first;
    Reader second;
    ASSERT_TRUE(begin(first, bytes));
    ASSERT_TRUE(begin(second, bytes));
    EXPECT_EQ(transfers.count(), 2U);
    ASSERT_TRUE(eventually([&] { return first.received() && second.received(); }));
    EXPECT_TRUE(first.received() == bytes);
    EXPECT_TRUE(second.received() == bytes);
    EXPECT_TRUE(allEnd());
}

TEST_F(IncrementalTransfersTest, aReaderThatDiesEndsItsOwnTransferAlone)
{
    Reader patient;
    auto dying = std::make_unique<Reader>(500'000);
    ASSERT_TRUE(begin(*dying, bytes));
    ASSERT_TRUE(eventually([&] { return dying->hasStopped(); }));
    ASSERT_TRUE(begin(patient, bytes));
    dying.reset();
    ASSERT_TRUE(eventually([&] { return patient.received().has_value(); }));
    EXPECT_TRUE(patient.received() == bytes);
    EXPECT_TRUE(allEnd());
    // Nothing is held any more, and no clock runs.
    EXPECT_TRUE(bytes.isDetached());
    clock.advance(IncrementalTransfers::patience);
    EXPECT_EQ(clock.pendingCount(), 0U);
}

TEST_F(IncrementalTransfersTest, aReaderThatTakesNothingForAWhileIsGivenUp)
{
    Reader stuck(500'000);
    ASSERT_TRUE(begin(stuck, bytes));
    ASSERT_TRUE(eventually([&] { return stuck.hasStopped(); }));
    settle();
    clock.advance(IncrementalTransfers::patience - 1);
    EXPECT_EQ(transfers.count(), 1U);
    clock.advance(IncrementalTransfers::patience);
    EXPECT_EQ(transfers.count(), 0U);
    EXPECT_EQ(clock.pendingCount(), 0U);
}

TEST_F(IncrementalTransfersTest, askingAnewForTheSamePropertyStartsAnew)
{
    Reader reader(500'000);
    ASSERT_TRUE(begin(reader, bytes));
    ASSERT_TRUE(eventually([&] { return reader.hasStopped(); }));
    ASSERT_TRUE(begin(reader, bytes));
    EXPECT_EQ(transfers.count(), 1U);
}

TEST_F(IncrementalTransfersTest, aWindowThatIsGoneIsRefused)
{
    auto reader = std::make_unique<Reader>();
    const xcb_window_t window = reader->window();
    reader.reset();
    Display display;
    ASSERT_TRUE(eventually([&] { return !display.server.facts(window); }));
    EXPECT_FALSE(
        transfers.begin(window, connection.atom("GIVEN"), connection.atom("UTF8_STRING"), bytes));
    EXPECT_EQ(transfers.count(), 0U);
    EXPECT_EQ(clock.pendingCount(), 0U);
}

TEST_F(IncrementalTransfersTest, moreThanWeCarryAreRefused)
{
    Reader reader(0);
    const auto beginNumber = [&](std::size_t number) {
        const QByteArray name = "GIVEN" + QByteArray::number(number);
        return transfers.begin(reader.window(), connection.atom(name.constData()),
                               connection.atom("UTF8_STRING"), bytes);
    };
    for (std::size_t i = 0; i < IncrementalTransfers::maximumTransfers; ++i)
        EXPECT_TRUE(beginNumber(i));
    EXPECT_FALSE(beginNumber(IncrementalTransfers::maximumTransfers));
    EXPECT_EQ(transfers.count(), IncrementalTransfers::maximumTransfers);
}

TEST_F(IncrementalTransfersTest, whatADragHandsOverGoesOnWhenTheNextOneBegins)
{
    X11DragSupport support(connection, clock);
    const auto drag = [&](const QByteArray &contents) {
        support.dragWillBegin({{QStringLiteral("image/png"), contents, {0}}}, true);
    };
    Reader reader;
    xcb_selection_request_event_t request = {};
    request.response_type = XCB_SELECTION_REQUEST;
    request.requestor = reader.window();
    request.selection = connection.atom("XdndSelection");
    request.target = connection.atom("image/png");
    request.property = connection.atom("GIVEN");
    drag(bytes);
    ASSERT_TRUE(support.nativeEventFilter("xcb_generic_event_t", &request, nullptr));
    drag("another");
    ASSERT_TRUE(eventually([&] { return reader.received().has_value(); }));
    EXPECT_TRUE(reader.received() == bytes);
}

} // namespace corvane::test
