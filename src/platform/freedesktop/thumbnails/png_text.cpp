#include "platform/freedesktop/thumbnails/png_text.h"

#include <QtEndian>

namespace corvane::png_text {

namespace {

constexpr QByteArrayView signature("\x89PNG\r\n\x1a\n", 8);
/// Length, type and check sum, around a chunk's data.
constexpr qsizetype overhead = 12;
constexpr qsizetype headSize = signature.size() + overhead + 13;
constexpr int maximumChunks = 4096;
constexpr int maximumTexts = 32;
/// A text of this size unpacks to a thousand times as much at worst.
constexpr qsizetype maximumTextBytes = 4096;

bool isPng(const QByteArray &bytes)
{
    // Its first chunk is the head, of 13 bytes.
    return bytes.size() >= headSize && bytes.startsWith(signature)
        && bytes.sliced(signature.size(), 8) == QByteArrayView("\0\0\0\x0dIHDR", 8);
}

QByteArray unpacked(const QByteArray &packed)
{
    QByteArray expectedSize(4, '\0');
    qToBigEndian(static_cast<quint32>(maximumTextBytes), expectedSize.data());
    return qUncompress(expectedSize + packed);
}

/// Takes what stands before the next null byte, and that byte, off `data`.
QByteArray takeText(QByteArray &data)
{
    const qsizetype end = data.indexOf('\0');
    QByteArray text = data.first(end < 0 ? data.size() : end);
    data = end < 0 ? QByteArray() : data.sliced(end + 1);
    return text;
}

/// The text behind the key, in a chunk of that type.
QByteArray value(const QByteArray &type, QByteArray data)
{
    if (type == "tEXt")
        return data;
    // One byte names the only method of compression that there is.
    if (type == "zTXt")
        return data.size() > 1 ? unpacked(data.sliced(1)) : QByteArray();
    if (data.size() < 2)
        return {};
    const bool isPacked = data.front() == 1;
    data = data.sliced(2);
    takeText(data); // its language
    takeText(data); // the key in that language
    return isPacked ? unpacked(data) : data;
}

quint32 checkSum(const QByteArray &bytes)
{
    constexpr quint32 polynomial = 0xedb88320;
    quint32 sum = 0xffffffff;
    for (const char byte : bytes) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1U) ^ ((sum & 1U) != 0 ? polynomial : 0);
    }
    return ~sum;
}

QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray chunk(const QByteArray &type, const QByteArray &data)
{
    return number(static_cast<quint32>(data.size())) + type + data + number(checkSum(type + data));
}

} // namespace

std::optional<Texts> thumbnailTexts(const QByteArray &png)
{
    if (!isPng(png))
        return std::nullopt;
    Texts texts;
    qsizetype at = signature.size();
    for (int i = 0; i < maximumChunks && png.size() - at >= overhead; ++i) {
        const auto length = static_cast<qsizetype>(qFromBigEndian<quint32>(png.constData() + at));
        if (length > png.size() - at - overhead)
            break;
        const QByteArray type = png.sliced(at + 4, 4);
        const bool isText = type == "tEXt" || type == "zTXt" || type == "iTXt";
        if (isText && length <= maximumTextBytes && texts.size() < maximumTexts) {
            QByteArray data = png.sliced(at + 8, length);
            const QByteArray key = takeText(data);
            if (key.startsWith("Thumb::"))
                texts.append({key, value(type, data)});
        }
        at += length + overhead;
    }
    return texts;
}

QByteArray withTexts(const QByteArray &png, const Texts &texts)
{
    if (!isPng(png))
        return png;
    QByteArray result = png.first(headSize);
    for (const auto &[key, text] : texts)
        result += chunk("tEXt", key + '\0' + text);
    return result + png.sliced(headSize);
}

} // namespace corvane::png_text
