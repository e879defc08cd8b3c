#include "decoder/decoder_loop.h"
#include "platform/pictures/picture_memory.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>

namespace corvane {
namespace {

using decoder_protocol::Room;

/// The process that decodes is a child of the test's.
struct DecoderLoopTest : testing::Test {
    DecoderLoopTest() { GTEST_FLAG_SET(death_test_style, "fast"); }

    /// Until it ends by itself.
    [[noreturn]] void decode(DecoderLoop::Life life)
    {
        // One that waits longer than any test is ended.
        constexpr unsigned int patience = 30;
        ::alarm(patience);
        ends.first = FileDescriptor();
        ::_exit(DecoderLoop(std::move(ends.second), Room::Usual, life).run());
    }
    void ask(std::uint32_t number) const
    {
        decoder_protocol::Request request;
        request.number = number;
        request.milliseconds = 1'000;
        const auto memory = picture_memory::of("no picture");
        EXPECT_TRUE(
            packet_socket::send(ends.first, decoder_protocol::encoded(request), {memory.number()}));
    }
    QByteArray heard() const
    {
        const auto received = packet_socket::receive(ends.first, decoder_protocol::maximumPacket);
        return received ? received->packet : QByteArray();
    }

    std::pair<FileDescriptor, FileDescriptor> ends = packet_socket::makePair();
};

TEST_F(DecoderLoopTest, SaysFarewellAndEndsWhenNothingIsAskedForAWhile)
{
    EXPECT_EXIT(decode({.idle = 1}), testing::ExitedWithCode(EXIT_SUCCESS), "");
    EXPECT_TRUE(decoder_protocol::parsedGreeting(heard()).has_value());
    EXPECT_TRUE(decoder_protocol::isFarewell(heard()));
}

TEST_F(DecoderLoopTest, AnswersWhatWasAskedBefore)
{
    ask(17);
    EXPECT_EXIT(decode({.idle = 1}), testing::ExitedWithCode(EXIT_SUCCESS), "");
    EXPECT_TRUE(decoder_protocol::parsedGreeting(heard()).has_value());
    const auto reply = decoder_protocol::parsedReply(heard());
    ASSERT_TRUE(reply.has_value());
    EXPECT_EQ(reply->number, 17U);
    EXPECT_EQ(reply->outcome, decoder_protocol::Outcome::Unreadable);
    EXPECT_TRUE(decoder_protocol::isFarewell(heard()));
}

TEST_F(DecoderLoopTest, OneThatHasWorkedEnoughLeavesTheNextRequestToAnother)
{
    ask(17);
    EXPECT_EXIT(decode({.idle = 1, .work = 0}), testing::ExitedWithCode(EXIT_SUCCESS), "");
    EXPECT_TRUE(decoder_protocol::parsedGreeting(heard()).has_value());
    EXPECT_TRUE(decoder_protocol::isFarewell(heard()));
}

} // namespace
} // namespace corvane
