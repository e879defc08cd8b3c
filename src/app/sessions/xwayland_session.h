#pragma once

#include "app/sessions/desktop_hot_keys.h"
#include "app/sessions/desktop_session.h"
#include "app/sessions/quiet_desktop.h"
#include "platform/qt/desktop/qt_keyboard.h"
#include "platform/x11/base/x11_connection.h"
#include "platform/x11/drags/x11_clipboard.h"
#include "platform/x11/drags/x11_clipboard_answers.h"
#include "platform/x11/drags/x11_drag_selection.h"
#include "platform/x11/drags/x11_drag_support.h"
#include "platform/x11/drags/x11_drop_support.h"
#include "platform/x11/keys/x11_keyboard_layout.h"
#include "platform/x11/windows/x11_panels.h"
#include "platform/x11/windows/x11_ping_answers.h"
#include "platform/x11/windows/x11_strip_surface.h"
#include "platform/x11/windows/x11_tray_watch.h"
#include "platform/x11/windows/x11_user_whereabouts.h"
#include "platform/x11/windows/x11_window_activation.h"

namespace corvane {

/// A Wayland session whose compositor hangs no panels from its screens' edges, used through the X
/// server that it keeps for X11's programs. That server tells which drags begin, Wayland's too, and
/// what comes to our own windows, and nothing more: neither where the pointer is, nor which buttons
/// are held, nor which windows fill a screen.
struct XWaylandSession : RunningSession {
    explicit XWaylandSession(const SessionNeeds &needs);

    DesktopSession desktop() override;

    X11Connection connection;
    SessionAbilities abilities;
    X11PingAnswers pingAnswers;
    X11StripSurface strips;
    QuietDesktop quiet;
    X11UserWhereabouts userWhereabouts;
    X11DragSelection dragSelection;
    QtKeyboard keyboard;
    X11KeyboardLayout keyboardLayout;
    DesktopHotKeys hotKeys;
    XWaylandPanels panels;
    X11WindowActivation windowActivation;
    X11DropSupport dropSupport;
    X11Clipboard clipboard;
    X11ClipboardAnswers clipboardAnswers;
    X11DragSupport dragSupport;
    X11TrayWatch trayWatch;

private:
    KeyNaming keyNaming() const;
    void tellAbilities();
};

} // namespace corvane
