#include "fakes/shelf_desk.h"
#include "platform/pictures/text_measurer.h"
#include "shelf/drawing/pill_path.h"
#include "shelf/shelf_hit_test.h"
#include "shelf/shelf_layout.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

ShelfSnapshot holding(int total, int inView, double notchWidth = 0, double notchHeight = 0)
{
    ShelfSnapshot snapshot;
    snapshot.state = total > 0 ? ShelfState::Occupied : ShelfState::Expanded;
    snapshot.inViewCount = inView;
    snapshot.totalCount = total;
    for (int i = 0; i < std::min(total, inView); ++i)
        snapshot.visible.emplace_back(i, ShelfDesk::fileItem(QStringLiteral("a.txt")));
    snapshot.notch = {notchWidth, notchHeight};
    return snapshot;
}

QSizeF sizeOf(const ShelfSnapshot &snapshot)
{
    return preferredSize(snapshot, 100);
}

} // namespace

TEST(ShelfLayout, OneItemInCarouselModeIs104Wide)
{
    EXPECT_EQ(sizeOf(holding(1, 3)), QSizeF(104, 62));
    EXPECT_EQ(sizeOf(holding(1, 3, 300, 30)), QSizeF(384, 92)) << "at least the notch and 84";
}

TEST(ShelfLayout, FiveItemsWithThreeInViewAre316Wide)
{
    EXPECT_EQ(sizeOf(holding(5, 3)), QSizeF(316, 62));
    EXPECT_EQ(sizeOf(holding(5, 3, 100, 32)), QSizeF(316, 94));
}

TEST(ShelfLayout, TheEmptyShelfGrowsOnlyWithAWideNotch)
{
    EXPECT_EQ(sizeOf(holding(0, 1)), QSizeF(292, 56));
    EXPECT_EQ(sizeOf(holding(0, 1, 200, 32)), QSizeF(292, 88)) << "200 + 60 is less than 268";
    EXPECT_EQ(sizeOf(holding(0, 1, 207.9, 0)), QSizeF(292, 56));
    EXPECT_EQ(sizeOf(holding(0, 1, 208, 0)), QSizeF(292, 56));
    EXPECT_EQ(sizeOf(holding(0, 1, 210, 32)), QSizeF(294, 88));
}

TEST(ShelfLayout, OneInViewIsAsWideAsItsTextAndControls)
{
    EXPECT_EQ(sizeOf(holding(1, 1)), QSizeF(100 + 111 + 11 + 11 + 24, 44));
    EXPECT_EQ(sizeOf(holding(2, 1)), QSizeF(100 + 111 + 67 + 28 + 11 + 24, 44));
}

TEST(ShelfLayout, NoShelfIsWiderThanTheWidest)
{
    double widest = 0;
    for (int inView = 1; inView <= 6; ++inView) {
        for (int total = 0; total <= 8; ++total) {
            ShelfSnapshot snapshot = holding(total, inView);
            widest = std::max(widest, preferredSize(snapshot, 190).width());
            snapshot.receptive = true;
            widest = std::max(widest, preferredSize(snapshot, 190).width());
        }
    }
    EXPECT_EQ(widest, widestShelf);
}

TEST(ShelfLayout, TheModeFollowsTheSettingAndNotTheNumberOfItems)
{
    EXPECT_EQ(sizeOf(holding(1, 2)).height(), 62);
    EXPECT_EQ(sizeOf(holding(9, 1)).height(), 44);
}

TEST(ShelfLayout, AReceptiveShelfLooksLikeADropTargetAndKeepsItsCells)
{
    ShelfSnapshot snapshot = holding(5, 3);
    snapshot.receptive = true;
    const ShelfLayout layout = layoutShelf(snapshot, 100);
    EXPECT_EQ(layout.size, QSizeF(292, 56));
    ASSERT_EQ(layout.cells.size(), 3U);
    EXPECT_EQ(layout.cells[0].thumb.y(), 18);
    EXPECT_FALSE(layout.viewAllButton);
    EXPECT_TRUE(layout.viewAllHit.isEmpty());
    ASSERT_TRUE(layout.arrows);
    EXPECT_EQ((*layout.arrows)[0].y(), 17);
}

TEST(ShelfLayout, AWidthIsRoundedHalvesAwayFromZero)
{
    EXPECT_EQ(preferredSize(holding(1, 1), 84.5).width(), 242);
    EXPECT_EQ(preferredSize(holding(1, 1), 84.4).width(), 241);
}

