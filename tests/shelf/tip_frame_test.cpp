#include "platform/base/geometry.h"
#include "shelf/tip_frame.h"

#include <gtest/gtest.h>

#include <cmath>

namespace corvane::test {

namespace {

/// A panel at the top of a screen, and a cell of it.
TipSurroundings cellAt(double x, double y = 540)
{
    return {.cell = {x, y, 60, 60},
            .panel = {1300, y, 400, 60},
            .otherPanels = {},
            .screen = {1000, -200, 1000, 800}};
}

TipSurroundings cellAboveABarAt(double x)
{
    TipSurroundings around = cellAt(x);
    around.otherPanels = {{1100, 398, 800, 132}};
    return around;
}

constexpr QSizeF oneLine(100, 28);
constexpr double tipGap = 6;

} // namespace

TEST(TipFrame, ItIsBelowTheCellAndCentred)
{
    EXPECT_EQ(tipFrame(oneLine, cellAt(1400), tipGap), QRectF(1380, 506, 100, 28));
}

TEST(TipFrame, ItIsAboveTheCellWhereThereIsNoRoomBelow)
{
    EXPECT_EQ(tipFrame(oneLine, cellAt(1400, -180), tipGap), QRectF(1380, -114, 100, 28));
}

TEST(TipFrame, ItStaysInsideOfTheScreen)
{
    EXPECT_EQ(tipFrame({200, 28}, cellAt(1000), tipGap).x(), 1004);
    EXPECT_EQ(tipFrame({200, 28}, cellAt(1940), tipGap).x(), 2000 - 4 - 200);
}

TEST(TipFrame, WhatIsTooLargeForTheScreenBeginsAtItsEdge)
{
    EXPECT_EQ(tipFrame({2000, 28}, cellAt(1400), tipGap).x(), 1004);
}

TEST(TipFrame, ItsPlaceIsWhole)
{
    const QRectF frame = tipFrame({101, 28}, cellAt(1400.25, 530.5), tipGap);
    EXPECT_EQ(frame.x(), std::round(frame.x()));
    EXPECT_EQ(frame.y(), std::round(frame.y()));
}

TEST(TipFrame, WhereABarIsBelowItIsBesideThePanelAtTheEndNearerToTheCell)
{
    EXPECT_EQ(tipFrame(oneLine, cellAboveABarAt(1310), tipGap), QRectF(1194, 556, 100, 28));
    EXPECT_EQ(tipFrame(oneLine, cellAboveABarAt(1630), tipGap), QRectF(1706, 556, 100, 28));
}

TEST(TipFrame, WhereItIsTooHighForThatItIsBelowTheBar)
{
    EXPECT_EQ(tipFrame({100, 90}, cellAboveABarAt(1400), tipGap), QRectF(1380, 302, 100, 90));
}

TEST(TipFrame, WhereItIsTooWideForThatItIsBelowTheBar)
{
    EXPECT_EQ(tipFrame({340, 28}, cellAboveABarAt(1400), tipGap), QRectF(1260, 364, 340, 28));
}

TEST(TipFrame, APanelThatIsNotInTheWayChangesNothing)
{
    TipSurroundings around = cellAt(1400);
    around.otherPanels = {{1300, 0, 400, 100}};
    EXPECT_EQ(tipFrame(oneLine, around, tipGap), tipFrame(oneLine, cellAt(1400), tipGap));
}

TEST(TipFrame, WhereThereIsNoGoodPlaceItIsOnTheScreenAllTheSame)
{
    TipSurroundings around = cellAt(1400);
    around.otherPanels = {around.screen};
    EXPECT_EQ(tipFrame(oneLine, around, tipGap), QRectF(1380, 506, 100, 28));
}

} // namespace corvane::test
