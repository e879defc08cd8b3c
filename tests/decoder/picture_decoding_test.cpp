#include "fakes/boasting_png.h"
#include "fakes/in_process_codec.h"
#include "fakes/turned_jpeg.h"
#include "platform/system/file_url.h"

#include <QBuffer>
#include <QFile>
#include <QImageWriter>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace corvane::test {

namespace {

/// Left half red, right half blue.
QImage halves(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::blue);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width / 2; ++x)
            image.setPixelColor(x, y, Qt::red);
    }
    return image;
}

QByteArray written(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    EXPECT_TRUE(writer.write(image)) << format;
    return bytes;
}

bool isReady(const QImage &image)
{
    return image.format() == QImage::Format_ARGB32_Premultiplied
        || image.format() == QImage::Format_RGB32;
}

class PictureDecodingTest : public testing::Test {
protected:
    ~PictureDecodingTest() override
    {
        // Qt cannot remove what it cannot spell.
        for (const QByteArray &path : paths)
            ::unlink(path.constData());
    }
    QUrl saved(const QByteArray &name, const QByteArray &bytes)
    {
        const QUrl url = file_url::fromNativePath(folder.path().toUtf8() + '/' + name);
        paths << file_url::nativePath(url);
        FILE *file = std::fopen(paths.constLast().constData(), "w");
        std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), file);
        std::fclose(file);
        return url;
    }

    InProcessCodec codec;
    QTemporaryDir folder;
    QByteArrayList paths;
};

} // namespace

TEST_F(PictureDecodingTest, thumbnailsKeepProportionsAndTheLimit)
{
    const auto image = codec.thumbnail(written(halves(400, 100), "png"), 60);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), QSize(60, 15));
    EXPECT_TRUE(isReady(*image));
    EXPECT_EQ(image->pixelColor(5, 7), QColor(Qt::red));
    EXPECT_EQ(codec.thumbnail(written(halves(2000, 2), "png"), 60)->size(), QSize(60, 1));
}

TEST_F(PictureDecodingTest, aSmallerPictureKeepsItsSize)
{
    EXPECT_EQ(codec.thumbnail(written(halves(20, 10), "png"), 60)->size(), QSize(20, 10));
}

TEST_F(PictureDecodingTest, turnsPicturesUpright)
{
    const auto bytes = turnedJpeg(halves(400, 100));
    EXPECT_EQ(codec.pixelSize(bytes), QSize(400, 100));
    const auto thumbnail = codec.thumbnail(bytes, 60);
    ASSERT_TRUE(thumbnail);
    EXPECT_EQ(thumbnail->size(), QSize(15, 60));
    EXPECT_GT(thumbnail->pixelColor(7, 5).red(), 200);
    EXPECT_GT(thumbnail->pixelColor(7, 55).blue(), 200);
    EXPECT_EQ(codec.decode(bytes)->size(), QSize(100, 400));
}

TEST_F(PictureDecodingTest, readsEveryFormatOfItsKind)
{
    for (const char *format : {"png", "jpeg", "bmp", "webp", "tiff", "ppm", "ico"}) {
        const auto bytes = written(halves(40, 20), format);
        const auto whole = codec.decode(bytes);
        ASSERT_TRUE(whole) << format;
        EXPECT_EQ(whole->size(), QSize(40, 20)) << format;
        EXPECT_EQ(whole->pixelColor(2, 2).red() > 200, whole->pixelColor(30, 2).red() < 50);
        EXPECT_TRUE(isReady(*codec.thumbnail(bytes, 10))) << format;
        EXPECT_GT(codec.thumbnail(bytes, 10)->pixelColor(2, 2).red(), 200) << format;
    }
}

