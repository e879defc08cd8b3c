#pragma once

#include "app/sessions/desktop_session.h"
#include "input/barrier_edge_trigger.h"
#include "input/drag_monitor.h"
#include "input/monitored_clicks.h"
#include "input/pointer_screen_locator.h"
#include "platform/qt/desktop/qt_keyboard.h"
#include "platform/x11/base/x11_abilities.h"
#include "platform/x11/base/x11_connection.h"
#include "platform/x11/drags/x11_clipboard.h"
#include "platform/x11/drags/x11_clipboard_answers.h"
#include "platform/x11/drags/x11_drag_desktop.h"
#include "platform/x11/drags/x11_drag_support.h"
#include "platform/x11/drags/x11_drop_support.h"
#include "platform/x11/keys/x11_hot_keys.h"
#include "platform/x11/keys/x11_keyboard_layout.h"
#include "platform/x11/pointer/x11_pointer.h"
#include "platform/x11/pointer/x11_pointer_barriers.h"
#include "platform/x11/windows/x11_full_screen_windows.h"
#include "platform/x11/windows/x11_panels.h"
#include "platform/x11/windows/x11_ping_answers.h"
#include "platform/x11/windows/x11_tray_watch.h"
#include "platform/x11/windows/x11_window_activation.h"

namespace corvane {

/// The session on X11, which reports to every program where the pointer is, which buttons are held,
/// who owns the drag selection, and which windows are in front.
struct X11Session : RunningSession {
    explicit X11Session(const SessionNeeds &needs);

    DesktopSession desktop() override;

    X11Connection connection;
    SessionAbilities abilities;
    X11PingAnswers pingAnswers;
    X11Pointer pointer;
    PointerScreenLocator screenLocator;
    X11DragDesktop dragDesktop;
    DragMonitor dragMonitor;
    MonitoredClicks outsideClicks;
    X11HotKeys hotKeys;
    QtKeyboard keyboard;
    X11KeyboardLayout keyboardLayout;
    X11Panels panels;
    X11WindowActivation windowActivation;
    X11PointerBarriers pointerBarriers;
    X11FullScreenWindows fullScreenWindows;
    BarrierEdgeTrigger edgeTrigger;
    X11DropSupport dropSupport;
    X11Clipboard clipboard;
    X11ClipboardAnswers clipboardAnswers;
    X11DragSupport dragSupport;
    X11TrayWatch trayWatch;
};

} // namespace corvane
