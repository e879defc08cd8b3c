#include "core/image_converter.h"
#include "core/spool_place.h"
#include "core/temporary_spool.h"
#include "fakes/fake_image_codec.h"
#include "fakes/in_process_codec.h"
#include "platform/base/cancellation.h"

#include <QBuffer>

#include <gtest/gtest.h>

namespace corvane {
namespace {

using test::contents;
using test::exists;

struct ImageConverterTest : testing::Test, test::TemporarySpool {
    ImageConverterTest() { codec.teach("picture", {3, 2}); }

    test::FakeImageCodec codec;
    ImageConverter converter{codec};
    std::shared_ptr<SpoolPlace> place
        = spool.keepPlace(QStringLiteral("scan"), QStringLiteral("png"));
};

TEST_F(ImageConverterTest, WritesTheNewPicture)
{
    EXPECT_TRUE(converter.transcode(temporary.write("a.tiff", "picture"), UTType::png(), *place));
    EXPECT_EQ(contents(place->url()), "image/png 3x2");
    const auto other = spool.keepPlace(QStringLiteral("scan"), QStringLiteral("png"));
    EXPECT_TRUE(converter.transcode(QByteArray("picture"), UTType::png(), *other));
    EXPECT_EQ(contents(other->url()), "image/png 3x2");
}

TEST_F(ImageConverterTest, HasNoResultWhereSomethingFails)
{
    const auto fails = [this](const QByteArray &bytes) {
        return !converter.transcode(bytes, UTType::png(), *place) && !exists(place->url());
    };
    EXPECT_TRUE(fails("broken"));
    EXPECT_FALSE(converter.transcode(temporary.url("gone.tiff"), UTType::png(), *place));
    codec.refusesToEncode = true;
    EXPECT_TRUE(fails("picture"));
    codec.refusesToEncode = false;
    spool.discardAll();
    EXPECT_TRUE(fails("picture"));
}

TEST_F(ImageConverterTest, StopsWhereNobodyWantsTheFileAnyMore)
{
    spool.discard(place->url());
    EXPECT_FALSE(converter.transcode(QByteArray("picture"), UTType::png(), *place));
    EXPECT_FALSE(exists(place->url()));
}

TEST_F(ImageConverterTest, TellsTheCodecWhenTheFileIsNotWantedAnyMore)
{
    bool isTold = false;
    codec.onTranscode = [&](Cancellation &cancellation) {
        const Cancellation::Handler handler(cancellation, [&] { isTold = true; });
        spool.discard(place->url());
    };
    EXPECT_FALSE(converter.transcode(QByteArray("picture"), UTType::png(), *place));
    EXPECT_TRUE(isTold);
    EXPECT_FALSE(exists(place->url()));
}

TEST_F(ImageConverterTest, TurnsARealTiffIntoAPng)
{
    QImage picture(4, 3, QImage::Format_ARGB32);
    picture.fill(QColor(200, 100, 50));
    QByteArray tiff;
    QBuffer buffer(&tiff);
    ASSERT_TRUE(picture.save(&buffer, "TIFF"));
    const test::InProcessCodec realCodec;
    const ImageConverter real(realCodec);
    ASSERT_TRUE(real.transcode(temporary.write("scan.tiff", tiff), UTType::png(), *place));
    const QImage png = QImage::fromData(contents(place->url()), "PNG");
    EXPECT_EQ(png.size(), QSize(4, 3));
    EXPECT_EQ(png.pixel(1, 1), qRgb(200, 100, 50));
}

} // namespace
} // namespace corvane
