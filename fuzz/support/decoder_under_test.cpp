#include "support/decoder_under_test.h"

#include "platform/freedesktop/decoding/received_picture.h"
#include "platform/pictures/picture_memory.h"

#include <QGuiApplication>
#include <QImageReader>

#include <sys/mman.h>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace corvane::fuzz {

namespace {

using decoder_protocol::Formats;
using decoder_protocol::Outcome;
using decoder_protocol::Request;
using decoder_protocol::Task;

constexpr std::uint32_t document = 1;

Request about(Task task, QSize wanted = {}, int part = 0)
{
    Request request;
    request.task = task;
    request.wanted = wanted;
    request.part = part;
    request.milliseconds = 1'000;
    request.document
        = task == Task::Size || task == Task::Thumbnail || task == Task::Transcode ? 0 : document;
    return request;
}

void expect(bool isRight, const char *what)
{
    if (isRight)
        return;
    std::fprintf(stderr, "wrong: %s\n", what);
    std::abort();
}

/// Forwards, and back to one that was passed.
void showFrames(RequestHandler &handler, const QByteArray &contents)
{
    constexpr QSize limit{100, 100};
    for (const int part : {0, 1, 3, 1})
        served(handler, about(Task::Frame, limit, part), contents);
}

} // namespace

void boundPictures()
{
    constexpr int megabytes = 16;
    QImageReader::setAllocationLimit(megabytes);
}

RequestHandler::Answer served(RequestHandler &handler, const Request &request,
                              const QByteArray &contents)
{
    FileDescriptor target;
    if (request.task == Task::Transcode)
        target = FileDescriptor(::memfd_create("target", MFD_CLOEXEC));
    auto answer = handler.serve(request, picture_memory::of(contents), std::move(target));
    const auto &reply = answer.reply;
    expect(decoder_protocol::parsedReply(decoder_protocol::encoded(reply)) == reply,
           "the program does not accept the reply");
    expect(reply.pixels.has_value() == answer.pixels.isOpen(),
           "pixels without memory, or memory without pixels");
    if (reply.pixels) {
        const auto picture = receivedPicture(reply, answer.pixels);
        expect(picture.has_value(), "the memory is not what the reply says");
        expect(picture->width() <= request.wanted.width()
                   && picture->height() <= request.wanted.height(),
               "the picture is larger than what was asked for");
    }
    return answer;
}

void decode(const std::uint8_t *data, std::size_t size, Origin origin)
{
    const QByteArray contents(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    RequestHandler handler;
    boundPictures();
    served(handler, about(Task::Size), contents);
    Request fromWeb = about(Task::Thumbnail, {256, 256});
    fromWeb.formats = Formats::Web;
    const auto seen = served(handler, fromWeb, contents);
    expect(origin == Origin::WebAndDisk || seen.reply.outcome == Outcome::Unreadable,
           "it is read from the web");
    if (origin == Origin::DiskAlone)
        served(handler, about(Task::Thumbnail, {256, 256}), contents);
    const auto opened = served(handler, about(Task::Open, {500, 300}), contents);
    if (opened.reply.isAnimated)
        showFrames(handler, contents);
    if (opened.reply.outcome == Outcome::Made)
        served(handler, about(Task::Render, {120, 90}), contents);
    served(handler, about(Task::Transcode), contents);
}

} // namespace corvane::fuzz

extern "C" int LLVMFuzzerInitialize(int *count, char ***arguments)
{
    // Broken pictures are what all of this is about: what is said about them is not.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    qunsetenv("QT_QPA_PLATFORMTHEME");
    qputenv("QT_QPA_PLATFORM", "minimal:fontconfig");
    static auto *const application = new QGuiApplication(*count, *arguments);
    return application ? 0 : 1;
}
