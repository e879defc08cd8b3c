#pragma once

#include "shelf/shelf_snapshot.h"

#include <QRectF>
#include <QSizeF>

#include <array>
#include <optional>
#include <vector>

namespace corvane {

class TextMeasurer;
struct Theme;

/// The action buttons, left to right.
enum class ShelfAction { QuickLook, Copy, Clear };
constexpr std::array<ShelfAction, 3> allShelfActions{ShelfAction::QuickLook, ShelfAction::Copy,
                                                     ShelfAction::Clear};

/// Where everything on the shelf is. In points, in the body's coordinates: origin at the lower left
/// of a rectangle of `size`, which hangs from the top centre of the panel. A comparable value.
struct ShelfLayout {
    struct Cell {
        /// Index among all items.
        int itemIndex = 0;
        QRectF root;
        // The rest in the root's coordinates.
        QRectF thumb;
        QRectF title;
        /// None in carousel mode.
        std::optional<QRectF> subtitle;
        QRectF focusRing;
        QRectF badge;

        friend bool operator==(const Cell &, const Cell &) = default;
    };

    QSizeF size;
    /// The body's height without the notch band above it.
    double bodyHeight = 0;
    QRectF ring;
    double ringCornerRadius = 0;
    QRectF hint;
    std::vector<Cell> cells;
    /// Left and right; none when every item is in view.
    std::optional<std::array<QRectF, 2>> arrows;
    /// Empty rectangles when there are no arrows.
    std::array<QRectF, 2> arrowHits;
    std::optional<QRectF> viewAllButton;
    QRectF viewAllHit;
    /// One for each action in their order; none in carousel mode or with nothing to act on.
    std::optional<std::array<QRectF, 3>> actionButtons;
    std::array<QRectF, 3> actionHits;
    std::optional<QRectF> divider;
    QRectF flash;
    /// Some cells do not fit into the body: they fade at its right edge.
    bool overflows = false;

    friend bool operator==(const ShelfLayout &, const ShelfLayout &) = default;
};

/// Width of the text column with one item in view, 84 to 190.
double detailTextWidth(const ShelfSnapshot &snapshot, const Theme &theme,
                       const TextMeasurer &measurer);

/// The size that the panel must have; whole points.
QSizeF preferredSize(const ShelfSnapshot &snapshot, double detailTextWidth);

/// Everything in its place, in a body of the preferred size.
ShelfLayout layoutShelf(const ShelfSnapshot &snapshot, double detailTextWidth);

/// The plate behind a hovered button.
QRectF hoverPlateFrame(const QRectF &button);

} // namespace corvane
