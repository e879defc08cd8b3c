#pragma once

#include "platform/desktop/window_activation.h"
#include "platform/x11/windows/x11_window_manager.h"

namespace corvane {

/// Brings our windows to the front. Window managers refuse a window whose user time is old, and Qt
/// knows only the time of the last event that it got itself. A click on a panel's icon or a global
/// shortcut went to another program, so the server is asked for its present time. The connection
/// must outlive it.
class X11WindowActivation : public WindowActivation {
public:
    explicit X11WindowActivation(X11Connection &connection)
        : m_connection(connection)
        , m_windowManager(connection)
    {
    }

    void bringToFront(QWindow &window) override;

private:
    X11Connection &m_connection;
    X11WindowManager m_windowManager;
};

} // namespace corvane
