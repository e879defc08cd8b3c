#pragma once

#include <QRect>
#include <QRectF>

#include <algorithm>
#include <cmath>

namespace corvane {

/// The nearest whole number; halves go away from zero.
inline int wholePoint(double value)
{
    // Outside of every desktop, and small enough to be added to.
    constexpr double limit = 1e6;
    return static_cast<int>(std::clamp(std::round(value), -limit, limit));
}

/// As windows are sized: at least one point large.
inline QSize inWholePoints(QSizeF size)
{
    return {std::max(1, wholePoint(size.width())), std::max(1, wholePoint(size.height()))};
}

/// As windows are placed. The place and the size are rounded apart, so that a window that moves
/// keeps its size.
inline QRect inWholePoints(const QRectF &rect)
{
    return {QPoint(wholePoint(rect.x()), wholePoint(rect.y())), inWholePoints(rect.size())};
}

} // namespace corvane
