#include "app/sessions/layer_session.h"

#include "platform/system/own_environment.h"
#include "platform/wayland/base/lost_connection_line.h"

#include <QLoggingCategory>

namespace corvane {

void LayerSession::prepare()
{
    // Without it Qt makes each window one of the desktop's ordinary ones, which can be nothing else
    // any more.
    own_environment::set("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1");
    // Nothing here is painted by a graphics card, and what Qt would load for one takes more memory
    // than all the rest. It warns of a name that stands for nothing.
    own_environment::set("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION", "none");
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.wayland.warning=false"));
    hearLostConnectionOnce();
}

LayerSession::LayerSession(const SessionNeeds &needs)
    : strips(connection)
    , quiet(needs.mainQueue, needs.screens, strips)
    , whereabouts(connection, needs.mainQueue, needs.screens)
    , userWhereabouts(connection, needs.mainQueue, needs.screens)
    , keyboardLayout(connection)
    , hotKeys(keyNaming(), needs.mainQueue)
    , panels(connection, needs.mainQueue)
    , windowActivation(panels.surface)
    , dragCarrier(connection, needs.mainQueue)
    , dropSupport(connection, needs.mainQueue, panels.surface)
    , clipboard(connection, needs.mainQueue)
    , xwaylandDrags(needs.mainQueue)
{
    wireDrags();
    quiet.screenLocator.ask = [this] { userWhereabouts.find(); };
    userWhereabouts.onFound
        = [this](const ScreenPointer &screen) { quiet.screenLocator.told(screen); };
    hotKeys.service.onChosen = [this] { tellAbilities(); };
    tellAbilities();
}

KeyNaming LayerSession::keyNaming() const
{
    return
        [this](KeyPosition key, bool isShifted) { return keyboardLayout.nameOf(key, isShifted); };
}

void LayerSession::wireDrags()
{
    quiet.setToldOfDrags(xwaylandDrags.isWatching());
    quiet.isOwnDrag = [this] { return dragCarrier.isCarrying(); };
    quiet.onNoticed = [this] {
        if (!dragCarrier.isCarrying())
            dropSupport.expect();
    };
    xwaylandDrags.onBegan = [this] { whereabouts.find(); };
    whereabouts.onFound = [this](const ScreenPointer &screen) {
        if (screen)
            quiet.screenLocator.cameTo(screen);
        quiet.noticed();
    };
    xwaylandDrags.onLost = [this] {
        quiet.setToldOfDrags(false);
        tellAbilities();
    };
    panels.surface.onDropped = [this] { quiet.dragWatch.droppedOnPanel(); };
    panels.surface.onPointer = [this] { quiet.dragWatch.pointerIsFree(); };
    dropSupport.onDropped = [this] { quiet.dragWatch.droppedOnPanel(); };
    dropSupport.onPointer = [this] { quiet.dragWatch.pointerIsFree(); };
    dropSupport.isOwnDrag = [this] { return dragCarrier.isCarrying(); };
    // It may have been given the keyboard there.
    dropSupport.onLeft = [this] { panels.returnKeyboard(); };
    quiet.edgeStrips.onDragLeft = [this] { panels.returnKeyboard(); };
}

Abilities LayerSession::abilitiesWhere(bool isToldOfDrags, bool areHotKeysChosenHere)
{
    Abilities now = QuietDesktop::abilities(isToldOfDrags, areHotKeysChosenHere);
    now.keepingKey = {KeepingKey::BeforeTheDrag, Reason::KeptByDesktop};
    return now;
}

void LayerSession::tellAbilities()
{
    abilities.become(abilitiesWhere(quiet.isToldOfDrags(), hotKeys.areChosenHere()));
}

DesktopSession LayerSession::desktop()
{
    PanelDesktop panelDesktop = panels.desktop();
    if (dragCarrier.isAble())
        panelDesktop.dragCarrier = &dragCarrier;
    if (clipboard.isAble())
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
            .dropSupport = dropSupport.isAble() ? &dropSupport : nullptr,
            .windowActivation = windowActivation};
}

} // namespace corvane
