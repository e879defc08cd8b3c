#pragma once

class QPainter;
class QPalette;
class QRectF;
class QWidget;

namespace corvane::focus_ring {

/// Whether a widget has the keyboard and its user goes by keyboard: who clicks sees where.
bool isWanted(const QWidget &widget);

/// Marks what has the keyboard: a line in the accent's colour inside the edge of `rect`.
void draw(QPainter &painter, const QPalette &palette, const QRectF &rect, double radius);

} // namespace corvane::focus_ring
