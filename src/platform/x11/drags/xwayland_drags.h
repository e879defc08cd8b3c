#pragma once

#include "platform/base/lifetime.h"
#include "platform/x11/base/x11_connection.h"
#include "platform/x11/drags/x11_drag_selection.h"

#include <functional>
#include <memory>

namespace corvane {

class MainQueue;

/// Tells when a drag begins, in a session that is none of X11's but keeps an X server for X11's
/// programs. A compositor takes the drag selection there for every drag of its own programs, before
/// it knows where the drag will go. The queue must outlive it. Main thread only.
class XWaylandDrags {
public:
    /// Seconds that a window is shown for at the start: before any was, some compositors pass no
    /// drags on.
    static constexpr double primingTime = 0.3;

    /// Connects where the environment names an X server, which may start it.
    explicit XWaylandDrags(MainQueue &queue);
    ~XWaylandDrags();
    XWaylandDrags(const XWaylandDrags &) = delete;
    XWaylandDrags &operator=(const XWaylandDrags &) = delete;

    /// Whether drags are told of.
    bool isWatching() const;

    /// A drag began, perhaps one of our own. Must not destroy this.
    std::function<void()> onBegan;
    /// The X server is gone, and nothing is told any more. The same holds.
    std::function<void()> onLost;

private:
    void prime(MainQueue &queue);

    std::unique_ptr<X11Connection> m_connection;
    std::unique_ptr<X11DragSelection> m_selection;
    Lifetime m_lifetime;
};

} // namespace corvane
