#pragma once

#include <QPainterPath>
#include <QSizeF>

namespace corvane {

/// In points. `bodyFlareRadius` is the radius of the concave quarter circles that connect the
/// body's sides with the screen's top edge; the body is narrower than its size by this much on
/// either side.
constexpr double bodyFlareRadius = 12;
constexpr double bodyCornerRadius = 18;

/// The outline of the body in a rectangle of `size` points, closed, y upward, its top edge at the
/// full height. Every size gives the same sequence of elements, so that a `ShapeLayer` can move one
/// outline into another.
QPainterPath pillPath(QSizeF size, double cornerRadius);

} // namespace corvane
