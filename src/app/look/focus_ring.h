#pragma once

class QPainter;
class QPalette;
class QRectF;
class QWidget;

namespace corvane::focus_ring {

/// Whether to mark the widget: it has the focus, and the user moves the focus with the keyboard.
bool isWanted(const QWidget &widget);

/// Draws a line in the accent colour inside the edge of `rect`; `radius` is that of its corners.
void draw(QPainter &painter, const QPalette &palette, const QRectF &rect, double radius);

} // namespace corvane::focus_ring
