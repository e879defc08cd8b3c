#include "golden/image_comparison.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// A word and a plate on a dark ground, in the way of our panels.
Picture sample(const std::function<void(QPainter &)> &change = {})
{
    Picture picture{QImage(160, 48, QImage::Format_RGB32), 1, {QRect(8, 8, 60, 20)}};
    picture.image.fill(QColor(20, 20, 22));
    QPainter painter(&picture.image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 30));
    painter.drawEllipse(QPointF(120, 24), 11, 11);
    if (change)
        change(painter);
    return picture;
}

bool isSame(const Picture &left, const Picture &right, Comparison comparison)
{
    return !difference(left.image, right, comparison);
}

} // namespace

TEST(ImageComparison, APictureIsLikeItself)
{
    for (const Comparison comparison : {Comparison::Exact, Comparison::Tiles})
        EXPECT_TRUE(isSame(sample(), sample(), comparison));
}

TEST(ImageComparison, AnotherSizeDiffers)
{
    Picture wide = sample();
    wide.image = wide.image.copy(0, 0, 161, 48);
    for (const Comparison comparison : {Comparison::Exact, Comparison::Tiles})
        EXPECT_FALSE(isSame(sample(), wide, comparison));
}

TEST(ImageComparison, OneStepAtOnePixelDiffersExactlyAndIsRoundingElsewhere)
{
    Picture picture = sample();
    picture.image.setPixelColor(100, 40, QColor(21, 20, 22));
    EXPECT_EQ(difference(sample().image, picture, Comparison::Exact),
              QStringLiteral("1 pixels differ, all within 1 x 1 pixels at 100, 40"));
    EXPECT_TRUE(isSame(sample(), picture, Comparison::Tiles));
}

TEST(ImageComparison, ATileWhoseEveryPixelIsAStepBrighterDiffers)
{
    const Picture brighter
        = sample([](QPainter &painter) { painter.fillRect(88, 40, 8, 8, QColor(21, 21, 23)); });
    EXPECT_EQ(difference(sample().image, brighter, Comparison::Tiles),
              QStringLiteral("1 tiles or texts differ, all within 8 x 8 pixels at 88, 40"));
}

TEST(ImageComparison, ASpotThatVanishedDiffersWhereverItWas)
{
    const Picture spot
        = sample([](QPainter &painter) { painter.fillRect(20, 12, 2, 2, Qt::white); });
    for (const Comparison comparison : {Comparison::Exact, Comparison::Tiles})
        EXPECT_FALSE(isSame(spot, sample(), comparison));
}

TEST(ImageComparison, EdgesOfLettersMayDifferALittleWhereThereAreLettersOnly)
{
    // A stem of two pixels, and the same a quarter of a pixel further on: as much ink.
    const auto stem = [](int x) {
        return [x](QPainter &painter) {
            painter.fillRect(x, 10, 1, 10, QColor(200, 200, 200));
            painter.fillRect(x + 1, 10, 1, 10, QColor(200, 200, 200));
        };
    };
    const auto moved = [](int x) {
        return [x](QPainter &painter) {
            painter.fillRect(x, 10, 1, 10, QColor(155, 155, 155));
            painter.fillRect(x + 1, 10, 1, 10, QColor(200, 200, 200));
            painter.fillRect(x + 2, 10, 1, 10, QColor(65, 65, 65));
        };
    };
    EXPECT_TRUE(isSame(sample(stem(19)), sample(moved(19)), Comparison::Tiles));
    EXPECT_FALSE(isSame(sample(stem(91)), sample(moved(91)), Comparison::Tiles));
    EXPECT_FALSE(isSame(sample(stem(19)), sample(stem(20)), Comparison::Tiles));
}

} // namespace corvane::test
