#include "shelf/bar/view_all_layout.h"

#include "core/shown_numbers.h"
#include "platform/base/checked_math.h"
#include "platform/base/geometry.h"
#include "shelf/mirrored.h"

#include <QCoreApplication>

#include <algorithm>

namespace corvane::view_all_layout {

namespace {

constexpr double tileWidth = 80;
constexpr double tileGap = 10;
constexpr double tileStep = tileWidth + tileGap;
/// The space at either end of the row of tiles, for an arrow.
constexpr double sideMargin = 46;
constexpr double edgeMargin = 14;
constexpr double topMargin = 12;
constexpr QSizeF labelSize{240, 14};

double tileY(const ViewAllState &state)
{
    return state.size.height() - topMargin - thumbSide;
}

ViewAllLayout::Tile layOutTile(const ViewAllState::Tile &tile, double x, const ViewAllState &state)
{
    const double y = tileY(state);
    ViewAllLayout::Tile layout;
    layout.root = {x, 0, tileWidth, state.size.height()};
    layout.thumb = {8, y, thumbSide, thumbSide};
    layout.ring = grown(layout.thumb, 2, 2);
    layout.check = {52, y + 44, checkSide, checkSide};
    layout.caption = {2, y - 17, 76, 13};
    // Items that are not selected are dimmed, so that the selection is seen at a glance.
    layout.thumbOpacity = tile.isSelected ? 1 : 0.38;
    layout.ringOpacity = tile.isHovered ? 1 : 0;
    layout.isChecked = tile.isSelected;
    return layout;
}

void layOutTiles(ViewAllLayout &layout, const ViewAllState &state)
{
    const auto count = static_cast<double>(state.tiles.size());
    const double row = count * tileWidth + std::max(count - 1, 0.0) * tileGap;
    const double room = state.size.width() - 2 * sideMargin;
    double x = std::max((room - row) / 2, 0.0) + sideMargin;
    layout.tiles.reserve(state.tiles.size());
    for (const ViewAllState::Tile &tile : state.tiles) {
        layout.tiles.push_back(layOutTile(tile, x, state));
        x += tileStep;
    }
}

QRectF &hit(ViewAllLayout &layout, ViewAllControl control)
{
    return layout.controlHits.at(static_cast<std::size_t>(control));
}

ViewAllLayout::Arrow layOutArrow(double x, double y, bool isEnabled, bool isHovered)
{
    using Fill = ViewAllLayout::Fill;
    const QRectF frame(x, y, arrowSide, arrowSide);
    if (!isEnabled)
        return {frame, 0.3, Fill::Off};
    return isHovered ? ViewAllLayout::Arrow{frame, 1, Fill::Hover}
                     : ViewAllLayout::Arrow{frame, 0.8, Fill::Normal};
}

void layOutArrows(ViewAllLayout &layout, const ViewAllState &state)
{
    const double y = tileY(state) + (thumbSide - arrowSide) / 2;
    const int shownEnd = checkedAdd(state.offset, itemsPerPage(state.size.width()));
    layout.leftArrow = layOutArrow(edgeMargin, y, state.offset >= 1,
                                   state.hoveredControl == ViewAllControl::Back);
    layout.rightArrow
        = layOutArrow(state.size.width() - edgeMargin - arrowSide, y, shownEnd < state.itemCount,
                      state.hoveredControl == ViewAllControl::Forward);
    // Also while an arrow is disabled: the step that a press then sends changes nothing.
    hit(layout, ViewAllControl::Back) = grown(layout.leftArrow.frame, 6, 8);
    hit(layout, ViewAllControl::Forward) = grown(layout.rightArrow.frame, 6, 8);
}

double buttonOpacity(const ViewAllState &state, ViewAllControl control)
{
    if (state.selectedCount == 0)
        return 0.16;
    return state.hoveredControl == control ? 1 : 0.55;
}

void layOutActions(ViewAllLayout &layout, const ViewAllState &state)
{
    const bool isSelectAllHovered = state.hoveredControl == ViewAllControl::SelectAll;
    layout.selectAllBox
        = {QRectF(edgeMargin, 12, checkSide, checkSide), isSelectAllHovered ? 1 : 0.75};
    layout.isEverythingSelected = state.itemCount > 0 && state.selectedCount == state.itemCount;
    layout.selectAllLabel = QRectF({37, 13}, labelSize);
    layout.selectionText = QCoreApplication::translate("ViewAllView", "%1 of %2 selected")
                               .arg(shownNumber(state.selectedCount), shownNumber(state.itemCount));

    const double trashX = state.size.width() - edgeMargin - buttonSide;
    const double copyX = trashX - buttonSide - edgeMargin;
    layout.trashButton
        = {QRectF(trashX, 11, buttonSide, buttonSide), buttonOpacity(state, ViewAllControl::Trash)};
    layout.copyButton
        = {QRectF(copyX, 11, buttonSide, buttonSide), buttonOpacity(state, ViewAllControl::Copy)};

    // The checkbox and its label are one target.
    hit(layout, ViewAllControl::SelectAll) = {10, 7, labelSize.width() + checkSide + 12, 26};
    hit(layout, ViewAllControl::Copy) = grown(layout.copyButton.frame, 6, 6);
    hit(layout, ViewAllControl::Trash) = grown(layout.trashButton.frame, 6, 6);
}

/// What is drawn and what answers to clicks, together.
void mirror(ViewAllLayout &layout)
{
    const double width = layout.size.width();
    layout.isMirrored = true;
    for (ViewAllLayout::Tile &tile : layout.tiles) {
        tile.root = mirrored(tile.root, width);
        for (QRectF *frame : {&tile.thumb, &tile.ring, &tile.check, &tile.caption})
            *frame = mirrored(*frame, tile.root.width());
    }
    for (QRectF *frame :
         {&layout.leftArrow.frame, &layout.rightArrow.frame, &layout.selectAllBox.frame,
          &layout.selectAllLabel, &layout.copyButton.frame, &layout.trashButton.frame})
        *frame = mirrored(*frame, width);
    for (QRectF &hit : layout.controlHits)
        hit = mirrored(hit, width);
}

} // namespace

int itemsPerPage(double width)
{
    const double room = width - 2 * sideMargin;
    if (room <= 0)
        return 1;
    return std::max(1, static_cast<int>((room + tileGap) / tileStep));
}

int clampedOffset(int offset, int itemCount, int itemsPerPage)
{
    return std::min(std::max(offset, 0), std::max(itemCount - itemsPerPage, 0));
}

Range visibleRange(int offset, int itemCount, int itemsPerPage)
{
    const int first = std::min(offset, std::max(itemCount - 1, 0));
    return {first, std::min(checkedAdd(first, itemsPerPage), itemCount)};
}

ViewAllLayout layOut(const ViewAllState &state)
{
    ViewAllLayout layout;
    layout.size = state.size;
    layOutTiles(layout, state);
    layOutArrows(layout, state);
    layOutActions(layout, state);
    if (state.direction == Qt::RightToLeft)
        mirror(layout);
    return layout;
}

std::optional<ViewAllControl> controlAt(const ViewAllLayout &layout, QPointF point)
{
    for (std::size_t i = 0; i < layout.controlHits.size(); ++i) {
        if (contains(layout.controlHits[i], point))
            return allViewAllControls.at(i);
    }
    return std::nullopt;
}

std::optional<std::size_t> tileAt(const ViewAllLayout &layout, QPointF point)
{
    for (std::size_t i = 0; i < layout.tiles.size(); ++i) {
        if (contains(layout.tiles[i].root, point))
            return i;
    }
    return std::nullopt;
}

} // namespace corvane::view_all_layout
