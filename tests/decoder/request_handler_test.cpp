#include "decoder/request_handler.h"
#include "platform/pictures/picture_memory.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

namespace corvane {
namespace {

QByteArray written(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
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

} // namespace
} // namespace corvane
