#pragma once

#include "platform/desktop/panel_placement.h"

#include <QPoint>
#include <QRegion>
#include <QSize>

class QScreen;
class QWindow;

namespace corvane {

/// The window of a panel that was placed. It may be larger than the panel: the rest of it is
/// transparent and takes no clicks. In Qt's device-independent pixels.
struct PanelSpace {
    QSize window;
    /// The panel's top left in the window.
    QPoint panel;
};

/// Makes windows into panels: they float above everything, on every workspace and over full-screen
/// windows, are in no task list, and do not get the keyboard when they are shown. There is one for
/// each window system; it serves all panels. Main thread only.
class PanelSurface {
public:
    virtual ~PanelSurface() = default;

    /// Makes a window, which has no platform window yet, into a panel: sets its flags and creates
    /// its platform window.
    virtual void adopt(QWindow &window) = 0;

    /// Turns the placement into the window system's own terms. The panel's size in its window
    /// becomes `inWholePoints(placement.size)`.
    virtual PanelSpace place(QWindow &window, const PanelPlacement &placement) = 0;
    /// The window's screen, also where the window system chose it; null when it is on none.
    virtual QScreen *screenOf(const QWindow &window) const = 0;

    /// Called before the window is shown and after it is hidden.
    virtual void willShow(QWindow &window) = 0;
    virtual void didHide(QWindow &window) = 0;

    /// The part that takes clicks, in device pixels of the window; with an empty region clicks go
    /// through everywhere.
    virtual void setInputRegion(QWindow &window, const QRegion &region) = 0;
    /// Cuts the window to `region`, in device pixels. An empty region means the whole window.
    virtual void setBoundingRegion(QWindow &window, const QRegion &region) = 0;
};

} // namespace corvane
