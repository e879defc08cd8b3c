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

/// Tells when the user takes the pointer to the top edge of a screen, and whether that is still
/// meant for what hangs there. Each kind of session has its own way to find that out. Main thread
/// only.
class EdgeTrigger {
public:
    virtual ~EdgeTrigger() = default;

    /// Watches these stretches and no others; none at all costs nothing. What was entered before is
    /// forgotten, and its end not told.
    virtual void watch(const std::vector<EdgeStretch> &stretches) = 0;
    /// Whether the pointer rests in a stretch that is watched, no button is held, and no other
    /// window has that screen for itself, as films, games and locked sessions have.
    virtual bool isStillThere() const = 0;
    /// A button is held, wherever the pointer is: something may be about to be dragged here. False
    /// where the window system does not tell.
    virtual bool isButtonHeld() const = 0;

    /// The pointer has come to a stretch. Told once until it has left.
    std::function<void()> onEntered;
    /// It is there no longer, after it was entered.
    std::function<void()> onLeft;
};

} // namespace corvane
