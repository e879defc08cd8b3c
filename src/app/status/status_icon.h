#pragma once

#include <QColor>
#include <QImage>
#include <QSizeF>

class QPainter;

namespace corvane::status_icon {

/// The size of the drawing, in points; origin at the bottom left, y upward.
constexpr QSizeF canvas{21, 16};
/// The most cards that are drawn; this icon stands for any larger number, too.
constexpr int mostCards = 3;

/// Draws the icon in black: a bar, and over it `cards` cards, 0 to 3. Around each card a gap is
/// left in what is below it, so that overlapping shapes can be told apart. Needs a painter on a
/// transparent picture.
void draw(QPainter &painter, int cards);

/// The icon in a square of `side` pixels, in `foreground`, with a thin soft outline of the opposite
/// brightness. The outline is not noticed on a panel of the expected brightness, and keeps the icon
/// visible on another one.
QImage image(int cards, int side, const QColor &foreground);

/// A guess of the foreground for panels that do not tell theirs: light, because most panels are
/// dark whatever the palette is, except on desktops whose panels follow the palette (KDE, LXQt,
/// MATE). `currentDesktop` is $XDG_CURRENT_DESKTOP, `text` the palette's text colour.
QColor likelyForeground(const QString &currentDesktop, const QColor &text);

} // namespace corvane::status_icon
