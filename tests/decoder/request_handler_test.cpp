#include "decoder/request_handler.h"
#include "platform/pictures/picture_memory.h"

#include <QBuffer>
#include <QFile>
#include <QImage>

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

namespace corvane {
namespace {

using decoder_protocol::Outcome;
using decoder_protocol::Room;
using decoder_protocol::Task;

QByteArray written(QSize size, const char *format = "png")
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

TEST(RequestHandlerTest, AThumbnailFitsIntoAnOblongToo)
{
    RequestHandler handler;
    for (const QSize wanted : {QSize(100, 20), QSize(20, 100)}) {
        decoder_protocol::Request request;
        request.task = decoder_protocol::Task::Thumbnail;
        request.wanted = wanted;
        request.milliseconds = 1'000;
        const auto answer
            = handler.serve(request, picture_memory::of(written({200, 200})), FileDescriptor());
        ASSERT_TRUE(answer.reply.pixels.has_value());
        EXPECT_EQ(answer.reply.pixels->size, QSize(20, 20));
    }
}

decoder_protocol::Outcome outcomeIn(Room room, Task task, const QByteArray &contents)
{
    RequestHandler handler(room);
    decoder_protocol::Request request;
    request.task = task;
    request.wanted = {100, 100};
    request.document = 1;
    request.milliseconds = 1'000;
    return handler
        .serve(request, picture_memory::of(contents),
               FileDescriptor(::memfd_create("target", MFD_CLOEXEC)))
        .reply.outcome;
}

TEST(RequestHandlerTest, APictureThatIsTooLargeForTheUsualRoomIsMadeInALargeOne)
{
    // 68 MB, all of which the library has to decode.
    const QByteArray large = written({17'000, 1'000});
    for (const Task task : {Task::Thumbnail, Task::Open, Task::Transcode}) {
        EXPECT_EQ(outcomeIn(Room::Usual, task, large), Outcome::OverBounds);
        EXPECT_EQ(outcomeIn(Room::Large, task, large), Outcome::Made);
    }
}

TEST(RequestHandlerTest, APhotographThatIsScaledWhileItIsDecodedNeedsNoLargeRoom)
{
    const QByteArray photograph = written({8'000, 6'000}, "jpeg");
    for (const Task task : {Task::Thumbnail, Task::Open})
        EXPECT_EQ(outcomeIn(Room::Usual, task, photograph), Outcome::Made);
}

TEST(RequestHandlerTest, WhatIsBrokenIsSoInTheUsualRoomToo)
{
    for (const char *format : {"png", "jpeg", "tiff"}) {
        const QByteArray whole = written({300, 300}, format);
        const QByteArray broken = whole.left(whole.size() / 50);
        EXPECT_EQ(outcomeIn(Room::Usual, Task::Thumbnail, broken), Outcome::Unreadable) << format;
    }
}

TEST(RequestHandlerTest, DocumentsNeedALargeRoom)
{
    EXPECT_EQ(outcomeIn(Room::Usual, Task::Open, "%PDF-1.4\n"), Outcome::OverBounds);
    EXPECT_EQ(outcomeIn(Room::Large, Task::Open, "%PDF-1.4\n"), Outcome::Unreadable);
}

TEST(RequestHandlerTest, MorePixelsThanMayBeDecodedAreNotBegun)
{
    RequestHandler handler;
    decoder_protocol::Request request;
    request.task = Task::Render;
    request.wanted = {30'000, 30'000};
    request.document = 1;
    request.milliseconds = 1'000;
    const auto answer
        = handler.serve(request, picture_memory::of(written({20, 10})), FileDescriptor());
    EXPECT_EQ(answer.reply.outcome, Outcome::OverBounds);
}

/// Two opaque frames: the first is red all over, of the second no more than a pixel is there.
QByteArray largeAnimation()
{
    // 2,400 runs of 510 pixels: each code of three bits is followed by others before it is
    // forgotten again.
    constexpr int runs = 2'400;
    const QByteArray run = '\xff' + QByteArray("\x4c\xc2\x24", 3).repeated(85);
    QByteArray gif("GIF89a\xfc\x03\xb0\x04\x80\0\0", 13);
    gif += QByteArray("\0\0\xff\xff\0\0", 6);
    gif += QByteArray("!\xf9\4\4\5\0\0\0,\0\0\0\0\xfc\x03\xb0\x04\0\2", 19);
    gif += run.repeated(runs) + QByteArray("\1\5\0", 3);
    gif += QByteArray("!\xf9\4\4\5\0\0\0,\0\0\0\0\1\0\1\0\0\2\2\x44\1\0;", 24);
    return gif;
}

TEST(RequestHandlerTest, AFrameIsMadeOfWhatTheOneBeforeItLeft)
{
    constexpr QSize size{1'020, 1'200};
    const QByteArray gif = largeAnimation();
    RequestHandler handler;
    for (const int frame : {0, 1}) {
        decoder_protocol::Request request;
        request.task = Task::Frame;
        request.wanted = size;
        request.part = frame;
        request.document = 1;
        request.milliseconds = 1'000;
        const auto answer = handler.serve(request, picture_memory::of(gif), FileDescriptor());
        ASSERT_TRUE(answer.reply.pixels.has_value()) << frame;
        ASSERT_EQ(answer.reply.pixels->size, size);
        QRgb middle = 0;
        ASSERT_EQ(::pread(answer.pixels.number(), &middle, sizeof middle,
                          (size.height() / 2 * size.width() + size.width() / 2) * 4),
                  ssize_t(sizeof middle));
        EXPECT_EQ(middle, qRgb(255, 0, 0)) << frame;
    }
}

TEST(RequestHandlerTest, NoFrameIsOfTheDocumentBefore)
{
    QByteArray other = largeAnimation();
    // Its first colour is green.
    other.replace(13, 6, QByteArray("\0\0\xff\0\xff\0", 6));
    RequestHandler handler;
    const auto middleOf = [&](std::uint32_t document, int frame, const QByteArray &gif) {
        decoder_protocol::Request request;
        request.task = Task::Frame;
        request.wanted = {1'020, 1'200};
        request.part = frame;
        request.document = document;
        request.milliseconds = 1'000;
        const auto answer = handler.serve(request, picture_memory::of(gif), FileDescriptor());
        QRgb middle = 0;
        EXPECT_EQ(::pread(answer.pixels.number(), &middle, sizeof middle,
                          (600 * request.wanted.width() + 510) * 4),
                  ssize_t(sizeof middle));
        return middle;
    };
    EXPECT_EQ(middleOf(1, 0, largeAnimation()), qRgb(255, 0, 0));
    EXPECT_EQ(middleOf(2, 1, other), qRgb(0, 255, 0)) << "of the one that was asked for";
}

TEST(RequestHandlerTest, WhatAnotherDecoderHadBegunToWriteIsGone)
{
    RequestHandler handler;
    decoder_protocol::Request request;
    request.task = Task::Transcode;
    request.milliseconds = 1'000;
    const FileDescriptor target(::memfd_create("target", MFD_CLOEXEC));
    target.write(QByteArray(100'000, 'x'));
    handler.serve(request, picture_memory::of(written({20, 10})),
                  FileDescriptor(::dup(target.number())));
    QFile file;
    ASSERT_TRUE(file.open(::dup(target.number()), QFile::ReadOnly, QFile::AutoCloseHandle));
    file.seek(0);
    const QByteArray made = file.readAll();
    EXPECT_TRUE(made.startsWith("\x89PNG"));
    EXPECT_LT(made.size(), 10'000);
}

} // namespace
} // namespace corvane
