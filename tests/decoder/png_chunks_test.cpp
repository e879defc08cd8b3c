#include "decoder/picture_decoding.h"
#include "decoder/png_chunks.h"

#include <QBuffer>
#include <QImage>
#include <QtEndian>

#include <gtest/gtest.h>

namespace corvane {
namespace {

constexpr qsizetype endChunk = 12;

QByteArray written()
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return bytes;
}

/// A picture with one more chunk before its end, which states that length and has no contents.
QByteArray withChunk(const char *kind, quint32 length)
{
    QByteArray chunk(4, Qt::Uninitialized);
    qToBigEndian(length, chunk.data());
    return written().insert(written().size() - endChunk, chunk + kind + QByteArray(4, 0));
}

QByteArray bigEndian(qsizetype number)
{
    QByteArray bytes(4, Qt::Uninitialized);
    qToBigEndian(static_cast<quint32>(number), bytes.data());
    return bytes;
}

/// Two icons, the second of which is that PNG file.
QByteArray asIco(const QByteArray &png)
{
    const QByteArray first = written();
    const auto entry = [](qsizetype length, qsizetype offset) -> QByteArray {
        QByteArray bytes(8, Qt::Uninitialized);
        qToLittleEndian(static_cast<quint32>(length), bytes.data());
        qToLittleEndian(static_cast<quint32>(offset), bytes.data() + 4);
        return QByteArray("\x8\x8\0\0\1\0\x20\0", 8) + bytes;
    };
    constexpr qsizetype start = 6 + 2 * 16;
    return QByteArray("\0\0\1\0\2\0", 6) + entry(first.size(), start)
        + entry(png.size(), start + first.size()) + first + png;
}

QByteArray asIcns(const QByteArray &png)
{
    const QByteArray first = QByteArray("ic07") + bigEndian(written().size() + 8) + written();
    const QByteArray second = QByteArray("ic08") + bigEndian(png.size() + 8) + png;
    return QByteArray("icns") + bigEndian(first.size() + second.size() + 8) + first + second;
}

bool hasModest(QByteArray icons)
{
    QBuffer buffer(&icons);
    buffer.open(QIODevice::ReadOnly);
    const bool modest = hasModestIcons(buffer);
    EXPECT_EQ(buffer.pos(), 0);
    return modest;
}

bool isModest(QByteArray png)
{
    QBuffer buffer(&png);
    buffer.open(QIODevice::ReadOnly);
    const bool modest = hasModestChunks(buffer);
    EXPECT_EQ(buffer.pos(), 0);
    return modest;
}

TEST(PngChunksTest, MayBeAsLongAsTextsAndProfilesAre)
{
    EXPECT_TRUE(isModest(written()));
    EXPECT_TRUE(isModest(withChunk("tEXt", maximumChunk)));
    EXPECT_FALSE(isModest(withChunk("tEXt", maximumChunk + 1)));
    EXPECT_FALSE(isModest(withChunk("iCCP", 0xffff'ffff)));
    EXPECT_TRUE(isModest(withChunk("IDAT", maximumChunk + 1))) << "pixels";
    EXPECT_TRUE(isModest(written().left(40))) << "cut off";
}

TEST(PngChunksTest, OnesThatTakeTimeAloneAreTooMany)
{
    const QByteArray one = QByteArray(4, 0) + "teXt" + QByteArray(4, 0);
    EXPECT_FALSE(isModest(written().insert(33, one.repeated(maximumChunks))));
}

TEST(PngChunksTest, PicturesThatBoastAreNotDecoded)
{
    // Whole otherwise: what a library reads there, and unpacks, is for it to say.
    for (const qint64 length : {maximumChunk, maximumChunk + 1}) {
        QByteArray png = withChunk("teXt", static_cast<quint32>(length));
        png.insert(png.size() - endChunk - 4, QByteArray(length, 'x'));
        for (QByteArray file : {png, asIco(png), asIcns(png)}) {
            QBuffer buffer(&file);
            buffer.open(QIODevice::ReadOnly);
            EXPECT_EQ(picture_decoding::thumbnail(buffer, 8).has_value(), length == maximumChunk)
                << file.left(4).toHex().constData();
        }
    }
}

TEST(PngChunksTest, OfIconsMayBeAsLongAsOfPictures)
{
    for (const auto as : {asIco, asIcns}) {
        EXPECT_TRUE(hasModest(as(withChunk("tEXt", maximumChunk))));
        EXPECT_FALSE(hasModest(as(withChunk("tEXt", maximumChunk + 1))));
        EXPECT_TRUE(hasModest(as(QByteArray("no such file\xff\xff\xff\xff\xff\xff\xff", 19))));
        EXPECT_TRUE(hasModest(as(written()).left(20))) << "cut off";
    }
    EXPECT_TRUE(hasModest(QByteArray("icns\0\0\0\x10ic07\0\0\0\0", 16))) << "ends there";
}

TEST(PngChunksTest, OfAllIconsTogetherMayBeTooMany)
{
    // Each of two has more than half of them.
    const QByteArray one = QByteArray(4, 0) + "teXt" + QByteArray(4, 0);
    const QByteArray png = written().insert(33, one.repeated(maximumChunks / 2 + 1));
    EXPECT_TRUE(isModest(png));
    QByteArray twice = asIco(png);
    // The first entry's place is the second one's as well.
    twice.replace(6, 16, twice.mid(22, 16));
    EXPECT_TRUE(hasModest(asIco(png)));
    EXPECT_FALSE(hasModest(twice));
}

} // namespace
} // namespace corvane
