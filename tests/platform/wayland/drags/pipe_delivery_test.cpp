// Pipes whose other end a test reads, with a clock of its own.

#include "fakes/test_clock.h"
#include "platform/display.h"
#include "platform/wayland/drags/pipe_delivery.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <optional>

namespace corvane::test {
namespace {

class PipeDeliveryTest : public testing::Test {
protected:
    PipeDeliveryTest()
    {
        std::array<int, 2> ends = {};
        EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
        reader = FileDescriptor(ends[0]);
        writer = FileDescriptor(ends[1]);
        ::fcntl(reader.number(), F_SETFL, O_NONBLOCK);
    }

    void begin(const QByteArray &bytes)
    {
        delivery.emplace(clock, std::move(writer), bytes,
                         Delivery::Events{[this] { ++progress; },
                                          [this](bool whole) {
                                              isWhole = whole;
                                              delivery.reset();
                                          }});
    }
    /// What is in the pipe now; `hasEnded` tells whether nothing more can come.
    QByteArray read()
    {
        QByteArray bytes(1024 * 1024, Qt::Uninitialized);
        const ssize_t size = ::read(reader.number(), bytes.data(), std::size_t(bytes.size()));
        hasEnded = size == 0;
        return bytes.left(std::max<ssize_t>(size, 0));
    }
    bool isWritten()
    {
        return eventually([this] { return delivery && delivery->isWritten(); });
    }
    bool isDecided()
    {
        return eventually([this] {
            clock.advance(PipeDelivery::slowestLook);
            return isWhole.has_value();
        });
    }

    FileDescriptor reader;
    FileDescriptor writer;
    TestClock clock;
    int progress = 0;
    std::optional<bool> isWhole;
    bool hasEnded = false;
    std::optional<PipeDelivery> delivery;
};

TEST_F(PipeDeliveryTest, givesTheBytesAndThenTheEnd)
{
    begin("bytes");
    ASSERT_TRUE(isWritten());
    EXPECT_EQ(read(), "bytes");
    EXPECT_EQ(read(), "");
    EXPECT_TRUE(hasEnded);
    ASSERT_TRUE(isDecided());
    EXPECT_TRUE(*isWhole);
}

TEST_F(PipeDeliveryTest, whatLiesUnreadIsNotTaken)
{
    begin("bytes");
    ASSERT_TRUE(isWritten());
    clock.advance(60);
    EXPECT_FALSE(isWhole);
    EXPECT_EQ(read(), "bytes");
    ASSERT_TRUE(isDecided());
    EXPECT_TRUE(*isWhole);
}

TEST_F(PipeDeliveryTest, looksAtOnceWhereItIsAskedTo)
{
    begin("bytes");
    ASSERT_TRUE(isWritten());
    delivery->look();
    EXPECT_FALSE(isWhole);
    read();
    delivery->look();
    EXPECT_EQ(isWhole, true);
}

TEST_F(PipeDeliveryTest, moreThanAPipeHoldsIsWrittenAsItIsRead)
{
    const QByteArray bytes(3 * 1024 * 1024 + 7, 'x');
    begin(bytes);
    QByteArray got;
    ASSERT_TRUE(eventually([&] {
        got += read();
        return hasEnded;
    }));
    EXPECT_EQ(got, bytes);
    EXPECT_GT(progress, 3);
    ASSERT_TRUE(isDecided());
    EXPECT_TRUE(*isWhole);
}

TEST_F(PipeDeliveryTest, aReaderThatGoesAwayHasNotTakenIt)
{
    begin(QByteArray(3 * 1024 * 1024, 'x'));
    ASSERT_TRUE(eventually([&] { return !read().isEmpty(); }));
    reader.close();
    ASSERT_TRUE(isDecided());
    EXPECT_FALSE(*isWhole);
}

TEST_F(PipeDeliveryTest, aReaderThatHasGoneBeforeEndsNobody)
{
    reader.close();
    begin("bytes");
    ASSERT_TRUE(isDecided());
    EXPECT_FALSE(*isWhole);
}

TEST_F(PipeDeliveryTest, nothingIsTakenAtOnce)
{
    begin("");
    ASSERT_TRUE(isDecided());
    EXPECT_TRUE(*isWhole);
    read();
    EXPECT_TRUE(hasEnded);
}

TEST_F(PipeDeliveryTest, closesThePipeWhenItGoesAway)
{
    begin(QByteArray(3 * 1024 * 1024, 'x'));
    delivery.reset();
    read();
    read();
    EXPECT_TRUE(hasEnded);
}

} // namespace
} // namespace corvane::test
