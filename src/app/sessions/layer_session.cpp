#include "app/sessions/layer_session.h"

#include "app/base/app_info.h"
#include "input/hot_key_center.h"
#include "platform/system/own_environment.h"

#include <QLoggingCategory>

#include <algorithm>

namespace corvane {

ScreenPointer LastSeenScreen::activeScreen() const
{
    const auto attached = m_screens.screens();
    const auto found = std::ranges::find(attached, m_last.lock());
    return found == attached.end() ? m_screens.mainScreen() : *found;
}

HotKeyService::Registration KeysBoundToCommands::registerHotKey(KeyPosition /*keyCode*/,
                                                                std::uint32_t /*modifiers*/,
                                                                const HotKeyIdentifier &identifier,
                                                                OutcomeObserver /*onOutcome*/)
{
    const bool isForShelf = identifier.id == HotKeyCenter::idOf(HotKeyCenter::Binding::Shelf);
    // Starting the program once more is for the shelf; the bar is one of its actions.
    const QString command = isForShelf
        ? QStringLiteral("corvane")
        : QStringLiteral("gapplication action %1 view-all").arg(AppInfo::builtIn().applicationId());
    return {ShortcutOutcome::setInDesktop(command), {}};
}

void LayerSession::prepare()
{
    // Without it Qt makes each window one of the desktop's ordinary ones, which can be nothing else
    // any more.
    own_environment::set("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1");
    // Nothing here is painted by a graphics card, and what Qt would load for one takes more memory
    // than all the rest. It warns of a name that stands for nothing.
    own_environment::set("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION", "none");
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.wayland.warning=false"));
}

LayerSession::LayerSession(const SessionNeeds &needs)
    : screenLocator(needs.screens)
    , dragWatch(needs.mainQueue)
    , edgeStrips(connection, needs.screens)
    , keyboardLayout(connection)
    , panels(connection, needs.mainQueue)
    , windowActivation(panels.surface)
    , xwaylandDrags(needs.mainQueue)
{
    wireDrags();
    wireStrips();
    tellAbilities();
    needs.screens.observeChanges(lifetime.guard([this] { edgeStrips.renew(); }));
}

void LayerSession::wireDrags()
{
    xwaylandDrags.onBegan = [this] { dragWatch.noticed(); };
    xwaylandDrags.onLost = [this] {
        updateStrips();
        tellAbilities();
    };
    panels.surface.onDropped = [this] { dragWatch.droppedOnPanel(); };
    panels.surface.onPointer = [this] { dragWatch.pointerIsFree(); };
}

void LayerSession::wireStrips()
{
    edgeStrips.onDragEntered = [this](const ScreenPointer &screen, bool isOwn) {
        if (isOwn)
            return;
        screenLocator.cameTo(screen);
        dragWatch.noticed();
    };
    edgeStrips.onPointer = [this](const ScreenPointer &screen) {
        screenLocator.cameTo(screen);
        dragWatch.pointerIsFree();
    };
    dragWatch.onUncertain = [this](bool mayGoOn) {
        mayDragGoOn = mayGoOn;
        updateStrips();
    };
    updateStrips();
}

/// A strip takes the clicks on it: where drags are told of anyway, there is one only for a drag
/// that nobody knows the end of.
void LayerSession::updateStrips()
{
    edgeStrips.watchDrags(mayDragGoOn || !xwaylandDrags.isWatching());
}

void LayerSession::tellAbilities()
{
    Abilities now{.clicksElsewhere = {ClicksElsewhere::Unnoticed, Reason::KeptByDesktop},
                  .shortcutChoice = {ShortcutChoice::InTheDesktop, Reason::KeptByDesktop}};
    if (!xwaylandDrags.isWatching())
        now.drags = {Drags::AtTheEdge, Reason::KeptByDesktop};
    abilities.become(now);
}

DesktopSession LayerSession::desktop()
{
    return {.abilities = abilities,
            .screenLocator = screenLocator,
            .dragWatch = dragWatch,
            .edgeTrigger = edgeStrips,
            .outsideClicks = outsideClicks,
            .hotKeys = hotKeys,
            .keyboardLayout = keyboardLayout,
            .panels = panels.desktop(),
            .windowActivation = windowActivation};
}

} // namespace corvane
