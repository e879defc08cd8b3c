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

/// The action buttons, in the order in which one reads.
enum class ShelfAction { QuickLook, Copy, Clear };
constexpr std::array<ShelfAction, 3> allShelfActions{ShelfAction::QuickLook, ShelfAction::Copy,
                                                     ShelfAction::Clear};

/// The positions of everything on the shelf. In points, in the body's coordinates: origin at the
/// bottom left of a rectangle of `size`, which hangs from the top centre of the panel, y upward. A
/// comparable value.
struct ShelfLayout {
    struct Cell {
        /// Index among all items.
        int itemIndex = 0;
        QRectF root;
        // The others in coordinates of `root`.
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
    /// Back and forward: left and right, unless mirrored; none when every item is in view.
    std::optional<std::array<QRectF, 2>> arrows;
    /// The areas that react to clicks; empty rectangles when there are no arrows.
    std::array<QRectF, 2> arrowHits;
    std::optional<QRectF> viewAllButton;
    QRectF viewAllHit;
    /// One for each action in the order of `allShelfActions`; none in carousel mode or without an
    /// item.
    std::optional<std::array<QRectF, 3>> actionButtons;
    std::array<QRectF, 3> actionHits;
    std::optional<QRectF> divider;
    QRectF flash;
    /// Some cells do not fit into the body; the row fades at its end.
    bool overflows = false;
    /// For people who read from right to left: the row begins at the right, and everything is where
    /// it would be seen in a mirror.
    bool isMirrored = false;

    friend bool operator==(const ShelfLayout &, const ShelfLayout &) = default;
};

/// In points: no shelf is wider, but for a notch.
constexpr double widestShelf = 508;

/// In points: width of the text column with one item in view, 84 to 190.
double detailTextWidth(const ShelfSnapshot &snapshot, const Theme &theme,
                       const TextMeasurer &measurer);

/// In points: the room that a short message wants, in place of the subtitle or over several cells;
/// at most 260. 0 for no message.
double flashTextWidth(const QString &message, const ShelfSnapshot &snapshot, const Theme &theme,
                      const TextMeasurer &measurer);

/// The widths of texts that the shelf gives room.
struct ShelfTextWidths {
    ShelfTextWidths(double ofDetail, double ofFlash = 0)
        : detail(ofDetail)
        , flash(ofFlash)
    {
    }

    double detail;
    double flash;
};

/// The size of the body, and of the panel around it; in whole points.
QSizeF preferredSize(const ShelfSnapshot &snapshot, const ShelfTextWidths &widths);

/// The layout in a body of the preferred size, for people who read in that direction. What is drawn
/// and what answers to clicks are mirrored here together, and nowhere else.
ShelfLayout layoutShelf(const ShelfSnapshot &snapshot, const ShelfTextWidths &widths,
                        Qt::LayoutDirection direction = Qt::LeftToRight);

/// The frame of the plate behind a hovered button with this frame.
QRectF hoverPlateFrame(const QRectF &button);

} // namespace corvane
