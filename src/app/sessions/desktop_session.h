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
class KeyboardLayout;
class MainQueue;
class OutsideClicks;
class ScreenLocator;
class Screens;
class TrayWatch;
class WindowActivation;

/// What the program asks of the session that it runs in; how each is answered is the session's
/// affair. The references are valid as long as the session is.
struct DesktopSession {
    const ScreenLocator &screenLocator;
    DragWatch &dragWatch;
    EdgeTrigger &edgeTrigger;
    OutsideClicks &outsideClicks;
    HotKeyService &hotKeys;
    const KeyboardLayout &keyboardLayout;
    PanelDesktop panels;
    /// What drops and drags of the panels need beyond what Qt does; null where that is nothing.
    DropSupport *dropSupport = nullptr;
    DragSupport *dragSupport = nullptr;
    WindowActivation &windowActivation;
    /// Null where such sessions have no tray of their own.
    TrayWatch *trayWatch = nullptr;
};

/// What a session needs of the program. Everything must outlive it.
struct SessionNeeds {
    MainQueue &mainQueue;
    const Screens &screens;
    /// Called when the session has gone away.
    std::function<void()> terminate;
};

/// A session that the program runs in. It owns, by value and in the order of dependence, all that
/// it hands out.
class RunningSession {
public:
    RunningSession() = default;
    RunningSession(const RunningSession &) = delete;
    RunningSession &operator=(const RunningSession &) = delete;
    virtual ~RunningSession() = default;

    virtual DesktopSession desktop() = 0;
};

/// Once the application object exists, which has to use the chosen session's plug-in.
std::unique_ptr<RunningSession> startSession(SessionKind kind, const SessionNeeds &needs);

} // namespace corvane
