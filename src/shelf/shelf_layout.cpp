#include "shelf/shelf_layout.h"

#include "core/display_text.h"
#include "platform/base/geometry.h"
#include "platform/pictures/text_measurer.h"
#include "shelf/drawing/pill_path.h"
#include "shelf/drawing/theme.h"
#include "shelf/mirrored.h"

#include <algorithm>
#include <cmath>

namespace corvane {

namespace {

constexpr double cellWidth = 58;
constexpr double cellGap = 6;
constexpr double carouselThumb = 32;
constexpr double singleThumb = 30;
constexpr double thumbColumn = 39;
constexpr double textGap = 9;
constexpr double textMargin = 8;
/// With it the shelf is no wider than with the most items in view.
constexpr double widestFlash = 260;
constexpr double actionColumn = 57;
constexpr double actionEndGap = 6;
constexpr double actionStep = 22;
constexpr double buttonSide = 19;
constexpr double arrowSide = 22;
constexpr double arrowZone = 28;
constexpr double viewAllSpace = 28;
constexpr double viewAllGap = 9;
/// In points, from the panel's edge to the content: the flare and an inner margin.
constexpr double innerMargin = 11;
constexpr double sideMargin = bodyFlareRadius + innerMargin;
constexpr double dropTargetWidth = 292;
constexpr double dropTargetHeight = 56;
constexpr double carouselHeight = 62;
constexpr double singleHeight = 44;

double contentWidth(const ShelfSnapshot &snapshot, const ShelfTextWidths &widths)
{
    if (!snapshot.isCarousel())
        return std::max(widths.detail, widths.flash) + thumbColumn + textGap + actionColumn
            + actionEndGap;
    const double count = std::max<double>(1, static_cast<double>(snapshot.visible.size()));
    return count * cellWidth + (count - 1) * cellGap;
}

double bodyHeight(const ShelfSnapshot &snapshot)
{
    if (snapshot.looksLikeDropTarget())
        return dropTargetHeight;
    return snapshot.isCarousel() ? carouselHeight : singleHeight;
}

/// The argument for the look that the body has now.
double byLook(const ShelfSnapshot &snapshot, double dropTarget, double carousel, double single)
{
    if (snapshot.looksLikeDropTarget())
        return dropTarget;
    return snapshot.isCarousel() ? carousel : single;
}

bool hasViewAll(const ShelfSnapshot &snapshot)
{
    return snapshot.totalCount >= 2 && !snapshot.visible.empty() && !snapshot.receptive;
}

ShelfLayout::Cell layoutCell(const ShelfSnapshot &snapshot, int itemIndex, const QRectF &root,
                             double textWidth)
{
    const bool isTarget = snapshot.looksLikeDropTarget();
    ShelfLayout::Cell cell;
    cell.itemIndex = itemIndex;
    cell.root = root;
    if (snapshot.isCarousel()) {
        cell.thumb = {(root.width() - carouselThumb) * 0.5, isTarget ? 18.0 : 24.0, carouselThumb,
                      carouselThumb};
        cell.title = {2, 6, root.width() - 4, 13};
    } else {
        cell.thumb = {0, isTarget ? 13.0 : 7.0, singleThumb, singleThumb};
        cell.title = {thumbColumn, isTarget ? 28.0 : 22.0, textWidth, 14};
        cell.subtitle = QRectF(thumbColumn, isTarget ? 14.0 : 8.0, textWidth, 13);
    }
    cell.focusRing = grown(cell.thumb, 3, 3);
    cell.badge = {maxX(cell.thumb) - 9, maxY(cell.thumb) - 9, 13, 13};
    return cell;
}

void layoutRingAndHint(const ShelfSnapshot &snapshot, ShelfLayout &layout)
{
    const double width = layout.size.width();
    // Around the hint the ring has a margin; around cells it follows the body's edge.
    if (snapshot.visible.empty()) {
        layout.ring = {sideMargin, 8, width - 2 * sideMargin, layout.bodyHeight - 16};
        layout.ringCornerRadius = 12;
    } else {
        layout.ring
            = {bodyFlareRadius + 4, 4, width - 2 * (bodyFlareRadius + 4), layout.bodyHeight - 8};
        layout.ringCornerRadius = 14;
    }
    layout.hint = {sideMargin, layout.bodyHeight / 2 - 8, width - 2 * sideMargin, 16};
}

void layoutActions(const ShelfSnapshot &snapshot, ShelfLayout &layout)
{
    if (snapshot.isCarousel() || layout.cells.empty())
        return;
    const double right = maxX(layout.cells.front().root);
    const double y = byLook(snapshot, 18.5, 21.5, 12.5);
    std::array<QRectF, 3> buttons;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const double fromRight
            = buttonSide + actionStep * static_cast<double>(buttons.size() - 1 - i);
        buttons[i] = {right - fromRight, y, buttonSide, buttonSide};
        // The clickable area is as wide as the step from button to button, and as high as the hover
        // plate.
        layout.actionHits[i] = grown(buttons[i], (actionStep - buttonSide) / 2, 4);
    }
    layout.actionButtons = buttons;
    layout.divider = QRectF(std::round(minX(buttons.front()) - 4.5), 0.28 * layout.bodyHeight, 1,
                            0.44 * layout.bodyHeight);
}

void mirror(std::optional<QRectF> &frame, double width)
{
    if (frame)
        frame = mirrored(*frame, width);
}

template<std::size_t count>
void mirror(std::array<QRectF, count> &frames, double width)
{
    for (QRectF &frame : frames)
        frame = mirrored(frame, width);
}

void mirror(ShelfLayout::Cell &cell, double width)
{
    const double inside = cell.root.width();
    cell.root = mirrored(cell.root, width);
    for (QRectF *frame : {&cell.thumb, &cell.title, &cell.focusRing, &cell.badge})
        *frame = mirrored(*frame, inside);
    mirror(cell.subtitle, inside);
}

void mirror(ShelfLayout &layout)
{
    const double width = layout.size.width();
    layout.isMirrored = true;
    for (QRectF *frame : {&layout.ring, &layout.hint, &layout.viewAllHit, &layout.flash})
        *frame = mirrored(*frame, width);
    for (ShelfLayout::Cell &cell : layout.cells)
        mirror(cell, width);
    if (layout.arrows)
        mirror(*layout.arrows, width);
    if (layout.actionButtons)
        mirror(*layout.actionButtons, width);
    mirror(layout.arrowHits, width);
    mirror(layout.actionHits, width);
    mirror(layout.viewAllButton, width);
    mirror(layout.divider, width);
}

} // namespace

