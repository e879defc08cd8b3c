#pragma once

#include "shelf/shelf_layout.h"

#include <QPointF>

#include <variant>

namespace corvane {

enum class ArrowSide { Left, Right };

/// What lies under a point of the body. Where areas overlap, the earlier alternative has it.
namespace shelf_hit {
struct Arrow {
    ArrowSide side;
    friend bool operator==(Arrow, Arrow) = default;
};
struct ViewAll {
    friend bool operator==(ViewAll, ViewAll) = default;
};
/// Indices are those among all items.
struct Badge {
    int itemIndex;
    friend bool operator==(Badge, Badge) = default;
};
struct Button {
    ShelfAction action;
    friend bool operator==(Button, Button) = default;
};
struct Cell {
    int itemIndex;
    friend bool operator==(Cell, Cell) = default;
};
} // namespace shelf_hit

/// The first alternative means nothing.
using ShelfHit = std::variant<std::monostate, shelf_hit::Arrow, shelf_hit::ViewAll,
                              shelf_hit::Badge, shelf_hit::Button, shelf_hit::Cell>;

/// `point` is in the body's coordinates. Badges count in carousel mode, in which alone they show.
ShelfHit hitTest(const ShelfLayout &layout, bool isCarousel, QPointF point);

} // namespace corvane
