#pragma once

#include "platform/desktop/edge_trigger.h"

#include <functional>
#include <vector>

namespace corvane {

/// Reports when the pointer is pushed against a stretch of a screen's top edge, for window systems
/// that can tell that without a window at the edge.
///
/// Windows at the edge keep getting their events, the pointer is not stopped anywhere, and nothing
/// runs while the pointer is elsewhere. Edges above which another screen continues are not watched.
/// Devices that report absolute places (tablets, pointers of some virtual machines) do not push and
/// are not noticed. Main thread only.
class PointerBarriers {
public:
    virtual ~PointerBarriers() = default;

    /// Watches these stretches and no others; with none nothing is watched. If the pointer was at
    /// an earlier stretch, `onLeft` is not called for that.
    virtual void watch(const std::vector<EdgeStretch> &stretches) = 0;

    /// The pointer was pushed against a stretch while it was not grabbed for a drag or a menu.
    /// Called once until it has left.
    std::function<void()> onEntered;
    /// The pointer has left, after `onEntered`.
    std::function<void()> onLeft;
};

} // namespace corvane
