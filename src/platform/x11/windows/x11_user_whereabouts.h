#pragma once

#include "platform/base/lifetime.h"
#include "platform/desktop/screens.h"
#include "platform/x11/base/x11_connection.h"

#include <QPoint>

#include <functional>

namespace corvane {

class MainQueue;

/// Finds the screen that the user is on, in a Wayland session, on the X server that its compositor
/// keeps.
///
/// That server does not know of a pointer that is over no window of its own. But the compositor, as
/// the window manager of that server, puts a window that asks for no place on the screen with the
/// pointer, before it shows it: a window without anything to be seen is to be shown until it has
/// been put somewhere. With one screen there is nothing to find. What it is given must outlive it.
/// Main thread only.
class X11UserWhereabouts {
public:
    /// In seconds: so long the window manager may take, which answers in any case unless it hangs.
    static constexpr double patience = 1;

    X11UserWhereabouts(X11Connection &connection, MainQueue &queue, const Screens &screens);
    ~X11UserWhereabouts();
    X11UserWhereabouts(const X11UserWhereabouts &) = delete;
    X11UserWhereabouts &operator=(const X11UserWhereabouts &) = delete;

    /// Looks for it, and tells once. Asked meanwhile it goes on looking.
    void find();
    /// Called with the screen, or with null where it was not found. With one screen at once,
    /// otherwise later.
    std::function<void(const ScreenPointer &screen)> onFound;

private:
    void handle(const xcb_generic_event_t &event);
    void showWindow();
    void wasPut();
    void found(const ScreenPointer &screen);

    X11Connection &m_connection;
    MainQueue &m_queue;
    const Screens &m_screens;
    Subscription m_listener;
    /// None while nothing is looked for.
    xcb_window_t m_window = XCB_NONE;
    /// Where that is now.
    QPoint m_place;
    /// Of what is looked for now.
    Lifetime m_search;
};

} // namespace corvane
