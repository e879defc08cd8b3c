#pragma once

#include "platform/base/geometry.h"
#include "platform/desktop/screens.h"

#include <QRectF>
#include <QSizeF>

namespace corvane {

/// Where a panel is wanted. In points, which may be fractions; a window is placed in whole ones.
struct PanelPlacement {
    /// Null lets the desktop choose.
    ScreenPointer screen;
    /// From the screen's upper edge to the panel's.
    double fromTop = 0;
    QSizeF size;
    /// From the screen's middle to the panel's, to the right. Not 0 only while a screen changes
    /// under a panel, which then covers its old and its new place.
    double fromMiddle = 0;
};

/// The same in global points, origin at the bottom left of the primary display. Without a screen,
/// when only the desktop knows the place, a rectangle at the origin.
inline QRectF frameOf(const PanelPlacement &placement)
{
    const QSizeF size = placement.size;
    if (!placement.screen)
        return {{0, 0}, size};
    const QRectF &screen = placement.screen->frame;
    return {midX(screen) + placement.fromMiddle - 0.5 * size.width(),
            maxY(screen) - placement.fromTop - size.height(), size.width(), size.height()};
}

/// The placement whose `frameOf` is this one.
inline PanelPlacement placementOn(const ScreenPointer &screen, const QRectF &frame)
{
    return {screen, maxY(screen->frame) - maxY(frame), frame.size(),
            midX(frame) - midX(screen->frame)};
}

} // namespace corvane
