#pragma once

#include <QPointF>
#include <QRectF>

namespace corvane {
struct PanelPlacement;
}

namespace corvane::qt_geometry {

/// The one place where y is turned over: Qt's global points start at the top left of the primary
/// screen and grow downward, ours start at its bottom left and grow upward. Both are the same
/// length.

/// Height of the primary screen, the line that both systems are measured from; 0 without a screen.
double primaryHeight();

QPointF toGlobal(QPointF qtPoint);
QRectF toGlobal(const QRectF &qtRect);
/// Rounded to whole points, as windows are placed; the size is kept.
QRect toQt(const QRectF &rect);
/// The same for a panel: on the screen on which the middle of its upper edge is, else on the
/// primary one.
PanelPlacement placementOf(const QRectF &frame);

/// Inside a window of that height, in either direction.
inline QPointF flipped(QPointF point, double height)
{
    return {point.x(), height - point.y()};
}
inline QRectF flipped(const QRectF &rect, double height)
{
    return {rect.x(), height - rect.y() - rect.height(), rect.width(), rect.height()};
}

} // namespace corvane::qt_geometry
