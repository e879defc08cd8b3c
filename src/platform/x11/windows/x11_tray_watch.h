#pragma once

#include "platform/x11/base/x11_connection.h"

#include <functional>

namespace corvane {

/// Tells when the X11 screen has a tray for small windows: when somebody owns the selection that
/// panels announce theirs by. The connection must outlive it. Main thread only.
class X11TrayWatch {
public:
    explicit X11TrayWatch(X11Connection &connection);
    ~X11TrayWatch();
    X11TrayWatch(const X11TrayWatch &) = delete;
    X11TrayWatch &operator=(const X11TrayWatch &) = delete;

    /// `onTray` is called at once if there is a tray, and whenever one comes.
    void start(std::function<void()> onTray);

private:
    void handle(const xcb_generic_event_t &event) const;
    void select(std::uint32_t mask);

    X11Connection &m_connection;
    X11Connection::ListenerId m_listener;
    xcb_atom_t m_selection = XCB_NONE;
    std::function<void()> m_onTray;
};

} // namespace corvane
