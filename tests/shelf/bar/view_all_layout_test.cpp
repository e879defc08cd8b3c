#include "platform/base/geometry.h"
#include "shelf/bar/view_all_layout.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using namespace view_all_layout;
using Fill = ViewAllLayout::Fill;

ViewAllState state(double width, int items, int offset = 0, int selected = 0)
{
    ViewAllState state;
    state.size = {width, barHeight};
    state.itemCount = items;
    state.selectedCount = selected;
    state.offset = offset;
    const Range range = visibleRange(offset, items, itemsPerPage(width));
    state.tiles.resize(static_cast<std::size_t>(range.end - range.first));
    return state;
}

QRectF hitOf(const ViewAllLayout &layout, ViewAllControl control)
{
    return layout.controlHits.at(static_cast<std::size_t>(control));
}

} // namespace

TEST(ViewAllLayout, fromRightToLeftEverythingIsWhereAMirrorShowsIt)
{
    ViewAllState given = state(600, 20, 4, 2);
    const ViewAllLayout usual = layOut(given);
    given.direction = Qt::RightToLeft;
    const ViewAllLayout layout = layOut(given);
    EXPECT_FALSE(usual.isMirrored);
    EXPECT_TRUE(layout.isMirrored);
    const auto isMirrored = [&](const QRectF &one, const QRectF &other) {
        return one.left() + other.right() == 600 && one.size() == other.size()
            && one.y() == other.y();
    };
    ASSERT_EQ(layout.tiles.size(), usual.tiles.size());
    for (std::size_t i = 0; i < usual.tiles.size(); ++i) {
        const ViewAllLayout::Tile &tile = layout.tiles[i];
        const ViewAllLayout::Tile &other = usual.tiles[i];
        const auto inBar = [](const QRectF &frame, const ViewAllLayout::Tile &in) {
            return frame.translated(in.root.topLeft());
        };
        EXPECT_TRUE(isMirrored(tile.root, other.root));
        EXPECT_TRUE(isMirrored(inBar(tile.thumb, tile), inBar(other.thumb, other)));
        EXPECT_TRUE(isMirrored(inBar(tile.ring, tile), inBar(other.ring, other)));
        EXPECT_TRUE(isMirrored(inBar(tile.check, tile), inBar(other.check, other)));
        EXPECT_TRUE(isMirrored(inBar(tile.caption, tile), inBar(other.caption, other)));
    }
    EXPECT_TRUE(isMirrored(layout.leftArrow.frame, usual.leftArrow.frame));
    EXPECT_TRUE(isMirrored(layout.rightArrow.frame, usual.rightArrow.frame));
    EXPECT_TRUE(isMirrored(layout.selectAllBox.frame, usual.selectAllBox.frame));
    EXPECT_TRUE(isMirrored(layout.selectAllLabel, usual.selectAllLabel));
    EXPECT_TRUE(isMirrored(layout.copyButton.frame, usual.copyButton.frame));
    EXPECT_TRUE(isMirrored(layout.trashButton.frame, usual.trashButton.frame));
    for (const ViewAllControl control : allViewAllControls)
        EXPECT_TRUE(isMirrored(hitOf(layout, control), hitOf(usual, control)));
}

TEST(ViewAllLayout, aPageHoldsWhatFitsBetweenTheArrows)
{
    EXPECT_EQ(itemsPerPage(600), 5);
    EXPECT_EQ(itemsPerPage(1210), 12);
    EXPECT_EQ(itemsPerPage(92), 1);
    EXPECT_EQ(itemsPerPage(50), 1);
    EXPECT_EQ(itemsPerPage(-3), 1);
    EXPECT_EQ(itemsPerPage(93), 1);
    EXPECT_EQ(itemsPerPage(261), 1);
    EXPECT_EQ(itemsPerPage(262), 2) << "two tiles and one gap fit exactly";
}

TEST(ViewAllLayout, offsetsRunFromNoneToTheLastFullPage)
{
    EXPECT_EQ(clampedOffset(-1, 20, 5), 0);
    EXPECT_EQ(clampedOffset(7, 20, 5), 7);
    EXPECT_EQ(clampedOffset(16, 20, 5), 15);
    EXPECT_EQ(clampedOffset(3, 4, 5), 0);
    EXPECT_EQ(clampedOffset(3, 0, 5), 0);
}

