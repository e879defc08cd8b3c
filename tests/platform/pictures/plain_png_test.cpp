#include "platform/pictures/plain_png.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

QImage colourful(QSize size, QImage::Format format)
{
    QImage image(size, format);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y,
                                QColor(x * 37 % 256, y * 91 % 256, x * y % 256, 255 - x % 200));
    }
    return image;
}

QImage readAgain(const QImage &image)
{
    const auto png = plainPng(image);
    return png ? QImage::fromData(*png, "PNG") : QImage();
}

TEST(PlainPngTest, IsThePictureThatItWasMadeOf)
{
    for (const QSize size : {QSize(1, 1), QSize(3, 500), QSize(255, 256)}) {
        const QImage opaque = colourful(size, QImage::Format_RGB32);
        EXPECT_EQ(readAgain(opaque), opaque);
        EXPECT_FALSE(readAgain(opaque).hasAlphaChannel());
        const QImage translucent = colourful(size, QImage::Format_ARGB32);
        EXPECT_EQ(readAgain(translucent), translucent);
    }
}

TEST(PlainPngTest, UndoesTheMultiplicationWithAlpha)
{
    const QImage picture = colourful({40, 30}, QImage::Format_ARGB32)
                               .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(readAgain(picture).convertToFormat(picture.format()), picture);
}

TEST(PlainPngTest, NoPictureMakesNoFile)
{
    EXPECT_FALSE(plainPng(QImage()).has_value());
}

} // namespace
} // namespace corvane
