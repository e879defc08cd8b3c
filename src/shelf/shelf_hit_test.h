#pragma once

#include "shelf/shelf_layout.h"

#include <QPointF>

#include <variant>

namespace corvane {

/// Left is back and right is forward, also where the shelf is mirrored and they stand the other way
/// round.
enum class ArrowSide { Left, Right };

/// What is under a point of the body. Where areas overlap, the alternative that comes first in
/// `ShelfHit` wins.
namespace shelf_hit {
struct Arrow {
    ArrowSide side;
    friend bool operator==(Arrow, Arrow) = default;
};
struct ViewAll {
    friend bool operator==(ViewAll, ViewAll) = default;
};
/// `itemIndex` counts all items of the shelf.
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

/// `monostate` where there is nothing.
using ShelfHit = std::variant<std::monostate, shelf_hit::Arrow, shelf_hit::ViewAll,
                              shelf_hit::Badge, shelf_hit::Button, shelf_hit::Cell>;

/// `point` is in the body's coordinates. Badges are shown, and hit, in carousel mode only.
ShelfHit hitTest(const ShelfLayout &layout, bool isCarousel, QPointF point);

} // namespace corvane
