#pragma once

#include <QRectF>

namespace corvane {

/// Where a rectangle lies in an area of `width` points that is turned over, its right side to the
/// left.
inline QRectF mirrored(const QRectF &rect, double width)
{
    return {width - rect.x() - rect.width(), rect.y(), rect.width(), rect.height()};
}

} // namespace corvane
