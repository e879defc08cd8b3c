#pragma once

#include "platform/desktop/screens.h"

#include <functional>
#include <vector>

namespace corvane {

/// Part of a screen's top edge.
struct EdgeStretch {
    ScreenPointer screen;
    /// From the screen's left edge, in points.
    double left = 0;
    double width = 0;

    friend bool operator==(const EdgeStretch &, const EdgeStretch &) = default;
};

/// Tells when the user moves the pointer to the top edge of a screen, and whether it is still there
/// to summon the shelf. Each kind of session implements it in its own way. Main thread only.
class EdgeTrigger {
public:
    virtual ~EdgeTrigger() = default;

    /// Watches these stretches and no others; with none nothing is watched. If the pointer was at
    /// an earlier stretch, `onLeft` is not called for that.
    virtual void watch(const std::vector<EdgeStretch> &stretches) = 0;
    /// Whether the pointer is in a watched stretch, no button is held, and no full-screen window (a
    /// film, a game, a locked session) covers that screen.
    virtual bool isStillThere() const = 0;
    /// Whether a button is held, wherever the pointer is: the user may be about to drag something
    /// here. False where the window system does not tell.
    virtual bool isButtonHeld() const = 0;

    /// The pointer has come to a stretch. Called once until it has left.
    std::function<void()> onEntered;
    /// The pointer has left, after `onEntered`.
    std::function<void()> onLeft;
};

} // namespace corvane
