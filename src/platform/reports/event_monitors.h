#pragma once

#include "platform/base/subscription.h"

#include <functional>

namespace corvane {

/// Reports motion of the pointer with its left button held, and presses of buttons, anywhere on the
/// desktop.
///
/// Handlers run on the main thread, also while a drag of ours runs an event loop of its own. Motion
/// without a button costs nothing. A monitor lasts until its subscription ends, which may happen in
/// its own handler, and after this object's end. An empty subscription means that the window system
/// refuses.
class EventMonitors {
public:
    using Handler = std::function<void()>;

    virtual ~EventMonitors() = default;

    /// For events of other programs. If one monitor gets the events of all programs, ours included,
    /// it is this one, and there is no local monitor.
    virtual Subscription addGlobalMonitor(Handler onLeftMouseDragged) = 0;
    /// For this program's events. Monitors do not change where events go.
    virtual Subscription addLocalMonitor(Handler onLeftMouseDragged) = 0;
    /// For presses of the left button anywhere, our windows included. Called before anything that
    /// follows from the press is reported.
    virtual Subscription addLeftMouseDownMonitor(Handler onLeftMouseDown) = 0;
    /// For presses of any button in other programs' windows. Wheels that the window system reports
    /// as buttons do not count.
    virtual Subscription addGlobalMouseDownMonitor(Handler onMouseDown) = 0;
};

} // namespace corvane
