#pragma once

#include <QPointF>
#include <QRectF>

namespace corvane {

/// Rectangles are in points with the origin at the bottom left: `QRectF::y()` is the lower edge.
/// `QRectF::top()`, `bottom()` and `contains()` assume y downward and are not used in layout.

inline double minX(const QRectF &rect)
{
    return rect.x();
}
inline double midX(const QRectF &rect)
{
    return rect.x() + rect.width() * 0.5;
}
inline double maxX(const QRectF &rect)
{
    return rect.x() + rect.width();
}
inline double minY(const QRectF &rect)
{
    return rect.y();
}
inline double midY(const QRectF &rect)
{
    return rect.y() + rect.height() * 0.5;
}
inline double maxY(const QRectF &rect)
{
    return rect.y() + rect.height();
}

/// Half-open: the left and lower edges belong to the rectangle, the right and upper ones do not, so
/// that of two rectangles that touch exactly one contains a point on the shared edge.
inline bool contains(const QRectF &rect, QPointF point)
{
    return point.x() >= minX(rect) && point.x() < maxX(rect) && point.y() >= minY(rect)
        && point.y() < maxY(rect);
}

/// The rectangle with its left and right edges moved out by `dx`, the others by `dy`.
inline QRectF grown(const QRectF &rect, double dx, double dy)
{
    return {rect.x() - dx, rect.y() - dy, rect.width() + 2 * dx, rect.height() + 2 * dy};
}

} // namespace corvane
