#include "core/image_converter.h"
#include "core/temporary_spool.h"
#include "fakes/fake_image_codec.h"
#include "platform/qt/qt_image_codec.h"

#include <QBuffer>

#include <gtest/gtest.h>

namespace corvane {
namespace {

using test::contents;

struct ImageConverterTest : testing::Test, test::TemporarySpool {
    ImageConverterTest() { codec.teach("picture", {3, 2}); }

    QString nameOf(const std::optional<QUrl> &url)
    {
        return url ? file_url::lastPathComponent(*url) : QString();
    }

    test::FakeImageCodec codec;
    ImageConverter converter{codec, spool};
};

TEST_F(ImageConverterTest, NamesTheNewFileAfterTheOldOne)
{
    const QUrl scan = temporary.write("scan.tiff", "picture");
    const auto first = converter.transcode(scan, UTType::png());
    EXPECT_EQ(nameOf(first), QStringLiteral("scan.png"));
    EXPECT_EQ(contents(*first), "image/png 3x2");
    EXPECT_TRUE(spool.contains(*first));
    EXPECT_EQ(nameOf(converter.transcode(scan, UTType::png())), QStringLiteral("scan 2.png"));
}

TEST_F(ImageConverterTest, NamesBytesAsItIsTold)
{
    const auto url
        = converter.transcode(QByteArray("picture"), UTType::png(), QStringLiteral("Image"));
    EXPECT_EQ(nameOf(url), QStringLiteral("Image.png"));
}

TEST_F(ImageConverterTest, UsesPngAsTheExtensionOfATypeWithoutOne)
{
    const auto url
        = converter.transcode(QByteArray("picture"), UTType(QStringLiteral("x-own/kind")), {});
    EXPECT_EQ(nameOf(url), QStringLiteral("Item.png"));
}

TEST_F(ImageConverterTest, HasNoResultWhereSomethingFails)
{
    const auto fails = [this](const QByteArray &bytes) {
        return !converter.transcode(bytes, UTType::png(), {}).has_value();
    };
    EXPECT_TRUE(fails("broken"));
    EXPECT_FALSE(converter.transcode(temporary.url("gone.tiff"), UTType::png()).has_value());
    codec.refusesToEncode = true;
    EXPECT_TRUE(fails("picture"));
    codec.refusesToEncode = false;
    spoil();
    EXPECT_TRUE(fails("picture"));
}

TEST_F(ImageConverterTest, TurnsARealTiffIntoAPng)
{
    QImage picture(4, 3, QImage::Format_ARGB32);
    picture.fill(QColor(200, 100, 50));
    QByteArray tiff;
    QBuffer buffer(&tiff);
    ASSERT_TRUE(picture.save(&buffer, "TIFF"));
    const QtImageCodec realCodec;
    const ImageConverter real(realCodec, spool);
    const auto url = real.transcode(temporary.write("scan.tiff", tiff), UTType::png());
    ASSERT_TRUE(url.has_value());
    const QImage png = QImage::fromData(contents(*url), "PNG");
    EXPECT_EQ(png.size(), QSize(4, 3));
    EXPECT_EQ(png.pixel(1, 1), qRgb(200, 100, 50));
}

} // namespace
} // namespace corvane
