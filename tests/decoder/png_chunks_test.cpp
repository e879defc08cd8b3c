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
        QBuffer buffer(&png);
        buffer.open(QIODevice::ReadOnly);
        EXPECT_EQ(picture_decoding::thumbnail(buffer, 8).has_value(), length == maximumChunk);
    }
}

} // namespace
} // namespace corvane
