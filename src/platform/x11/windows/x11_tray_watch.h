#pragma once

#include "platform/desktop/tray_watch.h"
#include "platform/x11/base/x11_connection.h"

namespace corvane {

/// Tells when the X11 screen has a system tray, that is, when a program owns the selection
/// `_NET_SYSTEM_TRAY_Sn`. The connection must outlive it. Main thread only.
class X11TrayWatch : public TrayWatch {
public:
    explicit X11TrayWatch(X11Connection &connection);
    ~X11TrayWatch() override;
    X11TrayWatch(const X11TrayWatch &) = delete;
    X11TrayWatch &operator=(const X11TrayWatch &) = delete;

    void start(std::function<void()> onTray) override;
    void stop() override;

private:
    void handle(const xcb_generic_event_t &event) const;
    void select(std::uint32_t mask);

    X11Connection &m_connection;
    Subscription m_listener;
    xcb_atom_t m_selection = XCB_NONE;
    std::function<void()> m_onTray;
};

} // namespace corvane
