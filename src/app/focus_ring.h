#pragma once

class QPainter;
class QPalette;
class QRectF;

namespace corvane::focus_ring {

/// Marks what has the keyboard: a line in the accent's colour inside the edge of `rect`.
void draw(QPainter &painter, const QPalette &palette, const QRectF &rect, double radius);

} // namespace corvane::focus_ring
