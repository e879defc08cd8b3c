#pragma once

#include <QPainterPath>
#include <QRegion>
#include <QSize>

namespace corvane {

/// The pixels of a bitmap of `size` of which at least half is inside the path. Follows curves
/// exactly; the region of a polygon would cut small ones off.
QRegion outlineRegion(const QPainterPath &pathInPixels, QSize size);

} // namespace corvane
