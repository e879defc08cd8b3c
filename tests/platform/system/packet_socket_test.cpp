#include "platform/pictures/picture_memory.h"
#include "platform/system/packet_socket.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

struct PacketSocketTest : testing::Test {
    std::pair<FileDescriptor, FileDescriptor> ends = packet_socket::makePair();
    const FileDescriptor &ours = ends.first;
    FileDescriptor &theirs = ends.second;
};

TEST_F(PacketSocketTest, KeepsPacketsApart)
{
    ASSERT_TRUE(packet_socket::send(ours, "one"));
    ASSERT_TRUE(packet_socket::send(ours, "two"));
    EXPECT_EQ(packet_socket::receive(theirs, 100)->packet, "one");
    EXPECT_EQ(packet_socket::receive(theirs, 100)->packet, "two");
    EXPECT_FALSE(packet_socket::receive(theirs, 100).has_value());
}

TEST_F(PacketSocketTest, CarriesDescriptors)
{
    const FileDescriptor first = picture_memory::of("first");
    const FileDescriptor second = picture_memory::of("the second");
    ASSERT_TRUE(packet_socket::send(ours, "two", {first.number(), second.number()}));
    const auto received = packet_socket::receive(theirs, 100);
    ASSERT_TRUE(received.has_value());
    ASSERT_EQ(received->descriptors.size(), 2U);
    EXPECT_TRUE(picture_memory::isSound(received->descriptors[0], 5));
    EXPECT_TRUE(picture_memory::isSound(received->descriptors[1], 10));
}

TEST_F(PacketSocketTest, RefusesAPacketThatIsTooLong)
{
    const FileDescriptor memory = picture_memory::of("memory");
    ASSERT_TRUE(packet_socket::send(ours, QByteArray(101, 'x'), {memory.number()}));
    EXPECT_FALSE(packet_socket::receive(theirs, 100).has_value());
}

TEST_F(PacketSocketTest, ReadsWhatWasSentByAnEndThatLeftSomethingUnread)
{
    ASSERT_TRUE(packet_socket::send(ours, "never read"));
    ASSERT_TRUE(packet_socket::send(theirs, "farewell"));
    theirs = FileDescriptor();
    const auto received = packet_socket::receive(ours, 100);
    ASSERT_TRUE(received.has_value());
    EXPECT_EQ(received->packet, "farewell");
    EXPECT_FALSE(packet_socket::receive(ours, 100).has_value());
}

TEST_F(PacketSocketTest, NoticesThatTheOtherEndIsGone)
{
    theirs = FileDescriptor();
    EXPECT_FALSE(packet_socket::send(ours, "packet"));
    EXPECT_FALSE(packet_socket::receive(ours, 100).has_value());
}

TEST_F(PacketSocketTest, TellsWhetherTheOtherEndHadReadEverything)
{
    for (const bool reads : {true, false}) {
        auto [asking, asked] = packet_socket::makePair();
        ASSERT_TRUE(packet_socket::send(asking, "question"));
        if (reads) {
            EXPECT_TRUE(packet_socket::receive(asked, 100).has_value());
        }
        asked.close();
        bool wasUnread = reads;
        EXPECT_FALSE(packet_socket::receive(asking, 100, &wasUnread).has_value());
        EXPECT_EQ(wasUnread, !reads);
    }
}

} // namespace
} // namespace corvane
