#pragma once

#include <QImage>

namespace corvane {

struct Theme;

/// Shown for a picture that is still being made, in the middle of a square of `side` points: a
/// faint glyph above three dots. It stands still, so that waiting costs no frames; the picture
/// takes its place once it is there.
QImage beingMadeGlyph(double side, double glyphSide, const Theme &theme, double scale);

} // namespace corvane
