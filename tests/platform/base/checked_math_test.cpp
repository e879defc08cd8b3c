#include "platform/base/checked_math.h"

#include <gtest/gtest.h>

#include <limits>

namespace corvane {
namespace {

TEST(CheckedMath, Adds)
{
    EXPECT_EQ(checkedAdd(2, -3), -1);
    EXPECT_EQ(checkedAdd(std::numeric_limits<int>::max(), 0), std::numeric_limits<int>::max());
}

TEST(CheckedMathDeathTest, EndsTheProcessWhereASumDoesNotFit)
{
    EXPECT_DEATH(checkedAdd(std::numeric_limits<int>::max(), 1), "overflowed");
    EXPECT_DEATH(checkedAdd(std::numeric_limits<int>::min(), -1), "overflowed");
    EXPECT_DEATH(checkedAdd(std::numeric_limits<unsigned>::max(), 1U), "overflowed");
}

} // namespace
} // namespace corvane