TEST(ShelfLayout, TextWidthIsTheWiderLineWithAMarginWithinLimits)
{
    ShelfDesk desk;
    ShelfSnapshot snapshot = holding(1, 1);
    const auto measure = [&](const QString &title, const QString &subtitle) {
        snapshot.visible[0].second.setTitle(title);
        snapshot.visible[0].second.setSubtitle(subtitle);
        return detailTextWidth(snapshot, desk.theme, desk.fakeMeasurer);
    };
    desk.fakeMeasurer.advance = 10;
    EXPECT_EQ(measure(QString(30, u'x'), {}), 190);
    EXPECT_EQ(measure({}, {}), 84);
    EXPECT_EQ(measure(QString(10, u'x'), QString(12, u'y')), 128);
    snapshot.visible.clear();
    EXPECT_EQ(detailTextWidth(snapshot, desk.theme, desk.fakeMeasurer), 84);
}

TEST(ShelfLayout, NoMoreOfAnEndlessTitleIsMeasuredThanIsShown)
{
    struct LongestText : TextMeasurer {
        double width(const QString &text, const QFont &) const override
        {
            longest = std::max(longest, text.size());
            return 1;
        }
        mutable qsizetype longest = 0;
    };
    ShelfDesk desk;
    ShelfSnapshot snapshot = holding(1, 1);
    snapshot.visible[0].second.setTitle(QString(50'000'000, u'x'));
    const LongestText measurer;
    detailTextWidth(snapshot, desk.theme, measurer);
    EXPECT_GT(measurer.longest, 0);
    EXPECT_LE(measurer.longest, 1024);
}

TEST(ShelfLayout, ArrowsNeedMoreItemsThanTheSetting)
{
    EXPECT_FALSE(layoutShelf(holding(3, 3), 100).arrows);
    EXPECT_TRUE(layoutShelf(holding(3, 3), 100).arrowHits[0].isEmpty());
    const ShelfLayout layout = layoutShelf(holding(4, 3), 100);
    ASSERT_TRUE(layout.arrows);
    const double width = layout.size.width();
    EXPECT_EQ((*layout.arrows)[0], QRectF(23, 20, 22, 22));
    EXPECT_EQ((*layout.arrows)[1], QRectF(width - 45, 20, 22, 22));
    EXPECT_EQ(layout.arrowHits[0], QRectF(20, 17, 28, 28));
}

TEST(ShelfLayout, CellsStandInTheMiddleBetweenTheArrows)
{
    const ShelfLayout layout = layoutShelf(holding(5, 3), 100);
    EXPECT_EQ(layout.cells[0].root, QRectF(51, 0, 58, 62));
    EXPECT_EQ(layout.cells[1].root, QRectF(115, 0, 58, 62));
    const ShelfLayout::Cell &cell = layout.cells[0];
    EXPECT_EQ(cell.thumb, QRectF(13, 24, 32, 32));
    EXPECT_EQ(cell.title, QRectF(2, 6, 54, 13));
    EXPECT_FALSE(cell.subtitle);
    EXPECT_EQ(cell.focusRing, QRectF(10, 21, 38, 38));
    EXPECT_EQ(cell.badge, QRectF(36, 47, 13, 13));
    EXPECT_EQ(layout.viewAllButton, QRectF(51 + 186 + 9, 21.5, 19, 19));
    EXPECT_EQ(layout.viewAllHit, QRectF(242, 16.5, 27, 29));
    EXPECT_FALSE(layout.actionButtons);
    EXPECT_FALSE(layout.divider);
}

TEST(ShelfLayout, TwoItemsAreEnoughForTheViewAllButton)
{
    for (const int inView : {1, 2, 3}) {
        EXPECT_TRUE(layoutShelf(holding(2, inView), 100).viewAllButton) << inView;
        EXPECT_FALSE(layoutShelf(holding(1, inView), 100).viewAllButton) << inView;
    }
}

TEST(ShelfLayout, OneInViewShowsTextAndActionsBesideThePicture)
{
    const ShelfLayout layout = layoutShelf(holding(1, 1), 100);
    ASSERT_EQ(layout.cells.size(), 1U);
    const ShelfLayout::Cell &cell = layout.cells[0];
    EXPECT_EQ(cell.root, QRectF(23, 0, 211, 44));
    EXPECT_EQ(cell.thumb, QRectF(0, 7, 30, 30));
    EXPECT_EQ(cell.title, QRectF(39, 22, 100, 14));
    EXPECT_EQ(cell.subtitle, QRectF(39, 8, 100, 13));
    ASSERT_TRUE(layout.actionButtons);
    const double right = 23 + 211;
    EXPECT_EQ((*layout.actionButtons)[0], QRectF(right - 63, 12.5, 19, 19));
    EXPECT_EQ((*layout.actionButtons)[1], QRectF(right - 41, 12.5, 19, 19));
    EXPECT_EQ((*layout.actionButtons)[2], QRectF(right - 19, 12.5, 19, 19));
    EXPECT_EQ(layout.actionHits[0], QRectF(right - 64.5, 8.5, 22, 27));
    EXPECT_EQ(hoverPlateFrame((*layout.actionButtons)[0]), QRectF(right - 67, 8.5, 27, 27));
    EXPECT_EQ(layout.divider, QRectF(std::round(right - 67.5), 0.28 * 44, 1, 0.44 * 44));
}

