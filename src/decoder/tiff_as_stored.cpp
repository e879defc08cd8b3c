#include "decoder/tiff_as_stored.h"

#include <QtEndian>

#include <algorithm>

namespace corvane {

namespace {

// Numbers of the TIFF 6.0 specification.
constexpr quint16 samplesPerPixelTag = 277;
constexpr quint16 extraSamplesTag = 338;
constexpr quint16 shortType = 3;
constexpr quint16 multiplied = 1;
constexpr quint16 notMultiplied = 2;
constexpr qint64 headerSize = 8;
constexpr qint64 entrySize = 12;

struct Numbers {
    bool isBigEndian;

    quint16 at16(const char *bytes) const
    {
        return isBigEndian ? qFromBigEndian<quint16>(bytes) : qFromLittleEndian<quint16>(bytes);
    }
    quint32 at32(const char *bytes) const
    {
        return isBigEndian ? qFromBigEndian<quint32>(bytes) : qFromLittleEndian<quint32>(bytes);
    }
};

/// Fewer than `count` where the file ends.
QByteArray availableAt(QIODevice &file, qint64 offset, qint64 count)
{
    return offset < file.size() && file.seek(offset) ? file.read(count) : QByteArray();
}

} // namespace

TiffAsStored::TiffAsStored(QIODevice &file)
    : EndingAtErrors(file)
{
    examine(file);
}

void TiffAsStored::examine(QIODevice &file)
{
    const QByteArray header = availableAt(file, 0, headerSize);
    const bool isBigEndian = header.startsWith(QByteArray("MM\0*", 4));
    if (header.size() < headerSize || (!isBigEndian && !header.startsWith(QByteArray("II*\0", 4))))
        return;
    const Numbers numbers{isBigEndian};
    const qint64 directory = numbers.at32(header.constData() + 4);
    const QByteArray count = availableAt(file, directory, 2);
    if (count.size() < 2)
        return;
    const QByteArray entries
        = availableAt(file, directory + 2, numbers.at16(count.constData()) * entrySize);
    int samples = 0;
    std::optional<qint64> statement;
    for (qint64 at = 0; at + entrySize <= entries.size(); at += entrySize) {
        const char *entry = entries.constData() + at;
        if (numbers.at16(entry + 2) != shortType)
            continue;
        if (numbers.at16(entry) == samplesPerPixelTag)
            samples = numbers.at16(entry + 8);
        if (numbers.at16(entry) != extraSamplesTag)
            continue;
        // Up to two values are in the entry itself.
        const bool isInside = numbers.at32(entry + 4) <= 2;
        statement = isInside ? directory + 2 + at + 8 : qint64{numbers.at32(entry + 8)};
    }
    const QByteArray stated = statement ? availableAt(file, *statement, 2) : QByteArray();
    const int kind = stated.size() < 2 ? 0 : numbers.at16(stated.constData());
    if (samples == 2 && kind == multiplied)
        m_greyFormat = QImage::Format_ARGB32_Premultiplied;
    if (samples == 2 && kind == notMultiplied)
        m_greyFormat = QImage::Format_ARGB32;
    if (samples > 3 && kind == notMultiplied)
        m_statement = statement;
}

QImage TiffAsStored::corrected(QImage image) const
{
    if (m_greyFormat && image.format() == QImage::Format_RGB32)
        image.reinterpretAsFormat(*m_greyFormat);
    return image;
}

qint64 TiffAsStored::readData(char *data, qint64 maximum)
{
    const qint64 from = pos();
    const qint64 count = EndingAtErrors::readData(data, maximum);
    if (m_statement && count > 0) {
        const qint64 first = std::max(*m_statement - from, qint64{0});
        const qint64 end = std::min(*m_statement + 2 - from, count);
        for (qint64 i = first; i < end; ++i)
            data[i] = 0;
    }
    return count;
}

} // namespace corvane
