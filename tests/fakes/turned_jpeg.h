#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QImage>

namespace corvane::test {

/// A JPEG that says that it must be turned a quarter clockwise.
inline QByteArray turnedJpeg(const QImage &image)
{
    constexpr char orientation[] = "\xff\xe1\x00\x22"
                                   "Exif\0\0"
                                   "II*\0\x08\0\0\0"
                                   "\x01\0"
                                   "\x12\x01\x03\0\x01\0\0\0\x06\0\0\0"
                                   "\0\0\0\0";
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "jpeg");
    return bytes.insert(2, QByteArray(orientation, sizeof orientation - 1));
}

} // namespace corvane::test
