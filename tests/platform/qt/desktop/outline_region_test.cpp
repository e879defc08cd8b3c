#include "platform/qt/desktop/outline_region.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

QRegion regionOf(const QRectF &rect, QSize size)
{
    QPainterPath path;
    path.addRect(rect);
    return outlineRegion(path, size);
}

/// Regions of the same pixels may be made of different rectangles.
testing::AssertionResult areSame(const QRegion &region, const QRegion &expected)
{
    const QRect different = region.xored(expected).boundingRect();
    if (different.isEmpty())
        return testing::AssertionSuccess();
    return testing::AssertionFailure()
        << "they differ from " << different.x() << ", " << different.y() << " on";
}

} // namespace

TEST(OutlineRegion, ReachesToEveryEdgeAndNoFurther)
{
    for (const int width : {7, 8})
        EXPECT_TRUE(areSame(regionOf({0, 0, 8, 8}, {width, 4}), QRegion(0, 0, width, 4))) << width;
}

TEST(OutlineRegion, HasThePixelsThatAreCoveredAtLeastByHalf)
{
    EXPECT_TRUE(areSame(regionOf({1.5, 1, 4, 2}, {8, 4}), QRegion(1, 1, 5, 2)));
    EXPECT_TRUE(areSame(regionOf({1.75, 1, 4, 2}, {8, 4}), QRegion(2, 1, 4, 2)));
}

TEST(OutlineRegion, KeepsHolesOpen)
{
    QPainterPath path;
    path.addRect({0, 0, 8, 4});
    path.addRect({3, 1, 2, 2});
    EXPECT_TRUE(areSame(outlineRegion(path, {8, 4}), QRegion(0, 0, 8, 4) - QRegion(3, 1, 2, 2)));
}

TEST(OutlineRegion, OfNothingIsEmpty)
{
    EXPECT_TRUE(outlineRegion({}, {8, 4}).isEmpty());
    EXPECT_TRUE(regionOf({0, 0, 8, 4}, {0, 4}).isEmpty());
}

} // namespace corvane::test
