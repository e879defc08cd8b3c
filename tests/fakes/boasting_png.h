#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QtEndian>

namespace corvane::test {

/// A PNG whose header claims a size for which it has far too few bytes.
inline QByteArray boastingPng(quint32 width, quint32 height)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::red);
    picture.save(&buffer, "PNG");
    qToBigEndian(width, bytes.data() + 16);
    qToBigEndian(height, bytes.data() + 20);
    quint32 crc = 0xffffffff;
    for (int i = 12; i < 29; ++i) {
        crc ^= static_cast<unsigned char>(bytes[i]);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xedb88320 : 0);
    }
    qToBigEndian(~crc, bytes.data() + 29);
    return bytes;
}

} // namespace corvane::test
