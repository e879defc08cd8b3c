#pragma once

#include "platform/desktop/edge_trigger.h"

#include <functional>
#include <vector>

namespace corvane {

/// Tells when the pointer is pushed against a stretch of a screen's top edge, where a window system
/// can tell that without a window at the edge.
///
/// It takes nothing from the windows there, holds the pointer up nowhere, and wakes nobody while
/// the pointer is elsewhere. An edge that another screen continues is none: the pointer goes
/// through. Devices that name a place instead of a movement (tablets, the pointers of some virtual
/// machines) push against nothing and are not noticed. Main thread only.
class PointerBarriers {
public:
    virtual ~PointerBarriers() = default;

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
