#pragma once

#include "app/welcome/welcome_scene.h"

class QFont;
class QPainter;
class QPalette;
class QRectF;

namespace corvane::welcome_illustration {

// A moment of a play: two windows on a desktop, the shelf at its top, and what moves. The desktop
// fills the area; the stage stands in its middle, as large as it fits. Light or dark, and the
// accent, are the palette's.

/// What stands still: the desktop and its windows, of which those of a scene with the key differ.
void drawBackdrop(QPainter &painter, const QRectF &area, bool showsKey, const QPalette &palette);

/// What stands before it and may move; `keyFont` has a sign for the Shift key.
void drawActors(QPainter &painter, const QRectF &area, const WelcomeScene &scene,
                const QPalette &palette, const QFont &keyFont);

} // namespace corvane::welcome_illustration
