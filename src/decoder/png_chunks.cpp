#include "decoder/png_chunks.h"

#include <QByteArray>
#include <QtEndian>

namespace corvane {

namespace {

constexpr QByteArrayView signature("\x89PNG\r\n\x1a\n");

QByteArray bytesAt(QIODevice &file, qint64 offset, qint64 count)
{
    if (offset + count > file.size() || !file.seek(offset))
        return {};
    QByteArray bytes = file.read(count);
    return bytes.size() == count ? bytes : QByteArray();
}

/// The chunks of the files that are looked at together.
class Chunks {
public:
    explicit Chunks(QIODevice &file)
        : m_file(file)
    {
    }

    /// Whether those of the PNG file that begins there are modest, and not too many.
    bool areModestAt(qint64 begin)
    {
        constexpr qint64 header = 8;
        constexpr qint64 sum = 4;
        qint64 at = begin + signature.size();
        while (m_count++ < maximumChunks) {
            const QByteArray start = bytesAt(m_file, at, header);
            if (start.isEmpty() || start.endsWith("IEND"))
                return true;
            const auto length = qFromBigEndian<quint32>(start.constData());
            const bool isPixels = start.endsWith("IDAT");
            if (!isPixels && length > maximumChunk)
                return false;
            at += header + qint64{length} + sum;
        }
        return false;
    }

    /// The same of the icon that begins there; others than PNG files have no chunks.
    bool isModestIconAt(qint64 begin)
    {
        return bytesAt(m_file, begin, signature.size()) != signature || areModestAt(begin);
    }

    /// In a directory of all icons.
    bool areModestInIco()
    {
        constexpr qint64 header = 6;
        constexpr qint64 entry = 16;
        constexpr qint64 offset = 12;
        const QByteArray start = bytesAt(m_file, 0, header);
        const qint64 count
            = start.isEmpty() ? 0 : qFromLittleEndian<quint16>(start.constData() + 4);
        for (qint64 i = 0; i < count; ++i) {
            const QByteArray place = bytesAt(m_file, header + i * entry + offset, 4);
            if (!place.isEmpty() && !isModestIconAt(qFromLittleEndian<quint32>(place.constData())))
                return false;
        }
        return true;
    }

    /// One behind the other, each after its kind and length.
    bool areModestInIcns()
    {
        constexpr qint64 header = 8;
        for (qint64 at = header; m_count++ < maximumChunks;) {
            const QByteArray start = bytesAt(m_file, at, header);
            const qint64 length
                = start.isEmpty() ? 0 : qFromBigEndian<quint32>(start.constData() + 4);
            if (length < header)
                return true;
            if (!isModestIconAt(at + header))
                return false;
            at += length;
        }
        return false;
    }

private:
    QIODevice &m_file;
    int m_count = 0;
};

} // namespace

bool hasModestChunks(QIODevice &png)
{
    const qint64 before = png.pos();
    const bool isModest = Chunks(png).areModestAt(0);
    return png.seek(before) && isModest;
}

bool hasModestIcons(QIODevice &icons)
{
    const qint64 before = icons.pos();
    const bool isApples = bytesAt(icons, 0, 4) == "icns";
    Chunks chunks(icons);
    const bool areModest = isApples ? chunks.areModestInIcns() : chunks.areModestInIco();
    return icons.seek(before) && areModest;
}

} // namespace corvane
