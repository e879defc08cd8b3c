#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <Qt>

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace corvane {

/// What can be pressed in the view-all bar beside its tiles.
enum class ViewAllControl { Back, Forward, SelectAll, Copy, Trash };
constexpr std::array<ViewAllControl, 5> allViewAllControls{
    ViewAllControl::Back, ViewAllControl::Forward, ViewAllControl::SelectAll, ViewAllControl::Copy,
    ViewAllControl::Trash};

/// Everything that determines the bar's layout.
struct ViewAllState {
    struct Tile {
        bool isSelected = false;
        bool isHovered = false;
    };

    QSizeF size;
    /// Numbers of all items and of the selected ones, and the index of the first item shown.
    int itemCount = 0;
    int selectedCount = 0;
    int offset = 0;
    /// One for each item shown, in their order.
    std::vector<Tile> tiles;
    std::optional<ViewAllControl> hoveredControl;
    /// Which way people read.
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

/// Positions and opacities of everything in the view-all bar. In points, in the bar's coordinates:
/// origin at the bottom left, y upward. A comparable value.
struct ViewAllLayout {
    enum class Fill { Off, Normal, Hover };
    struct Arrow {
        QRectF frame;
        double opacity = 0;
        Fill fill = Fill::Off;

        friend bool operator==(const Arrow &, const Arrow &) = default;
    };
    struct Tile {
        QRectF root;
        // The others in coordinates of `root`.
        QRectF thumb;
        QRectF ring;
        QRectF check;
        QRectF caption;
        double thumbOpacity = 0;
        double ringOpacity = 0;
        bool isChecked = false;

        friend bool operator==(const Tile &, const Tile &) = default;
    };
    struct Button {
        QRectF frame;
        double opacity = 0;

        friend bool operator==(const Button &, const Button &) = default;
    };

    QSizeF size;
    std::vector<Tile> tiles;
    /// Back and forward; where the bar is mirrored they stand the other way round.
    Arrow leftArrow;
    Arrow rightArrow;
    Button selectAllBox;
    bool isEverythingSelected = false;
    QRectF selectAllLabel;
    QString selectionText;
    Button copyButton;
    Button trashButton;
    /// The areas that react to clicks, one for each control in the order of `allViewAllControls`.
    /// They do not overlap.
    std::array<QRectF, 5> controlHits;
    /// For people who read from right to left: everything is where it would be seen in a mirror.
    bool isMirrored = false;

    friend bool operator==(const ViewAllLayout &, const ViewAllLayout &) = default;
};

namespace view_all_layout {

/// Lengths in points.
constexpr double barHeight = 132;
constexpr double thumbSide = 64;
constexpr double checkSide = 16;
constexpr double arrowSide = 22;
constexpr double buttonSide = 17;

/// How many tiles fit into a bar of `width` points; at least 1.
int itemsPerPage(double width);
/// The nearest offset that shows as many items as fit: 0 to `itemCount - itemsPerPage`, or 0.
int clampedOffset(int offset, int itemCount, int itemsPerPage);
/// The items shown: from `first` up to, but without, `end`.
struct Range {
    int first = 0;
    int end = 0;
};
Range visibleRange(int offset, int itemCount, int itemsPerPage);

ViewAllLayout layOut(const ViewAllState &state);

std::optional<ViewAllControl> controlAt(const ViewAllLayout &layout, QPointF point);
/// The index, among the tiles shown, of the tile in whose column the point is; a column is as high
/// as the bar.
std::optional<std::size_t> tileAt(const ViewAllLayout &layout, QPointF point);

} // namespace view_all_layout
} // namespace corvane
