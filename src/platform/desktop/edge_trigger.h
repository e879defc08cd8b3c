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

/// Tells when the user pushes the pointer against the top edge of a screen.
///
/// It takes nothing from the windows there, holds the pointer up nowhere, and wakes nobody while
/// the pointer is elsewhere. An edge that another screen continues is none: the pointer goes
/// through. Devices that name a place instead of a movement (tablets, the pointers of some virtual
/// machines) push against nothing and are not noticed. Main thread only.
class EdgeTrigger {
public:
    virtual ~EdgeTrigger() = default;

    /// Watches these stretches and no others; none at all costs nothing. What was entered before is
    /// forgotten, and its end not told.
    virtual void watch(const std::vector<EdgeStretch> &stretches) = 0;

    /// The pointer was pushed against a stretch, with nobody holding it for a drag or a menu. Told
    /// once until it has left.
    std::function<void()> onEntered;
    /// It is there no longer, after it was entered.
    std::function<void()> onLeft;
};

} // namespace corvane
