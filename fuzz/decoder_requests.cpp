// What a decoder answers to any requests in any order, about pictures that are not the matter here:
// it is always something that the program accepts.

#include "support/decoder_under_test.h"

#include <QBuffer>
#include <QImage>

#include <fuzzer/FuzzedDataProvider.h>

#include <array>

namespace {

using namespace corvane;
using decoder_protocol::Request;

QByteArray still()
{
    QImage image(40, 30, QImage::Format_ARGB32);
    image.fill(qRgba(200, 100, 50, 128));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return bytes;
}

/// Four frames of one pixel each in a picture of 9 by 7.
QByteArray moving()
{
    const QByteArray frame("!\xf9\4\0\5\0\0\0,\0\0\0\0\1\0\1\0\0\2\2\x44\1\0", 23);
    return QByteArray("GIF89a\x09\0\x07\0\x80\0\0\xff\0\0\0\0\xff", 19) + frame.repeated(4) + ';';
}

QByteArray drawing()
{
    return "<svg xmlns='http://www.w3.org/2000/svg' width='50' height='20'>"
           "<circle r='9' fill='#123456'/></svg>";
}

QByteArray pages()
{
    return "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>> endobj\n"
           "2 0 obj<</Type/Pages/Kids[3 0 R 3 0 R]/Count 2>> endobj\n"
           "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 60 80]>> endobj\n"
           "trailer<</Root 1 0 R>>\n%%EOF\n";
}

Request taken(FuzzedDataProvider &bytes)
{
    Request request;
    request.number = bytes.ConsumeIntegral<std::uint32_t>();
    request.task = static_cast<decoder_protocol::Task>(bytes.ConsumeIntegralInRange(0, 6));
    request.formats = static_cast<decoder_protocol::Formats>(bytes.ConsumeIntegralInRange(0, 2));
    request.type = static_cast<decoder_protocol::Type>(bytes.ConsumeIntegralInRange(0, 3));
    // Small ones mostly, and the largest that there are.
    const int most = bytes.ConsumeBool() ? 600 : decoder_protocol::maximumSide;
    request.wanted
        = {bytes.ConsumeIntegralInRange(-1, most), bytes.ConsumeIntegralInRange(-1, 600)};
    if (bytes.ConsumeBool())
        request.wanted.transpose();
    request.part = bytes.ConsumeIntegralInRange(0, 8);
    request.document = bytes.ConsumeIntegralInRange<std::uint32_t>(0, 3);
    request.milliseconds = 1'000;
    return request;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const std::array files = {still(), moving(), drawing(), pages(), QByteArray("none")};
    constexpr int most = 12;
    FuzzedDataProvider bytes(data, size);
    RequestHandler handler;
    fuzz::boundPictures();
    for (int i = 0; i < most && bytes.remaining_bytes() > 0; ++i) {
        const auto sent = decoder_protocol::encoded(taken(bytes));
        const auto &file = files[bytes.ConsumeIntegralInRange<std::size_t>(0, files.size() - 1)];
        if (const auto request = decoder_protocol::parsedRequest(sent))
            fuzz::served(handler, *request, file);
    }
    return 0;
}
