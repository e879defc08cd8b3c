#include "app/sessions/xwayland_session.h"

namespace corvane {

XWaylandSession::XWaylandSession(const SessionNeeds &needs)
    : connection(needs.terminate)
    , pingAnswers(connection)
    , strips(connection)
    , quiet(needs.mainQueue, needs.screens, strips)
    , userWhereabouts(connection, needs.mainQueue, needs.screens)
    // Whoever drags something is where the drag is.
    , dragSelection(connection, [this] { quiet.screenLocator.locate([this] { quiet.noticed(); }); })
    , hotKeys(keyNaming(), needs.mainQueue)
    , panels(connection, needs.mainQueue)
    , windowActivation(connection)
    , dropSupport(connection, needs.mainQueue)
    , clipboard(connection, needs.mainQueue)
    , clipboardAnswers(connection, needs.mainQueue)
    , dragSupport(connection, needs.mainQueue)
    , trayWatch(connection)
{
    quiet.setToldOfDrags(connection.hasXFixes());
    quiet.screenLocator.ask = [this] { userWhereabouts.find(); };
    userWhereabouts.onFound
        = [this](const ScreenPointer &screen) { quiet.screenLocator.told(screen); };
    panels.surface.onPointer = [this] { quiet.dragWatch.pointerIsFree(); };
    dropSupport.onDropped = [this] { quiet.dragWatch.droppedOnPanel(); };
    hotKeys.service.onChosen = [this] { tellAbilities(); };
    tellAbilities();
}

KeyNaming XWaylandSession::keyNaming() const
{
    return
        [this](KeyPosition key, bool isShifted) { return keyboardLayout.nameOf(key, isShifted); };
}

void XWaylandSession::tellAbilities()
{
    abilities.become(quiet.abilities(hotKeys.areChosenHere()));
}

DesktopSession XWaylandSession::desktop()
{
    PanelDesktop panelDesktop = panels.desktop();
    panelDesktop.clipboard = &clipboard;
    return {.abilities = abilities,
            .screenLocator = quiet.screenLocator,
            .dragWatch = quiet.dragWatch,
            .edgeTrigger = quiet.edgeStrips,
            .outsideClicks = quiet.outsideClicks,
            .hotKeys = hotKeys.service,
            .keyboard = keyboard,
            .keyboardLayout = keyboardLayout,
            .panels = panelDesktop,
            .dropSupport = &dropSupport,
            .dragSupport = &dragSupport,
            .windowActivation = windowActivation,
            .trayWatch = &trayWatch,
            // What is grabbed for a menu on that server is not heard of from Wayland's programs.
            .menuKeyboard = &panels.keyboard,
            // The toolkit takes it for a density of the X server's screens.
            .textScaleIsInScreens = true};
}

} // namespace corvane
