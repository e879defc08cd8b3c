#include "app/sessions/x11_session.h"

namespace corvane {

X11Session::X11Session(const SessionNeeds &needs)
    : connection(needs.terminate)
    , abilities(abilitiesOf(connection))
    , pingAnswers(connection)
    , pointer(connection, needs.screens)
    , screenLocator(needs.screens, pointer)
    , dragDesktop(connection)
    , dragMonitor(dragDesktop, dragDesktop, dragDesktop, needs.mainQueue)
    , outsideClicks(dragDesktop, pointer)
    , hotKeys(connection, needs.mainQueue)
    , panels(connection, needs.mainQueue)
    , windowActivation(connection)
    , pointerBarriers(connection, needs.screens)
    , fullScreenWindows(connection)
    , edgeTrigger({.barriers = pointerBarriers,
                   .fullScreenWindows = fullScreenWindows,
                   .buttons = dragDesktop,
                   .pointer = pointer})
    , dropSupport(connection, needs.mainQueue)
    , clipboard(connection, needs.mainQueue)
    , clipboardAnswers(connection, needs.mainQueue)
    , dragSupport(connection, needs.mainQueue)
    , trayWatch(connection)
{
}

DesktopSession X11Session::desktop()
{
    PanelDesktop panelDesktop = panels.desktop();
    panelDesktop.clipboard = &clipboard;
    return {.abilities = abilities,
            .screenLocator = screenLocator,
            .dragWatch = dragMonitor,
            .edgeTrigger = edgeTrigger,
            .outsideClicks = outsideClicks,
            .hotKeys = hotKeys,
            .keyboard = keyboard,
            .keyboardLayout = keyboardLayout,
            .panels = panelDesktop,
            .dropSupport = &dropSupport,
            .dragSupport = &dragSupport,
            .windowActivation = windowActivation,
            .trayWatch = &trayWatch,
            // The toolkit takes it for a density of the X server's screens.
            .textScaleIsInScreens = true};
}

} // namespace corvane
