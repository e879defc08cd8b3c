#pragma once

#include "platform/base/geometry.h"
#include "platform/desktop/screens.h"

#include <QRectF>
#include <QSizeF>

#include <cmath>

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
    /// How many points of the screen one point of the panel's content takes: more than 1 for people
    /// who want everything larger.
    double scale = 1;
};

/// The panel's size in its content's own points. What they count as whole stays so.
inline QSizeF contentSizeOf(QSizeF size, double scale)
{
    constexpr double parts = 1024;
    const auto inContent
        = [scale](double length) { return std::round(length / scale * parts) / parts; };
    return scale == 1 ? size : QSizeF(inContent(size.width()), inContent(size.height()));
}

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
inline PanelPlacement placementOn(const ScreenPointer &screen, const QRectF &frame,
                                  double scale = 1)
{
    return {screen, maxY(screen->frame) - maxY(frame), frame.size(),
            midX(frame) - midX(screen->frame), scale};
}

} // namespace corvane
