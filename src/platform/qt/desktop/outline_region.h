#pragma once

#include <QPainterPath>
#include <QRegion>
#include <QSize>

namespace corvane {

/// The pixels of a bitmap of `size` that lie in the path by half of themselves or more. Follows
/// curves exactly, where a polygon's region cuts small ones off.
QRegion outlineRegion(const QPainterPath &pathInPixels, QSize size);

} // namespace corvane
