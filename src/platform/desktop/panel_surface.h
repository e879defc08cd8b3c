#pragma once

#include <QRegion>
#include <QSize>

class QScreen;
class QWindow;

namespace corvane {

/// Where a panel stands: on which screen, and where on that. In the toolkit's device-independent
/// pixels, y downward.
struct PanelPlacement {
    /// Null leaves it to the window system; distances are from its first screen then, where it goes
    /// by distances at all.
    QScreen *screen = nullptr;
    int fromLeft = 0;
    int fromTop = 0;
    QSize size;
};

/// What becomes of a window that is a panel: it floats above everything, on every workspace and
/// over full-screen windows, stands in no task list, and is given no keyboard for being shown.
/// There is one for each window system; it serves all panels. Main thread only.
class PanelSurface {
public:
    virtual ~PanelSurface() = default;

    /// Makes a panel of a window that has no platform window yet: gives it its flags, and its
    /// platform window.
    virtual void adopt(QWindow &window) = 0;

    virtual void place(QWindow &window, const PanelPlacement &placement) = 0;
    /// The screen that it is on, also where the window system chose it; null where that is none.
    virtual QScreen *screenOf(const QWindow &window) const = 0;

    /// Called before the window is shown and after it is hidden.
    virtual void willShow(QWindow &window) = 0;
    virtual void didHide(QWindow &window) = 0;

    /// The part that takes clicks, in device pixels of the window; an empty region takes none.
    virtual void setInputRegion(QWindow &window, const QRegion &region) = 0;
    /// Cuts the window to `region`, in device pixels. An empty region means the whole window.
    virtual void setBoundingRegion(QWindow &window, const QRegion &region) = 0;
};

} // namespace corvane
