#pragma once

#include <QPainterPath>
#include <QSizeF>

namespace corvane {

/// Radius of the concave quarter circles that sweep the body's sides out into the screen's top
/// edge; the body is narrower than its size by this much on either side.
constexpr double bodyFlareRadius = 12;
constexpr double bodyCornerRadius = 18;

/// The outline of the body, closed, y upward, its top edge at the full height. Every size gives the
/// same sequence of elements, so that one outline can move into another.
QPainterPath pillPath(QSizeF size, double cornerRadius);

} // namespace corvane
