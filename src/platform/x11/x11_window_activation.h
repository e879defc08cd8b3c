#pragma once

#include "platform/window_activation.h"
#include "platform/x11/x11_connection.h"

namespace corvane {

/// Window managers refuse the keyboard to a window whose user time is old, and Qt knows only the
/// time of the last event that it got itself. A click on the panel or a global shortcut went to
/// somebody else, so the server is asked for its time. The connection must outlive it.
class X11WindowActivation : public WindowActivation {
public:
    explicit X11WindowActivation(X11Connection &connection);
    ~X11WindowActivation() override;
    X11WindowActivation(const X11WindowActivation &) = delete;
    X11WindowActivation &operator=(const X11WindowActivation &) = delete;

    void bringToFront(QWindow &window) override;
    void giveKeyboard(QWindow &window) override;

private:
    void askForTime();
    void handle(const xcb_generic_event_t &event);
    void activate(xcb_window_t window, xcb_timestamp_t time);
    bool hasWindowManager() const;

    X11Connection &m_connection;
    X11Connection::ListenerId m_listener;
    /// Never shown: it is there to have a property changed. Made when it is first needed.
    xcb_window_t m_clock = XCB_NONE;
    /// The window that waits for the answer.
    xcb_window_t m_waiting = XCB_NONE;
};

} // namespace corvane
