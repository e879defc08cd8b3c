#pragma once

#include <QImage>
#include <QRect>

namespace corvane::e2e {

/// What hangs from the middle of the top edge of a picture, on a wallpaper of one colour: its
/// outer bounds. Empty where nothing does.
QRect shelfIn(const QImage &picture, QRgb wallpaper);

} // namespace corvane::e2e
