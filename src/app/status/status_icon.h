#pragma once

#include <QColor>
#include <QImage>
#include <QSizeF>

class QPainter;

namespace corvane::status_icon {

/// The canvas, in points; origin at the bottom left, y upward.
constexpr QSizeF canvas{21, 16};
/// The icon for three cards stands for any larger number.
constexpr int mostCards = 3;

/// Draws the template: a base bar and over it `cards` cards, 0 to 3, in black on nothing. Around
/// each card what lies below is knocked out, so that overlapping shapes stay apart.
void draw(QPainter &painter, int cards);

/// The template in a square of `side` pixels, in `foreground`, with a thin soft outline of the
/// opposite brightness. On a panel that is as it was taken for the outline does not show; on
/// another one it keeps the icon legible.
QImage image(int cards, int side, const QColor &foreground);

/// The foreground of a panel that does not tell it. Most panels are dark whatever the programs'
/// palette is; those of the desktops named here have the palette's colours. `currentDesktop` is
/// $XDG_CURRENT_DESKTOP, `text` the palette's text colour.
QColor likelyForeground(const QString &currentDesktop, const QColor &text);

} // namespace corvane::status_icon
