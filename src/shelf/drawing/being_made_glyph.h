#pragma once

#include <QImage>

namespace corvane {

struct Theme;

/// The picture of an item that is still being made: a faint glyph above three dots, in the middle
/// of a square of `side` points. It is not animated, so that waiting costs no frames.
QImage beingMadeGlyph(double side, double glyphSide, const Theme &theme, double scale);

} // namespace corvane
