#pragma once

#include <functional>
#include <optional>

namespace corvane {

/// Hears the pointer being moved with its left button held, and buttons being pressed, wherever on
/// the desktop.
///
/// Handlers run on the main thread, also while a drag of our own runs an event loop. A pointer that
/// moves with no button held costs nothing.
class EventMonitors {
public:
    using Handle = int;
    using Handler = std::function<void()>;

    virtual ~EventMonitors() = default;

    /// For other programs' events; none when the window system refuses. Where one monitor hears
    /// every program, this one's included, the global monitor is that one and there is no local
    /// one.
    virtual std::optional<Handle> addGlobalMonitor(Handler onLeftMouseDragged) = 0;
    /// For this program's own events. The events themselves always go their way.
    virtual std::optional<Handle> addLocalMonitor(Handler onLeftMouseDragged) = 0;
    /// For presses of the left button wherever, in this program's windows too, before anything
    /// that they lead to is told. None when the window system refuses.
    virtual std::optional<Handle> addLeftMouseDownMonitor(Handler onLeftMouseDown) = 0;
    /// For presses of any button in other programs' windows, those in our own excepted. What a
    /// window system reports of a wheel as buttons is none. None when the window system refuses.
    virtual std::optional<Handle> addGlobalMouseDownMonitor(Handler onMouseDown) = 0;
    /// A handle that is not installed is ignored. May be called from inside a handler.
    virtual void removeMonitor(Handle handle) = 0;
};

} // namespace corvane