TEST_F(PictureDecodingTest, ofTheWebReadsNoMoreThanTheWebNeeds)
{
    DecodingAttempt attempt;
    attempt.formats = DecodingAttempt::Formats::Web;
    for (const char *format : {"png", "jpeg", "webp"})
        EXPECT_TRUE(codec.thumbnail(written(halves(40, 20), format), 10, attempt)) << format;
    for (const char *format : {"tiff", "bmp", "ppm", "ico"})
        EXPECT_FALSE(codec.thumbnail(written(halves(40, 20), format), 10, attempt)) << format;
    EXPECT_FALSE(codec.thumbnail("<svg xmlns='http://www.w3.org/2000/svg' width='8' height='4'/>",
                                 10, attempt));
    attempt.formats = DecodingAttempt::Formats::Png;
    EXPECT_TRUE(codec.thumbnail(written(halves(40, 20), "png"), 10, attempt));
    EXPECT_FALSE(codec.thumbnail(written(halves(40, 20), "jpeg"), 10, attempt));
}

TEST_F(PictureDecodingTest, drawsSvgAtTheWantedSize)
{
    const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='4'>"
                           "<rect width='8' height='4' fill='#ff0000'/></svg>";
    const auto image = codec.thumbnail(svg, 60);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), QSize(60, 30));
    EXPECT_EQ(image->pixelColor(30, 15), QColor(Qt::red));
    EXPECT_EQ(codec.decode(svg)->size(), QSize(8, 4));
    const QByteArray huge
        = "<svg xmlns='http://www.w3.org/2000/svg' width='90000' height='90000'/>";
    EXPECT_FALSE(codec.decode(huge));
    EXPECT_EQ(codec.thumbnail(huge, 60)->size(), QSize(60, 60));
}

TEST_F(PictureDecodingTest, drawsNothingThatADrawingRefersToElsewhere)
{
    const auto drawing = [](const QByteArray &inside) -> QByteArray {
        return "<svg xmlns='http://www.w3.org/2000/svg' "
               "xmlns:xlink='http://www.w3.org/1999/xlink' width='8' height='8'>"
            + inside + "</svg>";
    };
    QImage red(8, 8, QImage::Format_RGB32);
    red.fill(Qt::red);
    const QByteArray file = file_url::nativePath(saved("red.png", written(red, "png")));
    const QByteArray nested = "data:image/svg+xml;base64,"
        + drawing("<rect width='8' height='8' fill='#ff0000'/>").toBase64();
    for (const QByteArray &address : {file, QByteArray("file://" + file), nested}) {
        const auto drawn = codec.thumbnail(
            drawing("<rect width='8' height='8' fill='#0000ff'/><image width='8' height='8' "
                    "xlink:href='"
                    + address + "'/>"),
            8);
        ASSERT_TRUE(drawn.has_value());
        EXPECT_EQ(drawn->pixelColor(4, 4), QColor(Qt::blue)) << address.left(20).constData();
    }
}

TEST_F(PictureDecodingTest, doesNotDecodeWhatWouldNotFit)
{
    const auto bomb = boastingPng(30'000, 30'000);
    EXPECT_EQ(codec.pixelSize(bomb), QSize(30'000, 30'000));
    EXPECT_FALSE(codec.decode(bomb));
    EXPECT_FALSE(codec.thumbnail(bomb, 60));
    EXPECT_FALSE(codec.thumbnail(boastingPng(0x7fffffff, 0x7fffffff), 60));
}

