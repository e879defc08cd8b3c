#pragma once

#include "platform/x11/base/x11_connection.h"

namespace corvane {

/// The window manager as other programs know it: by properties of the root window, asked for anew
/// each time, and by messages to it. The connection must outlive it.
class X11WindowManager {
public:
    explicit X11WindowManager(X11Connection &connection)
        : m_connection(connection)
    {
    }

    bool isRunning() const;
    /// None where no window has the keyboard, or none that it manages.
    xcb_window_t activeWindow() const;
    /// Asks it on a connection, which is flushed, to bring a window forward and to give it the
    /// keyboard.
    ///
    /// The server ignores a program that gives the keyboard away as of a time before that of the
    /// one who did so last. `time` is therefore the server's present one.
    void activate(xcb_window_t window, xcb_connection_t *on, xcb_timestamp_t time) const;

private:
    void tellTime(xcb_connection_t *on) const;
    xcb_window_t rootProperty(const char *name) const;

    X11Connection &m_connection;
};

} // namespace corvane
