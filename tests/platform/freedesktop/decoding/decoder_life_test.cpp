// How the real decoder ends, as whoever started it sees it.

#include "platform/base/cancellation.h"
#include "platform/freedesktop/decoding/decoder_program.h"
#include "platform/freedesktop/sandbox/bounded_process.h"
#include "platform/freedesktop/sandbox/sandbox.h"
#include "platform/freedesktop/thumbnails/thumbnailer_registry.h"
#include "platform/pictures/decoder_protocol.h"
#include "platform/pictures/picture_memory.h"
#include "platform/system/packet_socket.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>

#include <optional>
#include <thread>
#include <utility>

namespace corvane {
namespace {

using decoder_protocol::Task;

/// A photograph that is drawn in so many steps, each of a few bytes, that it takes no memory, but
/// minutes.
QByteArray endlessPicture()
{
    constexpr int steps = 200'000;
    const QByteArray frame("\xff\xc2\0\x0b\x08\x08\0\x08\0\1\1\x11\0", 13);
    const QByteArray step("\xff\xda\0\x08\1\1\0\1\x3f\0\0\0\0\0\0\0\0\x0f", 18);
    return QByteArray("\xff\xd8\xff\xdb\0\x43\0", 7) + QByteArray(64, '\1') + frame
        + QByteArray("\xff\xc4\0\x14\x10\1", 6) + QByteArray(15, '\0') + '\xe0'
        + step.repeated(steps) + QByteArray("\xff\xd9");
}

/// Alone, and with what it was handed.
struct DecoderLife : testing::Test {
    static constexpr int patience = 60'000;

    void SetUp() override
    {
        const QByteArray file
            = QFile::encodeName(QCoreApplication::applicationDirPath()) + "/corvane-decoder";
        const DecoderProgram program(noSandbox, file);
        auto [ours, theirs] = packet_socket::makePair();
        Cancellation never;
        bounded_process::run(program.command(decoder_protocol::Room::Large), {60, 0}, never,
                             theirs);
        socket = std::move(ours);
        theirs = FileDescriptor();
        auto greeting = received();
        ASSERT_TRUE(greeting.has_value());
        ASSERT_EQ(greeting->descriptors.size(), 1U);
        process = std::move(greeting->descriptors.front());
    }

    static bool isReadable(const FileDescriptor &what, int milliseconds)
    {
        pollfd source = {what.number(), POLLIN, 0};
        return ::poll(&source, 1, milliseconds) == 1;
    }
    std::optional<packet_socket::Received> received() const
    {
        return isReadable(socket, patience)
            ? packet_socket::receive(socket, decoder_protocol::maximumPacket)
            : std::nullopt;
    }
    void ask(const QByteArray &contents, int milliseconds) const
    {
        decoder_protocol::Request request;
        request.task = Task::Thumbnail;
        request.wanted = {2'048, 2'048};
        request.milliseconds = milliseconds;
        const auto memory = picture_memory::of(contents);
        EXPECT_TRUE(
            packet_socket::send(socket, decoder_protocol::encoded(request), {memory.number()}));
    }
    /// The descriptor of a process is readable once it has ended.
    bool hasEnded() const { return isReadable(process, patience); }

    Sandbox noSandbox{QByteArrayList()};
    FileDescriptor socket;
    FileDescriptor process;
};

TEST_F(DecoderLife, EndsWithTheProgramInTheMiddleOfAPicture)
{
    ask(endlessPicture(), decoder_protocol::maximumMilliseconds);
    // It is gone, and can end nobody.
    socket = FileDescriptor();
    EXPECT_TRUE(hasEnded());
}

TEST_F(DecoderLife, EndsItselfWhereTheProgramDoesNot)
{
    ask(endlessPicture(), 1);
    EXPECT_TRUE(hasEnded());
}

TEST_F(DecoderLife, AnswersWithoutContentsAreNoneAndItEnds)
{
    decoder_protocol::Request request;
    request.milliseconds = 1'000;
    EXPECT_TRUE(packet_socket::send(socket, decoder_protocol::encoded(request)));
    EXPECT_TRUE(hasEnded());
    EXPECT_FALSE(received().has_value()) << "it said nothing";
}

TEST_F(DecoderLife, EndsWhereItUnderstandsNothing)
{
    EXPECT_TRUE(packet_socket::send(socket, "nonsense"));
    EXPECT_TRUE(hasEnded());
}

/// The shell that starts a decoder ends at once, which may be before or after the sandbox is made.
TEST(DecoderInTheSandbox, OutlivesTheShellThatStartedIt)
{
    const Sandbox sandbox(ThumbnailerRegistry::environmentProgramFolders());
    if (!sandbox.isAvailable())
        GTEST_SKIP() << "no program can be shut in here";
    const QByteArray file
        = QFile::encodeName(QCoreApplication::applicationDirPath()) + "/corvane-decoder";
    const QTemporaryDir folder;
    const QByteArray pipe = QFile::encodeName(folder.filePath(QStringLiteral("pipe")));
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    QByteArrayList command = DecoderProgram(sandbox, file).command(decoder_protocol::Room::Usual);
    ASSERT_EQ(command.value(1), "-c");
    command[2] += " read ignored < " + pipe;
    auto [ours, theirs] = packet_socket::makePair();
    std::thread shell([&command, &socket = theirs] {
        Cancellation never;
        bounded_process::run(command, {60, 0}, never, socket);
    });
    constexpr int patience = 60'000;
    pollfd source = {ours.number(), POLLIN, 0};
    EXPECT_EQ(::poll(&source, 1, patience), 1);
    EXPECT_TRUE(packet_socket::receive(ours, decoder_protocol::maximumPacket).has_value());
    const FileDescriptor let(::open(pipe.constData(), O_WRONLY | O_CLOEXEC));
    EXPECT_TRUE(let.write("\n"));
    shell.join();
    theirs = FileDescriptor();
    decoder_protocol::Request request;
    request.milliseconds = patience;
    const auto memory = picture_memory::of("no picture");
    EXPECT_TRUE(packet_socket::send(ours, decoder_protocol::encoded(request), {memory.number()}));
    EXPECT_EQ(::poll(&source, 1, patience), 1);
    EXPECT_TRUE(packet_socket::receive(ours, decoder_protocol::maximumPacket).has_value());
}

TEST(DecoderFile, NeedsNoWindowsNoNetworkAndNoOtherPrograms)
{
    QFile file(QCoreApplication::applicationDirPath() + QStringLiteral("/corvane-decoder"));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.contains("libQt6Gui.so"));
    for (const char *library : {"libQt6Widgets.so", "libQt6Network.so", "libQt6DBus.so",
                                "libQt6Svg.so", "libxcb", "libwayland", "libcurl"})
        EXPECT_FALSE(bytes.contains(library)) << library;
}

} // namespace
} // namespace corvane
