#pragma once

#include "e2e/desktop/x_desktop.h"

#include <xcb/xcb.h>

#include <atomic>
#include <string>
#include <thread>

namespace corvane::bench {

/// A Wayland session whose compositor is the one window of an X server of its own. Programs that
/// are started later are programs of this session.
class LayerDesk {
public:
    /// `compositor` is "sway" or "kwin".
    LayerDesk(const std::string &compositor, bool hasXWayland);

    e2e::XDesktop &desktop() { return m_desktop; }
    e2e::Hands &hands() { return m_desktop.hands(); }

    /// Whether there is anything but the wallpaper at the middle of the top edge.
    bool showsSomething();
    /// Waits for that; the time by `now()`.
    double waitUntilItShows(bool something);
    /// Moves the pointer about, far from the top edge.
    void moveOften();
    /// Activates the program of that name on the session bus, as a key that is bound to it does.
    void toggle(const QString &service);

private:
    e2e::XDesktop m_desktop;
};

/// Hears, as the shelf does, when a drag begins, and notes the time.
class DragNotices {
public:
    DragNotices();
    DragNotices(const DragNotices &) = delete;
    DragNotices &operator=(const DragNotices &) = delete;
    ~DragNotices();

    /// The time of the latest notice, by `now()`; 0 before the first.
    double latest() const { return m_latest; }

private:
    void listen();

    xcb_connection_t *m_connection;
    /// A message to it ends the thread.
    xcb_window_t m_window = XCB_NONE;
    std::atomic<double> m_latest = 0;
    std::thread m_thread;
};

} // namespace corvane::bench
