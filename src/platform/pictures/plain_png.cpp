#include "platform/pictures/plain_png.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstdint>

namespace corvane {

namespace {

/// A bit at a time would take as long as the compression.
constexpr std::array<std::uint32_t, 256> checkTable()
{
    std::array<std::uint32_t, 256> table = {};
    for (std::uint32_t i = 0; i < table.size(); ++i) {
        std::uint32_t value = i;
        for (int bit = 0; bit < 8; ++bit)
            value = (value >> 1) ^ ((value & 1) != 0 ? 0xedb8'8320U : 0U);
        table[i] = value;
    }
    return table;
}

std::uint32_t checkSum(const QByteArray &bytes)
{
    static constexpr auto table = checkTable();
    std::uint32_t sum = 0xffff'ffff;
    for (const char byte : bytes)
        sum = (sum >> 8) ^ table[(sum ^ static_cast<unsigned char>(byte)) & 0xff];
    return ~sum;
}

QByteArray number(std::uint32_t value)
{
    QByteArray bytes(sizeof value, Qt::Uninitialized);
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray chunk(const QByteArray &kind, const QByteArray &contents)
{
    return number(static_cast<std::uint32_t>(contents.size())) + kind + contents
        + number(checkSum(kind + contents));
}

/// Each row as the differences from the pixel to the left, which compress better.
QByteArray rows(const QImage &image, int bytesPerPixel)
{
    constexpr char differences = 1;
    const int length = image.width() * bytesPerPixel;
    QByteArray result((qsizetype{length} + 1) * image.height(), Qt::Uninitialized);
    char *to = result.data();
    for (int y = 0; y < image.height(); ++y) {
        const uchar *const row = image.constScanLine(y);
        *to++ = differences;
        for (int x = 0; x < std::min(bytesPerPixel, length); ++x)
            *to++ = static_cast<char>(row[x]);
        for (int x = bytesPerPixel; x < length; ++x)
            *to++ = static_cast<char>(row[x] - row[x - bytesPerPixel]);
    }
    return result;
}

} // namespace

std::optional<QByteArray> plainPng(const QImage &image)
{
    constexpr int quick = 1;
    // What Qt puts before the compressed bytes.
    constexpr qsizetype lengthBytes = 4;
    const bool isTranslucent = image.hasAlphaChannel();
    const QImage pixels
        = image.convertToFormat(isTranslucent ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    if (pixels.isNull())
        return std::nullopt;
    const QByteArray kind
        = isTranslucent ? QByteArray("\x08\x06\0\0\0", 5) : QByteArray("\x08\x02\0\0\0", 5);
    return "\x89PNG\r\n\x1a\n"
        + chunk("IHDR",
                number(static_cast<std::uint32_t>(pixels.width()))
                    + number(static_cast<std::uint32_t>(pixels.height())) + kind)
        + chunk("IDAT", qCompress(rows(pixels, isTranslucent ? 4 : 3), quick).mid(lengthBytes))
        + chunk("IEND", {});
}

} // namespace corvane
