#include "platform/desktop/panel_placement.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

ScreenPointer screenAt(const QRectF &frame)
{
    const auto screen = std::make_shared<Screen>();
    screen->frame = frame;
    return screen;
}

} // namespace

TEST(PanelPlacement, isInTheMiddleAndCountedFromTheTop)
{
    const ScreenPointer screen = screenAt({1512, 200, 1001, 800});
    EXPECT_EQ(frameOf({screen, 0, {292, 56}}), QRectF(2012.5 - 146, 1000 - 56, 292, 56));
    EXPECT_EQ(frameOf({screen, 66, {801, 132}}), QRectF(1612, 1000 - 66 - 132, 801, 132));
    EXPECT_EQ(frameOf({screen, 66, {801, 132}, 7}), QRectF(1619, 1000 - 66 - 132, 801, 132));
}

TEST(PanelPlacement, isAtTheOriginWhereTheDesktopChooses)
{
    EXPECT_EQ(frameOf({nullptr, 10, {560, 136}}), QRectF(0, 0, 560, 136));
}

TEST(PanelPlacement, isFoundForEveryFrame)
{
    const QRectF frame(254, 544, 648, 438);
    const PanelPlacement placement = placementOn(screenAt({0, 0, 800, 600}), frame);
    EXPECT_EQ(placement.fromTop, -382);
    EXPECT_EQ(placement.fromMiddle, 178);
    EXPECT_EQ(frameOf(placement), frame);
}

} // namespace corvane::test