TEST(ViewAllLayout, showsAPageFromTheOffset)
{
    EXPECT_EQ(visibleRange(15, 20, 5).first, 15);
    EXPECT_EQ(visibleRange(15, 20, 5).end, 20);
    EXPECT_EQ(visibleRange(18, 20, 5).end, 20);
    EXPECT_EQ(visibleRange(40, 20, 5).first, 19);
    EXPECT_EQ(visibleRange(0, 0, 5).first, 0);
    EXPECT_EQ(visibleRange(0, 0, 5).end, 0);
}

TEST(ViewAllLayout, centresFewTiles)
{
    const ViewAllLayout layout = layOut(state(600, 3));
    ASSERT_EQ(layout.tiles.size(), 3U);
    EXPECT_EQ(layout.tiles[0].root, QRectF(170, 0, 80, 132));
    EXPECT_EQ(layout.tiles[1].root, QRectF(260, 0, 80, 132));
    EXPECT_EQ(layout.tiles[2].root, QRectF(350, 0, 80, 132));
}

TEST(ViewAllLayout, beginsAtTheMarginWhereTilesDoNotFit)
{
    const ViewAllLayout layout = layOut(state(92, 3));
    ASSERT_EQ(layout.tiles.size(), 1U);
    EXPECT_EQ(layout.tiles[0].root.x(), 46);
}

TEST(ViewAllLayout, placesTheLayersOfATile)
{
    const ViewAllLayout::Tile tile = layOut(state(600, 1)).tiles.at(0);
    EXPECT_EQ(tile.thumb, QRectF(8, 56, 64, 64));
    EXPECT_EQ(tile.ring, QRectF(6, 54, 68, 68));
    EXPECT_EQ(tile.check, QRectF(52, 100, 16, 16));
    EXPECT_EQ(tile.caption, QRectF(2, 39, 76, 13));
}

TEST(ViewAllLayout, dimsWhatIsNotSelected)
{
    ViewAllState given = state(600, 2);
    given.tiles[0].isSelected = true;
    given.tiles[1].isHovered = true;
    const ViewAllLayout layout = layOut(given);
    EXPECT_EQ(layout.tiles[0].thumbOpacity, 1);
    EXPECT_TRUE(layout.tiles[0].isChecked);
    EXPECT_EQ(layout.tiles[0].ringOpacity, 0);
    EXPECT_EQ(layout.tiles[1].thumbOpacity, 0.38);
    EXPECT_FALSE(layout.tiles[1].isChecked);
    EXPECT_EQ(layout.tiles[1].ringOpacity, 1);
}

TEST(ViewAllLayout, anArrowIsOffAtItsEnd)
{
    const ViewAllLayout first = layOut(state(600, 20, 0));
    EXPECT_EQ(first.leftArrow.opacity, 0.3);
    EXPECT_EQ(first.leftArrow.fill, Fill::Off);
    EXPECT_EQ(first.rightArrow.opacity, 0.8);
    EXPECT_EQ(first.rightArrow.fill, Fill::Normal);

    const ViewAllLayout last = layOut(state(600, 20, 15));
    EXPECT_EQ(last.leftArrow.opacity, 0.8);
    EXPECT_EQ(last.rightArrow.opacity, 0.3);
    EXPECT_EQ(last.rightArrow.fill, Fill::Off);
    EXPECT_EQ(layOut(state(600, 20, 14)).rightArrow.fill, Fill::Normal);
}

TEST(ViewAllLayout, aHoveredArrowBrightensUnlessItIsOff)
{
    ViewAllState given = state(600, 20, 0);
    given.hoveredControl = ViewAllControl::Forward;
    EXPECT_EQ(layOut(given).rightArrow.opacity, 1);
    EXPECT_EQ(layOut(given).rightArrow.fill, Fill::Hover);
    EXPECT_EQ(layOut(given).leftArrow.opacity, 0.3);
    given.hoveredControl = ViewAllControl::Back;
    EXPECT_EQ(layOut(given).leftArrow.opacity, 0.3);
    EXPECT_EQ(layOut(given).leftArrow.fill, Fill::Off);
}