TEST(ShelfLayout, TheBodyHeightExcludesTheNotch)
{
    const ShelfLayout layout = layoutShelf(holding(1, 1, 150, 32), 100);
    EXPECT_EQ(layout.size.height(), 76);
    EXPECT_EQ(layout.bodyHeight, 44);
    EXPECT_EQ(layout.divider->height(), 0.44 * 44);
}

TEST(ShelfLayout, CellsThatDoNotFitAreToldToFade)
{
    ShelfSnapshot snapshot = holding(6, 6);
    EXPECT_FALSE(layoutShelf(snapshot, 100).overflows);
    snapshot.receptive = true;
    EXPECT_TRUE(layoutShelf(snapshot, 100).overflows);
}

TEST(ShelfLayout, FromRightToLeftEverythingIsWhereAMirrorShowsIt)
{
    ShelfSnapshot receptive = holding(6, 6);
    receptive.receptive = true;
    for (const ShelfSnapshot &snapshot : {holding(5, 1), holding(7, 3, 210, 32), receptive}) {
        const ShelfLayout usual = layoutShelf(snapshot, 100);
        const ShelfLayout layout = layoutShelf(snapshot, 100, Qt::RightToLeft);
        EXPECT_FALSE(usual.isMirrored);
        EXPECT_TRUE(layout.isMirrored);
        EXPECT_EQ(layout.size, usual.size);
        const auto isMirrored = [&](const QRectF &one, const QRectF &other) {
            return one.left() + other.right() == usual.size.width() && one.size() == other.size()
                && one.y() == other.y();
        };
        ASSERT_EQ(layout.cells.size(), usual.cells.size());
        for (std::size_t i = 0; i < usual.cells.size(); ++i) {
            const ShelfLayout::Cell &cell = layout.cells[i];
            const ShelfLayout::Cell &other = usual.cells[i];
            const auto inBody = [](const QRectF &frame, const ShelfLayout::Cell &in) {
                return frame.translated(in.root.topLeft());
            };
            EXPECT_EQ(cell.itemIndex, other.itemIndex);
            EXPECT_TRUE(isMirrored(cell.root, other.root));
            EXPECT_TRUE(isMirrored(inBody(cell.thumb, cell), inBody(other.thumb, other)));
            EXPECT_TRUE(isMirrored(inBody(cell.title, cell), inBody(other.title, other)));
            EXPECT_TRUE(isMirrored(inBody(cell.focusRing, cell), inBody(other.focusRing, other)));
            EXPECT_TRUE(isMirrored(inBody(cell.badge, cell), inBody(other.badge, other)));
            if (cell.subtitle) {
                EXPECT_TRUE(
                    isMirrored(inBody(*cell.subtitle, cell), inBody(*other.subtitle, other)));
            }
        }
        for (std::size_t i = 0; usual.arrows && i < 2; ++i) {
            EXPECT_TRUE(isMirrored((*layout.arrows)[i], (*usual.arrows)[i]));
            EXPECT_TRUE(isMirrored(layout.arrowHits[i], usual.arrowHits[i]));
        }
        for (std::size_t i = 0; usual.actionButtons && i < 3; ++i) {
            EXPECT_TRUE(isMirrored((*layout.actionButtons)[i], (*usual.actionButtons)[i]));
            EXPECT_TRUE(isMirrored(layout.actionHits[i], usual.actionHits[i]));
        }
        if (usual.viewAllButton) {
            EXPECT_TRUE(isMirrored(*layout.viewAllButton, *usual.viewAllButton));
            EXPECT_TRUE(isMirrored(layout.viewAllHit, usual.viewAllHit));
        }
        if (usual.divider) {
            EXPECT_TRUE(isMirrored(*layout.divider, *usual.divider));
        }
        EXPECT_TRUE(isMirrored(layout.flash, usual.flash));
    }
}

TEST(ShelfHitTest, FromRightToLeftTheFirstCellAndTheWayBackAreAtTheRight)
{
    const ShelfLayout layout = layoutShelf(holding(5, 3), 100, Qt::RightToLeft);
    const double width = layout.size.width();
    EXPECT_EQ(hitTest(layout, true, {width - 34, 30}), ShelfHit(shelf_hit::Arrow{ArrowSide::Left}));
    EXPECT_EQ(hitTest(layout, true, {34, 30}), ShelfHit(shelf_hit::Arrow{ArrowSide::Right}));
    EXPECT_EQ(hitTest(layout, true, {width - 80, 30}), ShelfHit(shelf_hit::Cell{0}));
}

