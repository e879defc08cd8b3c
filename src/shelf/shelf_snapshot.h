#pragma once

#include "core/drop_item.h"
#include "core/shelf_state.h"

#include <QSizeF>
#include <QString>

#include <utility>
#include <vector>

namespace corvane {

/// What the shelf shows. A plain value, made anew on every change.
struct ShelfSnapshot {
    ShelfState state = ShelfState::Idle;
    /// The items in view with their indices among all items.
    std::vector<std::pair<int, DropItem>> visible;
    int totalCount = 0;
    /// Title of the item that left the shelf last, in view or not; empty before one has.
    QString lastThatLeft;
    /// Index among all items.
    int focusedIndex = 0;
    /// 1 to 6.
    int inViewCount = 1;
    bool canScrollBack = false;
    bool canScrollForward = false;
    /// Width and height of the notch, both 0 on a screen without one.
    QSizeF notch{0, 0};
    /// A drag is going on that did not start on the shelf, so there may be a drop here.
    bool receptive = false;

    /// Carousel mode depends on the setting, not on the number of items.
    bool isCarousel() const { return inViewCount >= 2; }
    bool looksLikeDropTarget() const { return visible.empty() || receptive; }
    bool hasArrows() const { return inViewCount < totalCount; }
};

} // namespace corvane