TEST(ViewAllLayout, anArrowThatIsOffKeepsItsHitArea)
{
    const ViewAllLayout layout = layOut(state(600, 2));
    EXPECT_EQ(layout.leftArrow.frame, QRectF(14, 77, 22, 22));
    EXPECT_EQ(hitOf(layout, ViewAllControl::Back), QRectF(8, 69, 34, 38));
    EXPECT_EQ(layout.rightArrow.frame, QRectF(564, 77, 22, 22));
    EXPECT_EQ(hitOf(layout, ViewAllControl::Forward), QRectF(558, 69, 34, 38));
}

TEST(ViewAllLayout, saysHowManyAreSelected)
{
    EXPECT_EQ(layOut(state(600, 5, 0, 2)).selectionText, QStringLiteral("2 of 5 selected"));
}

TEST(ViewAllLayout, theBoxIsCheckedOnlyWhenEverythingIsSelected)
{
    EXPECT_TRUE(layOut(state(600, 5, 0, 5)).isEverythingSelected);
    EXPECT_FALSE(layOut(state(600, 5, 0, 4)).isEverythingSelected);
    EXPECT_FALSE(layOut(state(600, 5, 0, 0)).isEverythingSelected);
    EXPECT_FALSE(layOut(state(600, 0)).isEverythingSelected) << "nothing is not everything";
}

TEST(ViewAllLayout, theActionsStandInTheLowerCorners)
{
    const ViewAllLayout layout = layOut(state(600, 5, 0, 2));
    EXPECT_EQ(layout.selectAllBox.frame, QRectF(14, 12, 16, 16));
    EXPECT_EQ(layout.selectAllLabel, QRectF(37, 13, 240, 14));
    EXPECT_EQ(layout.trashButton.frame, QRectF(569, 11, 17, 17));
    EXPECT_EQ(layout.copyButton.frame, QRectF(538, 11, 17, 17));
    EXPECT_EQ(hitOf(layout, ViewAllControl::SelectAll), QRectF(10, 7, 268, 26));
    EXPECT_EQ(hitOf(layout, ViewAllControl::Copy), QRectF(532, 5, 29, 29));
    EXPECT_EQ(hitOf(layout, ViewAllControl::Trash), QRectF(563, 5, 29, 29));
}

TEST(ViewAllLayout, actionsFadeWithNothingSelectedAndBrightenUnderThePointer)
{
    ViewAllState given = state(600, 5, 0, 0);
    given.hoveredControl = ViewAllControl::Copy;
    EXPECT_EQ(layOut(given).copyButton.opacity, 0.16);
    EXPECT_EQ(layOut(given).trashButton.opacity, 0.16);
    EXPECT_EQ(layOut(given).selectAllBox.opacity, 0.75);
    given.selectedCount = 1;
    EXPECT_EQ(layOut(given).copyButton.opacity, 1);
    EXPECT_EQ(layOut(given).trashButton.opacity, 0.55);
    given.hoveredControl = ViewAllControl::SelectAll;
    EXPECT_EQ(layOut(given).copyButton.opacity, 0.55);
    EXPECT_EQ(layOut(given).selectAllBox.opacity, 1);
}

TEST(ViewAllLayout, findsTheControlUnderAPoint)
{
    const ViewAllLayout layout = layOut(state(600, 20));
    for (const ViewAllControl control : allViewAllControls)
        EXPECT_EQ(controlAt(layout, hitOf(layout, control).center()), control);
    EXPECT_FALSE(controlAt(layout, {300, 90}));
    EXPECT_EQ(controlAt(layout, {10, 7}), ViewAllControl::SelectAll);
    EXPECT_FALSE(controlAt(layout, {278, 7})) << "the right edge does not belong to it";
}

TEST(ViewAllLayout, aTilesWholeColumnIsItsHitArea)
{
    const ViewAllLayout layout = layOut(state(600, 3));
    EXPECT_EQ(tileAt(layout, {170, 0}), 0U);
    EXPECT_EQ(tileAt(layout, {249, 131}), 0U);
    EXPECT_FALSE(tileAt(layout, {250, 60})) << "between two tiles is none";
    EXPECT_EQ(tileAt(layout, {260, 60}), 1U);
    EXPECT_FALSE(tileAt(layout, {260, 132}));
}

} // namespace corvane::test
