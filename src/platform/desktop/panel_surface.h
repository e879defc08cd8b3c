#pragma once

#include "platform/desktop/keys.h"

#include <QRegion>

#include <cstdint>
#include <functional>

class QWindow;

namespace corvane {

enum class KeyboardHolder {
    /// One of the panels, whichever.
    Panel,
    Nobody,
    /// Another window, of another program or of ours.
    Other,
};

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
    /// Asks the window system, which knows it before any event tells.
    virtual KeyboardHolder keyboardHolder() const = 0;
    /// Gives the keyboard back if the window still has it.
    virtual void giveKeyboardBack(QWindow &window) = 0;
    /// The same, whichever of the panels has it.
    virtual void giveKeyboardBack() = 0;
    /// A key that a panel had is still down, perhaps: until it is released its repeats reach
    /// nobody, whoever has the keyboard. By the window system's numbers.
    virtual void swallowRepeats(NativeKey key, std::uint32_t modifiers) = 0;
    /// At this moment, whatever events are on their way. The toolkit does not always know a
    /// repeat's release from that of the hand.
    virtual bool isKeyDown(NativeKey key) const = 0;
    virtual bool isAnyKeyDown() const = 0;
    /// At this moment. The toolkit forgets the buttons when a drag leaves a window of ours.
    virtual bool isLeftButtonDown() const = 0;
    /// Gives the keyboard back if nobody has it: what had it was hidden, and nothing took it since.
    virtual void giveUnclaimedKeyboardBack() = 0;

    /// Whether a pointing device, by the window system's id for it, is a touchpad.
    virtual bool isTouchpad(std::int64_t device) = 0;

    /// Whether windows are blended with what lies below; without it transparency shows as black.
    virtual bool isComposited() const = 0;
    virtual void observeComposited(std::function<void()> callback) = 0;
};

} // namespace corvane
