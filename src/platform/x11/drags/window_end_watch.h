#pragma once

#include <xcb/xcb.h>

namespace corvane {

/// While it lives, Qt's connection is told when another program's window is destroyed. On that
/// connection the news comes after everything that the program sent to our windows before.
class WindowEndWatch {
public:
    explicit WindowEndWatch(xcb_window_t window);
    ~WindowEndWatch();
    WindowEndWatch(const WindowEndWatch &) = delete;
    WindowEndWatch &operator=(const WindowEndWatch &) = delete;

    xcb_window_t window() const { return m_window; }
    /// False for a window that was gone when this was made.
    bool exists() const { return m_exists; }

private:
    xcb_window_t m_window;
    bool m_exists = false;
};

} // namespace corvane