double detailTextWidth(const ShelfSnapshot &snapshot, const Theme &theme,
                       const TextMeasurer &measurer)
{
    double width = 0;
    if (!snapshot.visible.empty()) {
        const DropItem &item = snapshot.visible.front().second;
        // Measured as it is drawn, which also limits the length of text that comes from other
        // programs.
        width = std::max(measurer.width(displayText(item.title()), theme.typography.primary),
                         measurer.width(displayText(item.subtitle()), theme.typography.secondary));
    }
    return std::clamp(width + textMargin, 84.0, 190.0);
}

double flashTextWidth(const QString &message, const ShelfSnapshot &snapshot, const Theme &theme,
                      const TextMeasurer &measurer)
{
    if (message.isEmpty() || snapshot.visible.empty())
        return 0;
    const Theme::Typography &fonts = theme.typography;
    const double width = measurer.width(displayText(message),
                                        snapshot.isCarousel() ? fonts.hint : fonts.secondary);
    return std::min(width + textMargin, widestFlash);
}

QSizeF preferredSize(const ShelfSnapshot &snapshot, const ShelfTextWidths &widths)
{
    const double notchWidth = snapshot.notch.width();
    const double height = bodyHeight(snapshot) + snapshot.notch.height();
    // The body keeps 30 points on either side of the notch.
    const double aroundNotch = notchWidth + 60;
    const double flares = 2 * bodyFlareRadius;

    if (snapshot.looksLikeDropTarget()) {
        const bool widened = notchWidth > 0 && aroundNotch >= dropTargetWidth - flares;
        return {widened ? std::round(aroundNotch + flares) : dropTargetWidth, height};
    }
    const double content = contentWidth(snapshot, widths);
    const double base = std::max(content, snapshot.isCarousel() ? widths.flash : 0)
        + (snapshot.hasArrows() ? 67 : innerMargin) + (snapshot.totalCount > 1 ? viewAllSpace : 0);
    const double wanted = base + innerMargin;
    return {std::round((notchWidth > 0 ? std::max(wanted, aroundNotch) : wanted) + flares), height};
}

ShelfLayout layoutShelf(const ShelfSnapshot &snapshot, const ShelfTextWidths &widths,
                        Qt::LayoutDirection direction)
{
    ShelfLayout layout;
    layout.size = preferredSize(snapshot, widths);
    layout.bodyHeight = bodyHeight(snapshot);

    const double zone = snapshot.hasArrows() ? arrowZone : 0;
    const double left = zone + sideMargin;
    const double right = layout.size.width() - sideMargin;
    const double content = contentWidth(snapshot, widths);
    const double needed = content + (hasViewAll(snapshot) ? viewAllSpace : 0);
    const double padding = std::max((right - zone - left - needed) * 0.5, 0.0);
    layout.overflows = needed > right - zone - left;

    if (snapshot.hasArrows()) {
        const double y = byLook(snapshot, 17, 20, 11);
        layout.arrows = {QRectF(sideMargin, y, arrowSide, arrowSide),
                         QRectF(right - arrowSide, y, arrowSide, arrowSide)};
        for (std::size_t side = 0; side < 2; ++side)
            layout.arrowHits[side] = grown((*layout.arrows)[side], 3, 3);
    }

    const double textWidth = std::max(widths.detail, widths.flash);
    double x = left + padding;
    for (const auto &[index, item] : snapshot.visible) {
        const double width = snapshot.isCarousel() ? cellWidth : content;
        layout.cells.push_back(
            layoutCell(snapshot, index, {x, 0, width, layout.bodyHeight}, textWidth));
        x += width + cellGap;
    }

    if (hasViewAll(snapshot)) {
        const double end = x - (snapshot.isCarousel() ? cellGap : 0);
        layout.viewAllButton
            = QRectF(end + viewAllGap, snapshot.isCarousel() ? 21.5 : 12.5, buttonSide, buttonSide);
        layout.viewAllHit = grown(*layout.viewAllButton, 4, 5);
    }
    layoutRingAndHint(snapshot, layout);
    layoutActions(snapshot, layout);
    layout.flash = {left, layout.bodyHeight / 2 - 8, right - zone - left, 16};
    if (direction == Qt::RightToLeft)
        mirror(layout);
    return layout;
}

QRectF hoverPlateFrame(const QRectF &button)
{
    return grown(button, 4, 4);
}

} // namespace corvane
