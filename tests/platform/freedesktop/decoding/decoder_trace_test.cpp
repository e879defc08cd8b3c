#include "platform/base/cancellation.h"
#include "platform/freedesktop/decoding/decoder_program.h"
#include "platform/freedesktop/sandbox/bounded_process.h"
#include "platform/freedesktop/sandbox/sandbox.h"
#include "platform/freedesktop/thumbnails/thumbnailer_registry.h"
#include "platform/pictures/decoder_protocol.h"
#include "platform/pictures/picture_memory.h"
#include "platform/system/packet_socket.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <thread>
#include <utility>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;
using decoder_protocol::Task;

QByteArray written(const char *format)
{
    QImage image(80, 60, QImage::Format_ARGB32);
    image.fill(qRgba(200, 30, 30, 100));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

QByteArray document()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    QPainter(&writer).drawText(500, 500, u"a text"_s);
    return bytes;
}

/// A drawing that asks for a file in every way there is, and for a font that is not there.
QByteArray curiousDrawing(const QByteArray &file)
{
    return "<?xml version='1.0'?><?xml-stylesheet href='" + file
        + "'?><!DOCTYPE svg [<!ENTITY outside SYSTEM 'file://" + file
        + "'>]><svg xmlns='http://www.w3.org/2000/svg' "
          "xmlns:xlink='http://www.w3.org/1999/xlink' width='60' height='60'><style>@import url("
        + file + ");</style><image width='9' height='9' xlink:href='" + file
        + "'/><image width='9' height='9' href='file://" + file + "'/><use xlink:href='" + file
        + "#a'/><rect width='9' height='9' fill='url(" + file
        + "#a)'/><text y='20' font-family='No Such Font'>a text</text></svg>";
}

/// What the decoder called, as strace writes it down.
class Trace {
public:
    /// From when the program was begun; what begins it and stands around it is left out.
    Trace(const QByteArray &lines, const QByteArray &program)
    {
        const QByteArray beginning = "execve(\"" + program + "\"";
        QSet<QByteArray> others;
        QByteArray decoder;
        for (const QByteArray &line : lines.split('\n')) {
            const QByteArray process = line.left(line.indexOf(' '));
            if (line.contains(beginning)) {
                decoder = process;
                others.remove(process);
            } else if (decoder.isEmpty()) {
                others.insert(process);
            } else if (!others.contains(process)) {
                m_lines << line;
            }
        }
    }

    const QByteArrayList &lines() const { return m_lines; }
    /// The lines with a call of which one of these is the name's beginning.
    QByteArrayList calls(const QByteArrayList &names) const
    {
        QByteArrayList found;
        for (const QByteArray &line : m_lines) {
            const QByteArray call = line.mid(line.indexOf(' ')).trimmed();
            if (std::ranges::any_of(names,
                                    [&](const QByteArray &name) { return call.startsWith(name); }))
                found << line;
        }
        return found;
    }

private:
    QByteArrayList m_lines;
};

/// The real decoder, watched from outside: by itself, or in the sandbox.
struct DecoderTrace : testing::TestWithParam<bool> {
    void SetUp() override
    {
        if (traced({"/bin/true"}, FileDescriptor()) != 0)
            GTEST_SKIP() << "no program may be traced here";
        if (GetParam() && !sandbox.isAvailable())
            GTEST_SKIP() << "no program can be shut in here";
    }

    /// The decoder closes itself to others of its user, so the tracer needs the rights of root, be
    /// it in a place of its own.
    int traced(const QByteArrayList &command, const FileDescriptor &handed) const
    {
        QByteArrayList arguments;
        if (::geteuid() != 0)
            arguments << QByteArrayList{"/usr/bin/unshare", "--map-root-user", "--"};
        arguments << QByteArrayList{"/usr/bin/strace", "-f", "-o",
                                    tracePath(),       "-e", "trace=%file,%network,%process"};
        Cancellation never;
        const auto result = bounded_process::run(arguments + command, {120, 1024}, never, handed);
        return result.outcome == bounded_process::Result::Outcome::Ended ? result.exitCode : -1;
    }
    QByteArray tracePath() const { return QFile::encodeName(folder.filePath(u"trace"_s)); }

    static packet_socket::Received awaited(const FileDescriptor &socket)
    {
        constexpr int patience = 60'000;
        pollfd source = {socket.number(), POLLIN, 0};
        if (::poll(&source, 1, patience) != 1)
            return {};
        return packet_socket::receive(socket, decoder_protocol::maximumPacket)
            .value_or(packet_socket::Received());
    }
    static decoder_protocol::Outcome asked(const FileDescriptor &socket, Task task,
                                           const QByteArray &contents)
    {
        decoder_protocol::Request request;
        request.task = task;
        request.wanted = {40, 30};
        request.document = task == Task::Render ? 1 : 0;
        request.milliseconds = 60'000;
        const auto memory = picture_memory::of(contents);
        EXPECT_TRUE(
            packet_socket::send(socket, decoder_protocol::encoded(request), {memory.number()}));
        const auto reply = decoder_protocol::parsedReply(awaited(socket).packet);
        return reply ? reply->outcome : decoder_protocol::Outcome::NoSuchPart;
    }

