#include "platform/wayland/windows/layer_space.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

constexpr QSize screen(1920, 1080);
constexpr QRect shelf(814, 0, 292, 56);

} // namespace

TEST(LayerSpace, leavesRoomToGrowBesideAndBelow)
{
    const QRect space = layer_space::around(shelf, screen, {});
    EXPECT_EQ(space, QRect(814 - 160, 0, 292 + 320, 56 + 64));
}

TEST(LayerSpace, staysAsItIsAsLongAsThePanelFitsIn)
{
    const QRect space = layer_space::around(shelf, screen, {});
    EXPECT_EQ(layer_space::around(shelf.adjusted(-160, 0, 160, 64), screen, space), space);
    EXPECT_EQ(layer_space::around(QRect(900, 0, 10, 10), screen, space), space);
}

TEST(LayerSpace, growsByMoreThanIsNeededAndGivesNothingBack)
{
    const QRect space = layer_space::around(shelf, screen, {});
    const QRect grown = layer_space::around(shelf.adjusted(-161, 0, 0, 0), screen, space);
    EXPECT_EQ(grown, QRect(814 - 321, 0, 321 + 292 + 160, 56 + 64));
    EXPECT_EQ(layer_space::around(shelf, screen, grown), grown);
}

TEST(LayerSpace, endsWhereTheScreenDoes)
{
    const QRect wide = QRect(-20, 0, 1960, 62);
    const QRect space = layer_space::around(wide, screen, {});
    EXPECT_EQ(space, QRect(0, 0, 1920, 126));
    EXPECT_EQ(layer_space::around(wide, screen, space), space);
    EXPECT_EQ(layer_space::around(QRect(1900, 1060, 10, 10), screen, {}),
              QRect(1740, 1060, 180, 20));
}

} // namespace corvane::test
