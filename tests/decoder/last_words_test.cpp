#include "decoder/last_words.h"
#include "platform/pictures/decoder_protocol.h"
#include "platform/system/packet_socket.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <utility>

namespace corvane {
namespace {

using decoder_protocol::Outcome;

/// Each process that ends is a child of the test's.
struct LastWords : testing::Test {
    LastWords() { GTEST_FLAG_SET(death_test_style, "fast"); }

    std::optional<decoder_protocol::Reply> heard() const
    {
        const auto received = packet_socket::receive(ours, decoder_protocol::maximumPacket);
        return received ? decoder_protocol::parsedReply(received->packet) : std::nullopt;
    }

    static constexpr qint64 memory = 64LL * 1024 * 1024;
    std::pair<FileDescriptor, FileDescriptor> ends = packet_socket::makePair();
    const FileDescriptor &ours = ends.first;
    const FileDescriptor &theirs = ends.second;
};

/// Calls itself until the stack is full.
int deepest(int depth) // NOLINT(misc-no-recursion)
{
    std::array<char, 4096> used = {};
    volatile char *const first = used.data();
    *first = static_cast<char>(depth);
    return depth < 0 ? 0 : deepest(depth + 1) + *first;
}

TEST_F(LastWords, TellThatTheReaderCrashedAndOverWhat)
{
    for (const int signal : {SIGSEGV, SIGBUS, SIGABRT, SIGILL, SIGFPE, SIGTRAP, SIGXCPU, SIGALRM}) {
        EXPECT_EXIT(
            {
                last_words::prepare(theirs.number(), memory);
                last_words::begin(17);
                std::raise(signal);
            },
            testing::ExitedWithCode(EXIT_FAILURE), "");
        const auto reply = heard();
        ASSERT_TRUE(reply.has_value()) << signal;
        EXPECT_EQ(reply->number, 17U);
        EXPECT_EQ(reply->outcome, Outcome::Crashed);
    }
}

TEST_F(LastWords, AreSaidWhereTheStackIsFullToo)
{
    EXPECT_EXIT(
        {
            last_words::prepare(theirs.number(), memory);
            last_words::begin(1);
            std::exit(deepest(0));
        },
        testing::ExitedWithCode(EXIT_FAILURE), "");
    const auto reply = heard();
    ASSERT_TRUE(reply.has_value());
    EXPECT_EQ(reply->outcome, Outcome::Crashed);
}

TEST_F(LastWords, TellOfWantOfMemoryWhereHalfOfItIsNotLeft)
{
    EXPECT_EXIT(
        {
            last_words::prepare(theirs.number(), memory);
            rlimit none = {};
            ::setrlimit(RLIMIT_DATA, &none);
            last_words::begin(2);
            std::raise(SIGSEGV);
        },
        testing::ExitedWithCode(EXIT_FAILURE), "");
    const auto reply = heard();
    ASSERT_TRUE(reply.has_value());
    EXPECT_EQ(reply->outcome, Outcome::OverBounds);
}

TEST_F(LastWords, AreNoneBetweenRequests)
{
    EXPECT_EXIT(
        {
            last_words::prepare(theirs.number(), memory);
            last_words::begin(3);
            last_words::end();
            std::raise(SIGSEGV);
        },
        testing::ExitedWithCode(EXIT_FAILURE), "");
    EXPECT_FALSE(heard().has_value());
}

} // namespace
} // namespace corvane