    /// What the decoder does from its beginning to its end, while `conversation` takes place.
    template<class Conversation>
    Trace traceOf(Conversation conversation) const
    {
        const QByteArray file
            = QFile::encodeName(QCoreApplication::applicationDirPath()) + "/corvane-decoder";
        const DecoderProgram program(GetParam() ? sandbox : noSandbox, file);
        auto [ours, theirs] = packet_socket::makePair();
        const QByteArrayList command = program.command(decoder_protocol::Room::Large);
        std::thread tracing([&] { traced(command, theirs); });
        const bool hasBegun = decoder_protocol::parsedGreeting(awaited(ours).packet).has_value();
        EXPECT_TRUE(hasBegun);
        if (hasBegun)
            conversation(ours);
        // Without it the decoder ends.
        ours = FileDescriptor();
        tracing.join();
        QFile trace(QFile::decodeName(tracePath()));
        EXPECT_TRUE(trace.open(QFile::ReadOnly));
        return {trace.readAll(), file};
    }

    QTemporaryDir folder;
    Sandbox sandbox{ThumbnailerRegistry::environmentProgramFolders()};
    Sandbox noSandbox{QByteArrayList()};
};

/// What its libraries need: themselves, fonts, and what the system says about itself.
bool isAllowedPlace(const QByteArray &path)
{
    const QByteArray home = QFile::encodeName(QDir::homePath());
    const QByteArrayList places = {"/usr/",
                                   "/lib/",
                                   "/lib64/",
                                   "/etc/ld.so.",
                                   "/etc/fonts",
                                   "/var/cache/fontconfig",
                                   "/proc/self/",
                                   "/proc/sys/",
                                   "/proc/filesystems",
                                   "/proc/meminfo",
                                   "/proc/cpuinfo",
                                   "/proc/stat",
                                   "/sys/devices/system/cpu",
                                   "/dev/urandom",
                                   home + "/.fonts",
                                   home + "/.local/share/fonts",
                                   home + "/.cache/fontconfig",
                                   home + "/.config/fontconfig",
                                   QFile::encodeName(QCoreApplication::applicationDirPath())};
    return std::ranges::any_of(places,
                               [&](const QByteArray &place) { return path.startsWith(place); });
}

TEST_P(DecoderTrace, OpensNothingButWhatItsLibrariesNeed)
{
    const QByteArray secret = QFile::encodeName(folder.filePath(u"secret.png"_s));
    QFile file(QFile::decodeName(secret));
    ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(written("png")) > 0);
    file.close();
    const Trace trace = traceOf([&](const FileDescriptor &socket) {
        for (const char *format : {"png", "jpg", "webp", "tiff", "bmp", "ppm", "xpm", "ico"})
            EXPECT_EQ(asked(socket, Task::Thumbnail, written(format)),
                      decoder_protocol::Outcome::Made)
                << format;
        EXPECT_EQ(asked(socket, Task::Open, curiousDrawing(secret)),
                  decoder_protocol::Outcome::Made);
        EXPECT_EQ(asked(socket, Task::Thumbnail, "none of all"),
                  decoder_protocol::Outcome::Unreadable);
        asked(socket, Task::Render, document());
    });
    static const QRegularExpression quoted(u"\"([^\"]*)\""_s);
    const QByteArrayList opens = trace.calls({"open"});
    EXPECT_FALSE(opens.isEmpty());
    for (const QByteArray &line : opens) {
        const QByteArray path = quoted.match(QString::fromUtf8(line)).captured(1).toUtf8();
        EXPECT_TRUE(isAllowedPlace(path)) << line.constData();
        for (const char *flag : {"O_WRONLY", "O_RDWR", "O_CREAT", "O_TMPFILE"})
            EXPECT_FALSE(line.contains(flag)) << line.constData();
    }
    for (const QByteArray &line : trace.lines())
        EXPECT_FALSE(line.contains(secret)) << line.constData();
    for (const QByteArray &line : trace.calls({"mkdir", "mknod", "link", "symlink", "unlink",
                                               "rename", "chmod", "fchmod", "chown", "truncate"}))
        EXPECT_TRUE(line.contains(" = -1 ")) << line.constData();
    for (const QByteArray &line :
         trace.calls({"socket(", "connect(", "bind(", "execve", "fork", "vfork"}))
        ADD_FAILURE() << line.constData();
}

INSTANTIATE_TEST_SUITE_P(Layers, DecoderTrace, testing::Bool(), [](const auto &shutIn) {
    return std::string(shutIn.param ? "ShutIn" : "Alone");
});

} // namespace
} // namespace corvane
