#pragma once

#include "platform/desktop/keyboard_loan.h"
#include "platform/desktop/panel_desktop.h"
#include "platform/x11/pointer/x11_pointing_devices.h"
#include "platform/x11/windows/x11_compositing.h"
#include "platform/x11/windows/x11_keyboard_focus.h"
#include "platform/x11/windows/x11_panel_surface.h"
#include "platform/x11/windows/xwayland_keyboard_focus.h"
#include "platform/x11/windows/xwayland_panel_surface.h"

namespace corvane {

/// What panels need on an X server. The connection and the queue must outlive it.
template<typename Surface, typename Focus>
struct PanelsOnXServer {
    PanelsOnXServer(X11Connection &connection, MainQueue &queue)
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

    Surface surface;
    Focus focus;
    KeyboardLoan keyboard;
    X11Compositing compositing;
    X11PointingDevices pointingDevices;
};

using X11Panels = PanelsOnXServer<X11PanelSurface, X11KeyboardFocus>;
/// On the one that a Wayland compositor keeps.
using XWaylandPanels = PanelsOnXServer<XWaylandPanelSurface, XWaylandKeyboardFocus>;

} // namespace corvane