TEST(ShelfHitTest, TestsAreHalfOpen)
{
    const ShelfLayout layout = layoutShelf(holding(5, 3), 100);
    const QRectF hit = layout.arrowHits[0];
    EXPECT_EQ(hitTest(layout, true, hit.topLeft()), ShelfHit(shelf_hit::Arrow{ArrowSide::Left}));
    EXPECT_NE(hitTest(layout, true, {hit.x() + 28, hit.y() + 5}),
              ShelfHit(shelf_hit::Arrow{ArrowSide::Left}));
    EXPECT_NE(hitTest(layout, true, {hit.x() + 5, hit.y() + 28}),
              ShelfHit(shelf_hit::Arrow{ArrowSide::Left}));
}

TEST(ShelfHitTest, WhereAreasOverlapTheEarlierCheckWins)
{
    const ShelfLayout single = layoutShelf(holding(5, 1), 100);
    // The view-all button ends where the right arrow's hit area has begun.
    EXPECT_EQ(hitTest(single, false, {single.arrowHits[1].x() + 1, 20}),
              ShelfHit(shelf_hit::Arrow{ArrowSide::Right}));
    // Buttons lie inside the cell.
    EXPECT_EQ(hitTest(single, false, single.actionHits[2].center()),
              ShelfHit(shelf_hit::Button{ShelfAction::Clear}));

    const ShelfLayout carousel = layoutShelf(holding(5, 3), 100);
    const auto &cell = carousel.cells[1];
    EXPECT_EQ(hitTest(carousel, true, cell.root.topLeft() + cell.badge.center()),
              ShelfHit(shelf_hit::Badge{1}));
    EXPECT_EQ(hitTest(carousel, true, cell.root.topLeft() + QPointF(1, 1)),
              ShelfHit(shelf_hit::Cell{1}));
    EXPECT_EQ(hitTest(carousel, true, {carousel.size.width() - 1, 1}), ShelfHit());
}

TEST(ShelfHitTest, NothingAnswersWhereARowThatOverflowsIsCut)
{
    ShelfSnapshot snapshot = holding(6, 6);
    snapshot.receptive = true;
    const ShelfLayout layout = layoutShelf(snapshot, 100);
    ASSERT_TRUE(layout.overflows);
    const double edge = layout.size.width() - bodyFlareRadius;
    EXPECT_EQ(hitTest(layout, true, {edge - 1, 30}), ShelfHit(shelf_hit::Cell{4}));
    EXPECT_EQ(hitTest(layout, true, {edge + 1, 30}), ShelfHit()) << "beside the body";
    EXPECT_EQ(hitTest(layout, true, {edge + 1, 52}), ShelfHit()) << "on its flare";
    EXPECT_EQ(hitTest(layout, true, {edge - 8, 2}), ShelfHit()) << "outside its corner";
    EXPECT_EQ(hitTest(layout, true, {edge - 8, 5}), ShelfHit(shelf_hit::Cell{3}));
}

TEST(PillPath, FlaresIntoTheTopEdgeAndRoundsItsLowerCorners)
{
    const QPainterPath path = pillPath({200, 60}, 18);
    EXPECT_EQ(path.boundingRect(), QRectF(0, 0, 200, 60));
    EXPECT_EQ(QPointF(path.elementAt(0)), QPointF(0, 60));
    EXPECT_TRUE(path.contains(QPointF(100, 30)));
    EXPECT_TRUE(path.contains(QPointF(12.5, 30)));
    EXPECT_FALSE(path.contains(QPointF(11.5, 30))) << "24 narrower than its size";
    EXPECT_FALSE(path.contains(QPointF(14, 2))) << "rounded corner";
    EXPECT_TRUE(path.contains(QPointF(5, 59.5))) << "flare";
    EXPECT_FALSE(path.contains(QPointF(5, 55)));
    // Exact quarter circles: on the diagonal a flare is one radius from its centre.
    const double diagonal = 12 * std::sqrt(0.5);
    EXPECT_TRUE(path.contains(QPointF(diagonal + 0.1, 48 + diagonal + 0.1)));
    EXPECT_FALSE(path.contains(QPointF(diagonal - 0.1, 48 + diagonal - 0.1)));
}

TEST(PillPath, EverySizeHasTheSameElements)
{
    const QPainterPath left = pillPath({104, 62}, 18);
    const QPainterPath right = pillPath({316, 44}, 18);
    ASSERT_EQ(left.elementCount(), right.elementCount());
    for (int i = 0; i < left.elementCount(); ++i)
        EXPECT_EQ(left.elementAt(i).type, right.elementAt(i).type);
}

} // namespace corvane::test
