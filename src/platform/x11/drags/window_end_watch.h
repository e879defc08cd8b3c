#pragma once

#include <xcb/xcb.h>

namespace corvane {

/// While this exists, Qt's connection gets an event when another program's window is destroyed.
/// There the event comes after all messages that the program sent to our windows before.
class WindowEndWatch {
public:
    explicit WindowEndWatch(xcb_window_t window);
    ~WindowEndWatch();
    WindowEndWatch(const WindowEndWatch &) = delete;
    WindowEndWatch &operator=(const WindowEndWatch &) = delete;

    xcb_window_t window() const { return m_window; }
    /// False for a window that was already gone when this was made. A server that is silent then
    /// does not report its end either.
    bool exists() const { return m_exists; }

private:
    xcb_window_t m_window;
    bool m_exists = false;
    bool m_isWatching = false;
};

} // namespace corvane
