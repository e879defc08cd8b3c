#pragma once

#include "app/sessions/desktop_hot_keys.h"
#include "app/sessions/desktop_session.h"
#include "app/sessions/quiet_desktop.h"
#include "platform/qt/desktop/qt_keyboard.h"
#include "platform/wayland/base/wayland_connection.h"
#include "platform/wayland/drags/wayland_clipboard.h"
#include "platform/wayland/drags/wayland_drag_carrier.h"
#include "platform/wayland/drags/wayland_drop_support.h"
#include "platform/wayland/keys/wayland_keyboard_layout.h"
#include "platform/wayland/windows/drag_whereabouts.h"
#include "platform/wayland/windows/layer_panels.h"
#include "platform/wayland/windows/layer_strip_surface.h"
#include "platform/wayland/windows/layer_window_activation.h"
#include "platform/wayland/windows/user_whereabouts.h"
#include "platform/x11/drags/xwayland_drags.h"

namespace corvane {

/// A session whose compositor hangs our panels from its screens' edges, and tells us nothing of
/// other programs: neither where the pointer is, nor what is dragged, except where that comes to a
/// window of ours. An X server that the compositor may keep for X11's programs tells when a drag
/// begins.
struct LayerSession : RunningSession {
    explicit LayerSession(const SessionNeeds &needs);

    /// Before there is an application object: has Qt leave the panels' windows to us.
    static void prepare();
    /// What such a session is able to do.
    static Abilities abilitiesWhere(bool isToldOfDrags, bool areHotKeysChosenHere);

    DesktopSession desktop() override;

    WaylandConnection connection;
    SessionAbilities abilities;
    LayerStripSurface strips;
    QuietDesktop quiet;
    DragWhereabouts whereabouts;
    UserWhereabouts userWhereabouts;
    QtLastModifiers keyboard;
    WaylandKeyboardLayout keyboardLayout;
    DesktopHotKeys hotKeys;
    LayerPanels panels;
    LayerWindowActivation windowActivation;
    WaylandDragCarrier dragCarrier;
    WaylandDropSupport dropSupport;
    WaylandClipboard clipboard;
    XWaylandDrags xwaylandDrags;

private:
    KeyNaming keyNaming() const;
    void wireDrags();
    void tellAbilities();
};

} // namespace corvane
