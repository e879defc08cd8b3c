#pragma once

#include "platform/x11/base/x11_connection.h"

namespace corvane {

/// The window manager, as other programs talk to it: by properties of the root window, read at each
/// call, and by messages to the root window (EWMH). The connection must outlive it.
class X11WindowManager {
public:
    explicit X11WindowManager(X11Connection &connection)
        : m_connection(connection)
    {
    }

    bool isRunning() const;
    /// The active window; none when no window, or none that it manages, has the keyboard.
    xcb_window_t activeWindow() const;
    /// Whether the window is one that it made for itself, and that stands for none of a program's.
    bool isItsOwn(xcb_window_t window) const;
    /// Asks it to bring a window forward and to give it the keyboard. The request is sent on
    /// connection `on`, which is flushed.
    ///
    /// `time` must be the server's present time: the server ignores a focus change with a time
    /// before that of the last one.
    void activate(xcb_window_t window, xcb_connection_t *on, xcb_timestamp_t time) const;

    /// Asks it, on our own connection, to set a property of `window`, which is ours and never
    /// shown. It does that after everything that it was asked before on that connection, so
    /// `isSign` tells when those requests were handled. A window manager that does not support this
    /// gives no sign.
    void askForSign(xcb_window_t window) const;
    /// Whether the event is the answer to `askForSign`.
    bool isSign(const xcb_generic_event_t &event, xcb_window_t window) const;

private:
    void sendToRoot(xcb_client_message_event_t message, xcb_connection_t *on) const;
    void tellTime(xcb_connection_t *on) const;
    xcb_window_t rootProperty(const char *name) const;

    X11Connection &m_connection;
};

} // namespace corvane
