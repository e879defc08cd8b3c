#pragma once

#include <QRegion>

#include <functional>

class QWindow;

namespace corvane {

/// What a panel needs of the window system beyond what Qt does for every window. There is one for
/// each window system; it serves all panels. Main thread only.
class PanelSurface {
public:
    virtual ~PanelSurface() = default;

    /// Makes a panel of a window that has its platform window but was never shown.
    virtual void adopt(QWindow &window) = 0;
    /// Puts the window at `geometry`, in Qt's device-independent coordinates.
    virtual void place(QWindow &window, const QRect &geometry) = 0;
    /// Called before the window is shown and after it is hidden.
    virtual void willShow(QWindow &window) = 0;
    virtual void didHide(QWindow &window) = 0;

    /// The part that takes clicks, in device pixels of the window; an empty region takes none.
    virtual void setInputRegion(QWindow &window, const QRegion &region) = 0;
    /// Cuts the window to `region`, in device pixels. An empty region means the whole window.
    virtual void setBoundingRegion(QWindow &window, const QRegion &region) = 0;

    /// Gives the window the keyboard, and remembers who had it.
    virtual void takeKeyboard(QWindow &window) = 0;
    /// Gives the keyboard back if the window still has it.
    virtual void giveKeyboardBack(QWindow &window) = 0;
    /// Gives the keyboard back if nobody has it: what had it was hidden, and nothing took it since.
    virtual void giveUnclaimedKeyboardBack() = 0;

    /// Whether windows are blended with what lies below; without it transparency shows as black.
    virtual bool isComposited() const = 0;
    virtual void observeComposited(std::function<void()> callback) = 0;
};

} // namespace corvane
