#pragma once

#include "platform/base/subscription.h"

#include <functional>

namespace corvane {

/// Reports motion of the pointer with its left button held, and presses of buttons, anywhere on the
/// desktop.
///
/// Handlers run on the main thread, also while a drag of our own runs an event loop. A pointer that
/// moves with no button held costs nothing. A monitor is there until its subscription ends, which
/// its handler may do, and which may outlive these; an empty one means that the window system
/// refuses.
class EventMonitors {
public:
    using Handler = std::function<void()>;

    virtual ~EventMonitors() = default;

    /// For other programs' events. Where one monitor hears every program, this one's included, the
    /// global monitor is that one and there is no local one.
    virtual Subscription addGlobalMonitor(Handler onLeftMouseDragged) = 0;
    /// For this program's own events. The events themselves always go their way.
    virtual Subscription addLocalMonitor(Handler onLeftMouseDragged) = 0;
    /// For presses of the left button wherever, in this program's windows too, before anything
    /// that they lead to is told.
    virtual Subscription addLeftMouseDownMonitor(Handler onLeftMouseDown) = 0;
    /// For presses of any button in other programs' windows, those in our own excepted. What a
    /// window system reports of a wheel as buttons is none.
    virtual Subscription addGlobalMouseDownMonitor(Handler onMouseDown) = 0;
};

} // namespace corvane
