#include "platform/base/whole_points.h"

#include <gtest/gtest.h>

namespace corvane::test {

TEST(WholePoints, roundThePlaceAndTheSizeApart)
{
    EXPECT_EQ(inWholePoints(QRectF(595.5, 66.4, 320.4, 99.5)), QRect(596, 66, 320, 100));
    EXPECT_EQ(inWholePoints(QRectF(-0.5, -0.4, 1.5, 1.4)), QRect(-1, 0, 2, 1));
}

TEST(WholePoints, areOneAtLeastAndFitWhatWindowsAreCountedIn)
{
    EXPECT_EQ(inWholePoints(QSizeF(0, -3)), QSize(1, 1));
    EXPECT_EQ(inWholePoints(QRectF(1e300, -1e300, 1e300, 5)),
              QRect(1'000'000, -1'000'000, 1'000'000, 5));
}

} // namespace corvane::test
