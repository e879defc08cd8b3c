#include "decoder/png_chunks.h"

#include <QByteArray>
#include <QtEndian>

namespace corvane {

namespace {

bool areModest(QIODevice &png)
{
    constexpr qint64 signature = 8;
    constexpr qint64 header = 8;
    constexpr qint64 sum = 4;
    qint64 at = signature;
    for (int count = 0; count < maximumChunks; ++count) {
        const QByteArray start = png.seek(at) ? png.read(header) : QByteArray();
        if (start.size() < header)
            return true;
        const auto length = qFromBigEndian<quint32>(start.constData());
        const bool isPixels = start.endsWith("IDAT");
        if (!isPixels && length > maximumChunk)
            return false;
        at += header + qint64{length} + sum;
    }
    return false;
}

} // namespace

bool hasModestChunks(QIODevice &png)
{
    const qint64 before = png.pos();
    const bool isModest = areModest(png);
    return png.seek(before) && isModest;
}

} // namespace corvane
