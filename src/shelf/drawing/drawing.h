#pragma once

#include <QImage>
#include <QPointF>
#include <QSizeF>

class QPainter;

namespace corvane {

/// A transparent bitmap for `size` points at `scale` pixels per point, with that pixel ratio.
QImage transparentBitmap(QSizeF size, double scale);

/// Draws a bitmap, whose pixel ratio is the device's, upright into a painter whose y points up: its
/// lower left corner at `lowerLeft`, moved to the nearest whole device pixel, so that it stays
/// sharp.
void drawOnPixels(QPainter &painter, const QImage &bitmap, QPointF lowerLeft);

/// The bitmap scaled to fit into `size` points at `scale`, keeping its proportions, in the middle
/// of a transparent bitmap of that size, its corners rounded.
QImage fitted(const QImage &bitmap, QSizeF size, double cornerRadius, double scale);

} // namespace corvane
