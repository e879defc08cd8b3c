#pragma once

#include "shelf/bar/view_all_layout.h"

#include <QRectF>
#include <QUuid>

#include <optional>
#include <vector>

namespace corvane {

/// What in the bar the keyboard is on: a control, or else a tile.
struct ViewAllFocus {
    /// The tile's item, and its index among all of them.
    QUuid item;
    int index = 0;
    std::optional<ViewAllControl> control;
    /// People see it once they have used a key for it.
    bool isVisible = false;
};

namespace view_all_focus {

/// What Tab goes through, in this order: the tile, which is none here, and the controls that do
/// something now.
using Stops = std::vector<std::optional<ViewAllControl>>;
Stops stops(const ViewAllState &state);

/// The stop after `current`, or before it, around the ends.
std::optional<ViewAllControl> neighbour(const Stops &stops, std::optional<ViewAllControl> current,
                                        bool isBackward);

/// The ring around it, in the bar's coordinates; none while it is not visible, or not on this page.
std::optional<QRectF> ringAround(const ViewAllFocus &focus, const ViewAllLayout &layout,
                                 int offset);

} // namespace view_all_focus
} // namespace corvane
