#pragma once

#include "platform/desktop/screen_search.h"
#include "platform/x11/base/x11_connection.h"

#include <QPoint>

namespace corvane {

/// Finds the screen that the user is on, in a Wayland session, on the X server that its compositor
/// keeps.
///
/// That server does not know of a pointer that is over no window of its own. But the compositor, as
/// the window manager of that server, puts a window that asks for no place on the screen with the
/// pointer, before it shows it: a window without anything to be seen is to be shown until it has
/// been put somewhere.
class X11UserWhereabouts : public ScreenSearch {
public:
    /// In seconds: so long the window manager may take, which answers in any case unless it hangs.
    static constexpr double patience = 1;

    X11UserWhereabouts(X11Connection &connection, MainQueue &queue, const Screens &screens);
    ~X11UserWhereabouts() override;

private:
    bool begin() override;
    void end() override;
    void handle(const xcb_generic_event_t &event);
    void showWindow();
    void wasPut();

    X11Connection &m_connection;
    Subscription m_listener;
    /// None while nothing is looked for.
    xcb_window_t m_window = XCB_NONE;
    /// Where that is now.
    QPoint m_place;
};

} // namespace corvane
