#pragma once

#include <QPointF>
#include <QRectF>

namespace corvane::qt_geometry {

/// The only place that converts between Qt's global points, which start at the top left of the
/// primary screen with y downward, and ours, which start at its bottom left with y upward. Points
/// have the same length in both.

/// Height of the primary screen, by which y is converted; 0 without a screen.
double primaryHeight();

QPointF toGlobal(QPointF qtPoint);
QRectF toGlobal(const QRectF &qtRect);
/// Rounded to whole points, as windows are placed; the size is kept.
QRect toQt(const QRectF &rect);

/// Converts between Qt's coordinates and ours inside a window of that height, in both directions.
inline QPointF flipped(QPointF point, double height)
{
    return {point.x(), height - point.y()};
}
inline QRectF flipped(const QRectF &rect, double height)
{
    return {rect.x(), height - rect.y() - rect.height(), rect.width(), rect.height()};
}

} // namespace corvane::qt_geometry