TEST_F(PictureDecodingTest, brokenBytesYieldNone)
{
    const auto png = written(halves(64, 64), "png");
    for (const QByteArray &bytes :
         {QByteArray(), QByteArray("no picture"), png.first(30), png.first(png.size() / 2),
          QByteArray(10'000, '\0'), QByteArray("\x1f\x8b\x08 packed drawing"),
          QByteArray("II*\0\xff\xff\xff\xff", 8), QByteArray("<svg")}) {
        EXPECT_FALSE(codec.decode(bytes)) << bytes.left(12).toHex().constData();
        EXPECT_FALSE(codec.thumbnail(bytes, 60)) << bytes.left(12).toHex().constData();
    }
    EXPECT_FALSE(codec.pixelSize("no picture"));
    EXPECT_FALSE(codec.thumbnail(png, 0));
}

TEST_F(PictureDecodingTest, readsFilesByTheirExactNames)
{
    const auto png = written(halves(40, 20), "png");
    for (const char *name : {"plain.png", "a b#c?d%.png", "caf\xE9.png", "png.named.jpg", "none"}) {
        const QUrl url = saved(name, png);
        EXPECT_EQ(codec.decodeFile(url)->size(), QSize(40, 20)) << name;
        EXPECT_EQ(codec.fileThumbnail(url, 10)->size(), QSize(10, 5)) << name;
    }
}

TEST_F(PictureDecodingTest, opensRegularFilesOnly)
{
    const QByteArray pipe = folder.path().toUtf8() + "/pipe.png";
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    EXPECT_FALSE(codec.fileThumbnail(file_url::fromNativePath(pipe), 60));
    EXPECT_FALSE(codec.fileThumbnail(QUrl::fromLocalFile(folder.path()), 60));
    EXPECT_FALSE(codec.fileThumbnail(QUrl(QStringLiteral("file:///dev/zero")), 60));
    EXPECT_FALSE(codec.fileThumbnail(QUrl(QStringLiteral("file:///gone.png")), 60));
    EXPECT_FALSE(codec.fileThumbnail(QUrl(QStringLiteral("https://example.org/x.png")), 60));
}

TEST_F(PictureDecodingTest, writesWhatItReads)
{
    const auto image = halves(40, 20);
    for (const char *name : {"image/png", "image/tiff", "image/jpeg", "image/webp"}) {
        const auto bytes = codec.encode(image, UTType(QLatin1String(name)));
        ASSERT_TRUE(bytes) << name;
        EXPECT_EQ(codec.decode(*bytes)->size(), image.size()) << name;
    }
    EXPECT_EQ(codec.decode(*codec.encode(image, UTType::png()))->convertToFormat(image.format()),
              image);
    EXPECT_FALSE(codec.encode(image, UTType(QStringLiteral("application/pdf"))));
    EXPECT_FALSE(codec.encode({}, UTType::png()));
}

TEST_F(PictureDecodingTest, keepsSixteenBitsAChannel)
{
    const QColor colour = QColor::fromRgba64(0x1234, 0x5678, 0x9abc, 0xdef0);
    for (const auto format :
         {QImage::Format_RGBX64, QImage::Format_RGBA64, QImage::Format_Grayscale16}) {
        QImage image(8, 8, format);
        image.fill(colour);
        const auto back = codec.decode(written(image, "tiff"));
        ASSERT_TRUE(back);
        EXPECT_EQ(back->pixelColor(3, 3).rgba64(), image.pixelColor(3, 3).rgba64()) << format;
        const auto png = codec.decode(*codec.encode(*back, UTType::png()));
        EXPECT_EQ(png->pixelColor(3, 3).rgba64(), image.pixelColor(3, 3).rgba64()) << format;
    }
    QImage wide(8, 8, QImage::Format_RGBA32FPx4);
    wide.fill(colour);
    const auto png = codec.decode(*codec.encode(wide, UTType::png()));
    EXPECT_EQ(png->pixelColor(3, 3).rgba64(), wide.pixelColor(3, 3).rgba64());
}

namespace {

/// A TIFF of one row of pixels, eight bits a channel, whose last channel is an alpha of that kind:
/// 0 not said, 1 multiplied into the colours, 2 not multiplied.
QByteArray translucentTiff(const QByteArray &pixels, quint32 samples, quint32 alphaKind)
{
    const quint32 width = static_cast<quint32>(pixels.size()) / samples;
    QByteArray tiff("II*\0\x08\0\0\0", 8);
    const auto number = [&tiff](quint32 value, int bytes) {
        for (int i = 0; i < bytes; ++i)
            tiff.append(static_cast<char>(value >> (8 * i)));
    };
    constexpr quint32 count = 11;
    const quint32 afterDirectory = 8 + 2 + count * 12 + 4;
    number(count, 2);
    const auto entry = [&](quint32 tag, quint32 values, quint32 value) {
        number(tag, 2);
        number(3, 2);
        number(values, 4);
        number(value, 4);
    };
    entry(256, 1, width);
    entry(257, 1, 1);
    entry(258, samples, samples <= 2 ? 0x0008'0008 : afterDirectory);
    entry(259, 1, 1);
    entry(262, 1, samples <= 2 ? 1 : 2);
    entry(273, 1, afterDirectory + 8);
    entry(277, 1, samples);
    entry(278, 1, 1);
    entry(279, 1, static_cast<quint32>(pixels.size()));
    entry(284, 1, 1);
    entry(338, 1, alphaKind);
    number(0, 4);
    for (int i = 0; i < 4; ++i)
        number(8, 2);
    return tiff + pixels;
}

} // namespace

TEST_F(PictureDecodingTest, keepsTheColoursOfTranslucentPixels)
{
    const QByteArray pixels("\xc8\x64\x32\x03\xff\x00\x80\x00\x01\x02\x03\xff", 12);
    const auto image = codec.decode(translucentTiff(pixels, 4, 2));
    ASSERT_TRUE(image);
    EXPECT_EQ(image->pixel(0, 0), qRgba(200, 100, 50, 3));
    EXPECT_EQ(image->pixel(1, 0), qRgba(255, 0, 128, 0));
    EXPECT_EQ(image->pixel(2, 0), qRgba(1, 2, 3, 255));
    const auto png = codec.decode(*codec.encode(*image, UTType::png()));
    EXPECT_EQ(png->pixel(0, 0), qRgba(200, 100, 50, 3));
    EXPECT_EQ(png->pixel(1, 0), qRgba(255, 0, 128, 0));
}

TEST_F(PictureDecodingTest, readsTranslucentTiffOfEveryKind)
{
    const auto multiplied = codec.decode(translucentTiff({"\x40\x20\x10\x80", 4}, 4, 1));
    ASSERT_TRUE(multiplied);
    EXPECT_EQ(multiplied->format(), QImage::Format_ARGB32_Premultiplied);
    EXPECT_NEAR(multiplied->pixelColor(0, 0).red(), 128, 1);
    const auto unsaid = codec.decode(translucentTiff({"\xc8\x64\x32\x03", 4}, 4, 0));
    ASSERT_TRUE(unsaid);
    EXPECT_EQ(unsaid->pixel(0, 0), qRgba(200, 100, 50, 3));
    const auto grey = codec.decode(translucentTiff({"\xc8\x03\x64\xff", 4}, 2, 2));
    ASSERT_TRUE(grey);
    EXPECT_EQ(grey->pixel(0, 0), qRgba(200, 200, 200, 3));
    EXPECT_EQ(grey->pixel(1, 0), qRgba(100, 100, 100, 255));
    const auto multipliedGrey = codec.decode(translucentTiff({"\x40\x80", 2}, 2, 1));
    ASSERT_TRUE(multipliedGrey);
    EXPECT_EQ(multipliedGrey->pixelColor(0, 0).alpha(), 128);
    EXPECT_NEAR(multipliedGrey->pixelColor(0, 0).red(), 128, 1);
}

TEST_F(PictureDecodingTest, brokenTiffDirectoriesYieldNone)
{
    const auto whole = translucentTiff({"\xc8\x64\x32\x03", 4}, 4, 2);
    for (qsizetype length = 1; length < whole.size() - 4; length += 3)
        EXPECT_FALSE(codec.decode(whole.first(length))) << length;
    auto elsewhere = whole;
    elsewhere.replace(4, 4, QByteArray(4, '\xff'));
    EXPECT_FALSE(codec.decode(elsewhere));
}

TEST_F(PictureDecodingTest, aJpegShowsWhiteWhereThePictureWasTransparent)
{
    QImage clear(16, 16, QImage::Format_ARGB32_Premultiplied);
    clear.fill(Qt::transparent);
    const auto bytes = codec.encode(clear, UTType(QStringLiteral("image/jpeg")));
    EXPECT_GT(codec.decode(*bytes)->pixelColor(8, 8).lightness(), 250);
}

TEST_F(PictureDecodingTest, doesNotDecodeDocumentsThatCanShowPages)
{
    const QByteArray pdf = "%PDF-1.4\n"
                           "1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
                           "2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj\n"
                           "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 72 72]>>endobj\n"
                           "trailer<</Root 1 0 R>>\n%%EOF\n";
    EXPECT_FALSE(codec.thumbnail(pdf, 60));
    EXPECT_FALSE(codec.fileThumbnail(saved("a.pdf", pdf), 60));
    EXPECT_FALSE(codec.fileThumbnail(saved("a.png", pdf), 60));
}

} // namespace corvane::test
