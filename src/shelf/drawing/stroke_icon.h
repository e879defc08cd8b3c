#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QString>

namespace corvane {

/// Icons drawn as lines, for controls.
enum class StrokeIcon { Eye, Copy, Cross, SquaresFour, Trash, CaretLeft, CaretRight, Check };

namespace stroke_icon {

/// "eye", "copy", "caretLeft" and so on.
QString name(StrokeIcon icon);

/// Appends the icon's strokes in unit coordinates, y upward.
void appendPath(StrokeIcon icon, QPainterPath &path);

/// The strokes, `weight` points wide, in a square of `pointSize` points less `inset` on each side,
/// at `scale` pixels per point. Made once for each combination of arguments. Main thread only.
QImage image(StrokeIcon icon, double pointSize, const QColor &tint, double inset, double weight,
             double scale);

} // namespace stroke_icon
} // namespace corvane
