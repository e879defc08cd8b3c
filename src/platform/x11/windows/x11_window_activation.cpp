#include "platform/x11/windows/x11_window_activation.h"

#include "platform/x11/base/x11_qt.h"

#include <QWindow>

namespace corvane {

void X11WindowActivation::bringToFront(QWindow &window)
{
    auto *const qt = x11_qt::connection();
    const xcb_window_t native = x11_qt::nativeWindow(window);
    if (!qt || native == XCB_NONE)
        return;
    window.raise();
    const xcb_timestamp_t time = m_connection.serverTime();
    x11_qt::ignoreErrors(xcb_change_property_checked(qt, XCB_PROP_MODE_REPLACE, native,
                                                     m_connection.atom("_NET_WM_USER_TIME"),
                                                     XCB_ATOM_CARDINAL, 32, 1, &time));
    // On Qt's connection, so that the window manager gets it after Qt's request to show the window;
    // it refuses to activate windows that it does not know yet.
    if (m_windowManager.isRunning())
        m_windowManager.activate(native, qt, time);
    else
        x11_qt::giveKeyboard(native, time);
}

} // namespace corvane
