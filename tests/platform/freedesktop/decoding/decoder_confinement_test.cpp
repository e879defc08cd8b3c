// What the decoder has given up before it is told anything, as the system knows it.

#include "platform/base/cancellation.h"
#include "platform/freedesktop/decoding/decoder_program.h"
#include "platform/freedesktop/sandbox/bounded_process.h"
#include "platform/freedesktop/sandbox/sandbox.h"
#include "platform/freedesktop/thumbnails/thumbnailer_registry.h"
#include "platform/pictures/decoder_protocol.h"
#include "platform/system/packet_socket.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <poll.h>

#include <tuple>
#include <utility>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;
using decoder_protocol::Room;

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// "Name: value", one a line.
QByteArray valueOf(const QByteArray &text, const QByteArray &name)
{
    const QByteArray beginning = name + ':';
    for (const QByteArray &line : text.split('\n')) {
        if (line.startsWith(beginning))
            return line.mid(name.size() + 1).trimmed();
    }
    return {};
}

/// The real decoder, with each room, by itself and in the sandbox.
struct DecoderConfinement : testing::TestWithParam<std::tuple<Room, bool>> {
    void SetUp() override
    {
        const auto [room, isShutIn] = GetParam();
        if (isShutIn && !sandbox.isAvailable())
            GTEST_SKIP() << "no program can be shut in here";
        const QByteArray file
            = QFile::encodeName(QCoreApplication::applicationDirPath()) + "/corvane-decoder";
        const DecoderProgram program(isShutIn ? sandbox : noSandbox, file);
        auto [ours, theirs] = packet_socket::makePair();
        Cancellation never;
        bounded_process::run(program.command(room), {60, 0}, never, theirs);
        theirs = FileDescriptor();
        constexpr int patience = 60'000;
        pollfd source = {ours.number(), POLLIN, 0};
        ASSERT_EQ(::poll(&source, 1, patience), 1);
        auto received = packet_socket::receive(ours, decoder_protocol::maximumPacket);
        ASSERT_TRUE(received.has_value());
        greeting = decoder_protocol::parsedGreeting(received->packet).value();
        ASSERT_EQ(received->descriptors.size(), 1U);
        const QString number = QString::number(received->descriptors.front().number());
        const QByteArray information = contents(u"/proc/self/fdinfo/"_s + number);
        process = u"/proc/"_s + QString::fromLatin1(valueOf(information, "Pid"));
        socket = std::move(ours);
    }

    static constexpr qsizetype soft = 0;
    static constexpr qsizetype hard = 1;

    qint64 limit(const QByteArray &name, qsizetype kind = hard) const
    {
        constexpr qsizetype column = 26;
        const QByteArray beginning = name + ' ';
        for (const QByteArray &line : contents(process + u"/limits"_s).split('\n')) {
            if (line.startsWith(beginning))
                return line.mid(column).simplified().split(' ').value(kind).toLongLong();
        }
        return -1;
    }

    Sandbox sandbox{ThumbnailerRegistry::environmentProgramFolders()};
    Sandbox noSandbox{QByteArrayList()};
    decoder_protocol::Greeting greeting;
    /// The decoder ends with it.
    FileDescriptor socket;
    QString process;
};

TEST_P(DecoderConfinement, HasTheLimitsOfItsRoom)
{
    EXPECT_TRUE(greeting.hasLimits);
    const Room room = std::get<0>(GetParam());
#if !defined(__SANITIZE_ADDRESS__)
    // A sanitizer's own memory is above any bound.
    EXPECT_EQ(limit("Max data size"), decoder_protocol::memoryIn(room));
    EXPECT_EQ(limit("Max address space"), 128LL * 1024 * 1024 * 1024);
#endif
    EXPECT_EQ(limit("Max file size"), decoder_protocol::decodedBytesIn(room) * 5 / 4);
    EXPECT_EQ(limit("Max cpu time", soft), 120);
    EXPECT_EQ(limit("Max cpu time"), 122) << "time to say so";
    EXPECT_EQ(limit("Max open files"), 64);
    EXPECT_EQ(limit("Max core file size"), 0);
    const bool isShutIn = std::get<1>(GetParam());
    EXPECT_EQ(limit("Max processes") == 512, isShutIn) << "elsewhere others would be counted, too";
}

TEST_P(DecoderConfinement, AllItsThreadsAreFilteredAndGetNoNewPrivileges)
{
    EXPECT_TRUE(greeting.hasFilter);
    const auto threads = QDir(process + u"/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    EXPECT_GE(threads.size(), 2) << "the one that decodes, and the one that ends it";
    for (const QString &thread : threads) {
        const QByteArray status = contents(process + u"/task/"_s + thread + u"/status"_s);
        EXPECT_EQ(valueOf(status, "NoNewPrivs"), "1");
        EXPECT_EQ(valueOf(status, "Seccomp"), "2");
    }
}

TEST(DecoderRooms, TogetherStayBelowWhatASmallMachineHas)
{
    constexpr qint64 most = 600'000'000;
    constexpr qint64 programAndLibraries = 100'000'000;
    EXPECT_LE(decoder_protocol::memoryIn(Room::Usual) + decoder_protocol::memoryIn(Room::Large),
              most - programAndLibraries);
}

std::string nameOf(const testing::TestParamInfo<std::tuple<Room, bool>> &layers)
{
    const bool isLarge = std::get<0>(layers.param) == Room::Large;
    const bool isShutIn = std::get<1>(layers.param);
    return std::string(isLarge ? "Large" : "Usual") + (isShutIn ? "ShutIn" : "Alone");
}

INSTANTIATE_TEST_SUITE_P(Layers, DecoderConfinement,
                         testing::Combine(testing::Values(Room::Usual, Room::Large),
                                          testing::Bool()),
                         nameOf);

} // namespace
} // namespace corvane
