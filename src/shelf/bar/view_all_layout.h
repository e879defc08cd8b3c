#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

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

/// Everything that the bar's layout follows from.
struct ViewAllState {
    struct Tile {
        bool isSelected = false;
        bool isHovered = false;
    };

    QSizeF size;
    /// Of all items and of those selected; and the index of the first one shown.
    int itemCount = 0;
    int selectedCount = 0;
    int offset = 0;
    /// Of the items shown, in their order.
    std::vector<Tile> tiles;
    std::optional<ViewAllControl> hoveredControl;
};

/// Where everything in the view-all bar is and how bright. In points, in the bar's coordinates:
/// origin at the lower left. A comparable value.
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
        // The rest in the root's coordinates.
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
    Arrow leftArrow;
    Arrow rightArrow;
    Button selectAllBox;
    bool isEverythingSelected = false;
    QRectF selectAllLabel;
    QString selectionText;
    Button copyButton;
    Button trashButton;
    /// One for each control in their order. They do not overlap.
    std::array<QRectF, 5> controlHits;

    friend bool operator==(const ViewAllLayout &, const ViewAllLayout &) = default;
};

namespace view_all_layout {

constexpr double barHeight = 132;
constexpr double thumbSide = 64;
constexpr double checkSide = 16;
constexpr double arrowSide = 22;
constexpr double buttonSide = 17;

/// How many tiles fit into a bar of that width; at least 1.
int itemsPerPage(double width);
/// The nearest offset at which the bar still begins with an item and ends with one.
int clampedOffset(int offset, int itemCount, int itemsPerPage);
/// The items shown: from `first` up to, but without, `end`.
struct Range {
    int first = 0;
    int end = 0;
};
Range visibleRange(int offset, int itemCount, int itemsPerPage);

ViewAllLayout layOut(const ViewAllState &state);

std::optional<ViewAllControl> controlAt(const ViewAllLayout &layout, QPointF point);
/// The tile in whose column the point is, the whole height of the bar.
std::optional<std::size_t> tileAt(const ViewAllLayout &layout, QPointF point);

} // namespace view_all_layout
} // namespace corvane
