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

    /// Asks it on our own connection to change a property of a window of ours that was never shown.
    /// It does so after all that it was asked before on that connection. A window manager that does
    /// not know of this gives no sign.
    void askForSign(xcb_window_t window) const;
    bool isSign(const xcb_generic_event_t &event, xcb_window_t window) const;

private:
    void sendToRoot(xcb_client_message_event_t message, xcb_connection_t *on) const;
    void tellTime(xcb_connection_t *on) const;
    xcb_window_t rootProperty(const char *name) const;

    X11Connection &m_connection;
};

} // namespace corvane
