#pragma once

#include "platform/desktop/panel_placement.h"

#include <QPainterPath>

#include <functional>

class QPainter;

namespace corvane {

/// A small window above everything that only shows something: pointer, keys and drags go to what
/// lies below, as if it were not there, and screen readers are not told of it. Made hidden.
class TipWindow {
public:
    virtual ~TipWindow() = default;

    struct Content {
        /// Paints it. The painter works in points of the content (`PanelPlacement::scale`), origin
        /// at the bottom left, y upward; `scale` is pixels per point.
        std::function<void(QPainter &painter, double scale)> paint;
        /// What the window is cut to where the desktop cannot blend windows; in the same points.
        QPainterPath outline;
    };
    /// Shows this there from now on, above everything.
    virtual void show(const PanelPlacement &placement, const Content &content) = 0;
    /// Above windows that have been raised since it was shown. Ignored while it is hidden.
    virtual void raise() = 0;
    virtual void hide() = 0;
};

} // namespace corvane
