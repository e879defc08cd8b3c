#pragma once

#include <functional>
#include <optional>

namespace corvane {

/// Reports motion of the pointer with its left button held, and presses of buttons, anywhere on the
/// desktop.
///
/// Handlers run on the main thread, also while a drag of ours runs an event loop of its own. Motion
/// without a button costs nothing.
class EventMonitors {
public:
    using Handle = int;
    using Handler = std::function<void()>;

    virtual ~EventMonitors() = default;

    /// For events of other programs; none if the window system refuses. If one monitor gets the
    /// events of all programs, ours included, it is this one, and there is no local monitor.
    virtual std::optional<Handle> addGlobalMonitor(Handler onLeftMouseDragged) = 0;
    /// For this program's events. Monitors do not change where events go.
    virtual std::optional<Handle> addLocalMonitor(Handler onLeftMouseDragged) = 0;
    /// For presses of the left button anywhere, our windows included. Called before anything that
    /// follows from the press is reported. None if the window system refuses.
    virtual std::optional<Handle> addLeftMouseDownMonitor(Handler onLeftMouseDown) = 0;
    /// For presses of any button in other programs' windows. Wheels that the window system reports
    /// as buttons do not count. None if the window system refuses.
    virtual std::optional<Handle> addGlobalMouseDownMonitor(Handler onMouseDown) = 0;
    /// A handle that is not installed is ignored. May be called from inside a handler.
    virtual void removeMonitor(Handle handle) = 0;
};

} // namespace corvane
