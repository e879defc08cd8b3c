#include "platform/freedesktop/thumbnails/png_text.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

QByteArray picture(const QString &key = {}, const QString &text = {})
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    if (!key.isEmpty())
        image.setText(key, text);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, "png"));
    return bytes;
}

QByteArray textOf(const QByteArray &png, const char *key)
{
    for (const auto &[name, text] : png_text::thumbnailTexts(png).value_or(png_text::Texts())) {
        if (name == key)
            return text;
    }
    return "none";
}

const QByteArray longUri = "file:///" + QByteArray(300, 'x') + ".png";

} // namespace

TEST(PngText, isReadAgainAndLeavesThePictureWhole)
{
    const QByteArray png = png_text::withTexts(
        picture(), {{"Thumb::URI", longUri}, {"Thumb::MTime", "12"}, {"Software", "x"}});
    EXPECT_EQ(textOf(png, "Thumb::URI"), longUri);
    EXPECT_EQ(textOf(png, "Thumb::MTime"), "12");
    EXPECT_EQ(png_text::thumbnailTexts(png)->size(), 2);
    const QImage shown = QImage::fromData(png);
    EXPECT_EQ(shown.text(QStringLiteral("Thumb::URI")), QString::fromLatin1(longUri))
        << "the check sums are right";
    EXPECT_EQ(shown.pixelColor(1, 1), QColor(Qt::red));
}

TEST(PngText, isWrittenSoThatEveryProgramCanReadIt)
{
    const QByteArray png = png_text::withTexts(picture(), {{"Thumb::URI", longUri}});
    EXPECT_TRUE(png.contains(QByteArray(QByteArray("tEXtThumb::URI\0", 15) + longUri)));
}

TEST(PngText, isReadWhereOthersCompressedIt)
{
    const QByteArray png = picture(QStringLiteral("Thumb::URI"), QString::fromLatin1(longUri));
    ASSERT_TRUE(png.contains("zTXt"));
    EXPECT_EQ(textOf(png, "Thumb::URI"), longUri);
}

TEST(PngText, isReadWhereItIsInternational)
{
    const QString uri = QStringLiteral("file:///Żółw");
    const QByteArray png = picture(QStringLiteral("Thumb::URI"), uri);
    ASSERT_TRUE(png.contains("iTXt"));
    EXPECT_EQ(textOf(png, "Thumb::URI"), uri.toUtf8());
}

TEST(PngText, ofWhatIsNoPngIsNone)
{
    EXPECT_FALSE(png_text::thumbnailTexts(""));
    EXPECT_FALSE(png_text::thumbnailTexts("GIF89a"));
    EXPECT_FALSE(png_text::thumbnailTexts(picture().first(20)));
    QByteArray longHead = picture();
    longHead[11] = 14;
    EXPECT_FALSE(png_text::thumbnailTexts(longHead));
    EXPECT_EQ(png_text::withTexts("GIF89a", {{"Thumb::URI", "x"}}), "GIF89a");
}

TEST(PngText, thatIsBrokenOrEndlessIsLeftOut)
{
    const QByteArray head = picture().first(33);
    const QByteArray huge = QByteArray("\xff\xff\xff\xff", 4) + "tEXtThumb::URI";
    EXPECT_TRUE(png_text::thumbnailTexts(head + huge)->isEmpty());
    const QByteArray cut = QByteArray("\0\0\0\x0a", 4) + "zTXtThumb::URI" + QByteArray(4, '\0');
    EXPECT_EQ(textOf(head + cut, "Thumb::URI"), "") << "no compressed bytes at all";
    const QByteArray garbage = QByteArray("\0\0\0\x10", 4) + "zTXtThumb::URI"
        + QByteArray("\0\0nope", 6) + QByteArray(4, '\0');
    EXPECT_EQ(textOf(head + garbage, "Thumb::URI"), "");
    QByteArray many = head;
    for (int i = 0; i < 10'000; ++i)
        many += QByteArray("\0\0\0\x0e", 4) + "tEXtThumb::URI" + QByteArray(8, '\0');
    EXPECT_LE(png_text::thumbnailTexts(many)->size(), 32);
    const QByteArray bomb
        = picture(QStringLiteral("Thumb::URI"), QString(50'000'000, QLatin1Char('a')));
    EXPECT_EQ(textOf(bomb, "Thumb::URI"), "none") << "larger than any address";
}

} // namespace corvane::test
