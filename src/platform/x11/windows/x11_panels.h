#pragma once

#include "platform/desktop/keyboard_loan.h"
#include "platform/desktop/panel_desktop.h"
#include "platform/x11/pointer/x11_pointing_devices.h"
#include "platform/x11/windows/x11_compositing.h"
#include "platform/x11/windows/x11_keyboard_focus.h"
#include "platform/x11/windows/x11_panel_surface.h"

namespace corvane {

/// The X11 implementations of what panels need. The connection and the queue must outlive it.
struct X11Panels {
    X11Panels(X11Connection &connection, MainQueue &queue)
        : surface(connection)
        , focus(connection)
        , keyboard(focus, queue)
        , compositing(connection)
        , pointingDevices(connection)
    {
    }

    PanelDesktop desktop()
    {
        return {.surface = surface,
                .keyboard = keyboard,
                .compositing = compositing,
                .pointingDevices = pointingDevices};
    }

    X11PanelSurface surface;
    X11KeyboardFocus focus;
    KeyboardLoan keyboard;
    X11Compositing compositing;
    X11PointingDevices pointingDevices;
};

} // namespace corvane
