#include "shelf/shelf_hit_test.h"

#include "platform/base/geometry.h"
#include "shelf/drawing/pill_path.h"

namespace corvane {

namespace {

/// Whether the point is inside the body's outline: a row that is too wide is cut off there.
bool canShowCells(const ShelfLayout &layout, QPointF point)
{
    const QRectF row = grown(QRectF({0, 0}, layout.size), -bodyFlareRadius, 0);
    return contains(row, point) && pillPath(layout.size, bodyCornerRadius).contains(point);
}

} // namespace

ShelfHit hitTest(const ShelfLayout &layout, bool isCarousel, QPointF point)
{
    if (contains(layout.arrowHits[0], point))
        return shelf_hit::Arrow{ArrowSide::Left};
    if (contains(layout.arrowHits[1], point))
        return shelf_hit::Arrow{ArrowSide::Right};
    if (contains(layout.viewAllHit, point))
        return shelf_hit::ViewAll{};
    const bool mayBeOnCell = canShowCells(layout, point);
    if (isCarousel && mayBeOnCell) {
        for (const ShelfLayout::Cell &cell : layout.cells) {
            if (contains(cell.badge.translated(cell.root.topLeft()), point))
                return shelf_hit::Badge{cell.itemIndex};
        }
    }
    for (std::size_t i = 0; i < allShelfActions.size(); ++i) {
        if (contains(layout.actionHits[i], point))
            return shelf_hit::Button{allShelfActions[i]};
    }
    for (const ShelfLayout::Cell &cell : layout.cells) {
        if (mayBeOnCell && contains(cell.root, point))
            return shelf_hit::Cell{cell.itemIndex};
    }
    return {};
}

} // namespace corvane
