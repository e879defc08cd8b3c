#pragma once

#include "app/sessions/choose_session.h"
#include "platform/desktop/panel_desktop.h"

#include <functional>
#include <memory>

namespace corvane {

class DragSupport;
class DragWatch;
class DropSupport;
class EdgeTrigger;
class HotKeyService;
class Keyboard;
class KeyboardLayout;
class MainQueue;
class OutsideClicks;
class ScreenLocator;
class Screens;
class SessionAbilities;
class TrayWatch;
class WindowActivation;

/// What the program needs from the session that it runs in; each kind of session implements it in
/// its own way. The references are valid as long as the `RunningSession` exists.
struct DesktopSession {
    SessionAbilities &abilities;
    ScreenLocator &screenLocator;
    DragWatch &dragWatch;
    EdgeTrigger &edgeTrigger;
    OutsideClicks &outsideClicks;
    HotKeyService &hotKeys;
    const Keyboard &keyboard;
    const KeyboardLayout &keyboardLayout;
    PanelDesktop panels;
    /// What drops and drags of the panels need beyond what Qt does; null if they need nothing more.
    DropSupport *dropSupport = nullptr;
    DragSupport *dragSupport = nullptr;
    WindowActivation &windowActivation;
    /// Null for sessions without a tray of their own.
    TrayWatch *trayWatch = nullptr;
    /// By which the icon's menu has the keyboard; null where what the toolkit does is enough.
    KeyboardLoan *menuKeyboard = nullptr;
    /// The screens' scale grows with the desktop's text scale.
    bool textScaleIsInScreens = false;
};

/// What a session needs from the program. Everything must outlive it.
struct SessionNeeds {
    MainQueue &mainQueue;
    Screens &screens;
    /// Called when the session has ended.
    std::function<void()> terminate;
};

/// The session that the program runs in. It owns, by value and in the order of dependence,
/// everything that `desktop` refers to.
class RunningSession {
public:
    RunningSession() = default;
    RunningSession(const RunningSession &) = delete;
    RunningSession &operator=(const RunningSession &) = delete;
    virtual ~RunningSession() = default;

    virtual DesktopSession desktop() = 0;
};

/// Prepares the process for the session. There must be no application object yet.
void prepareSession(SessionKind kind);

/// Makes the session. The application object must exist, with the platform plug-in of the chosen
/// kind.
std::unique_ptr<RunningSession> startSession(SessionKind kind, const SessionNeeds &needs);

} // namespace corvane
