#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QtEndian>

namespace corvane::test {

/// A short film as an AVI file: JPEG frames of one color, 160 x 120.
inline QByteArray film(const QColor &color = Qt::red)
{
    constexpr int width = 160;
    constexpr int height = 120;
    constexpr int frames = 10;
    const auto number = [](quint32 value) {
        QByteArray bytes(4, '\0');
        qToLittleEndian(value, bytes.data());
        return bytes;
    };
    const auto numbers = [&](std::initializer_list<quint32> values) {
        QByteArray bytes;
        for (const quint32 value : values)
            bytes += number(value);
        return bytes;
    };
    const auto chunk = [&](const QByteArray &name, const QByteArray &data) -> QByteArray {
        return name + number(static_cast<quint32>(data.size())) + data
            + QByteArray(data.size() % 2, '\0');
    };
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    QByteArray frame;
    QBuffer buffer(&frame);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "jpg");
    const auto size = static_cast<quint32>(frame.size());

    const QByteArray header = chunk(
        "avih", numbers({100'000, size * 10, 0, 0, frames, 0, 1, size, width, height, 0, 0, 0, 0}));
    const QByteArray stream = chunk("strh",
                                    "vidsMJPG" + numbers({0, 0, 0, 1, 10, 0, frames, size, 0, 0})
                                        + QByteArray("\0\0\0\0\xa0\0\x78\0", 8))
        + chunk("strf",
                numbers({40, width, height}) + QByteArray("\1\0\x18\0", 4) + "MJPG"
                    + numbers({width * height * 3, 0, 0, 0, 0}));
    QByteArray movie = "movi";
    for (int i = 0; i < frames; ++i)
        movie += chunk("00dc", frame);
    return chunk("RIFF",
                 "AVI " + chunk("LIST", "hdrl" + header + chunk("LIST", "strl" + stream))
                     + chunk("LIST", movie));
}

} // namespace corvane::test
