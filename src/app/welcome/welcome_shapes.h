#pragma once

#include "app/welcome/welcome_scene.h"

#include <QPolygonF>
#include <QRectF>
#include <QSizeF>

class QRegion;
class QTransform;

namespace corvane::welcome_shapes {

// Where the actors of a play are, in points of its stage, and how far they reach.

inline constexpr QSizeF cardSize{40, 48};
inline constexpr double cardShadow = 4;
inline constexpr QRectF keyCap{238, 240, 44, 40};
inline constexpr double keyShadow = 6;
/// How far the key goes down.
inline constexpr double keyTravel = 3;
/// The width of the line around the pointer.
inline constexpr double arrowLine = 2.4;

/// The pointer's outline; its tip is at the origin.
const QPolygonF &arrow();
/// Of the notch (0), of the open shelf (1), and of what is between them.
QRectF shelfBounds(double open);

/// Where the stage stands in an area: in its middle, at its top, as large as it fits.
QTransform stageIn(const QRectF &area);

/// Where the pictures of two moments of one play may differ, in whole units of the area.
QRegion changed(const QRectF &area, const WelcomeScene &before, const WelcomeScene &after);

} // namespace corvane::welcome_shapes
