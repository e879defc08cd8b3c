#include "app/sessions/layer_session.h"

#include "app/base/app_info.h"
#include "input/hot_key_center.h"
#include "platform/system/own_command.h"
#include "platform/system/own_environment.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <algorithm>

namespace corvane {

namespace {

/// What the hot keys do, as the desktop lists it and as commands.
std::vector<DesktopAction> desktopActions()
{
    using enum HotKeyCenter::Binding;
    const auto title = [](const char *text) {
        return QCoreApplication::translate("corvane::GeneralPane", text);
    };
    const QString application = AppInfo::builtIn().applicationId();
    // Starting the program once more is for the shelf; the bar is one of its actions.
    return {{.id = HotKeyCenter::idOf(Shelf),
             .name = QStringLiteral("toggle"),
             .title = title("Show or hide the shelf"),
             .command = own_command::inShell()},
            {.id = HotKeyCenter::idOf(ViewAll),
             .name = QStringLiteral("view-all"),
             .title = title("Show or hide all items"),
             .command = QStringLiteral("gapplication action %1 view-all").arg(application)}};
}

} // namespace

ScreenPointer LastSeenScreen::activeScreen() const
{
    const auto attached = m_screens.screens();
    const auto found = std::ranges::find(attached, m_last.lock());
    return found == attached.end() ? m_screens.mainScreen() : *found;
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
    , kdeShortcuts({.name = AppInfo::builtIn().applicationId(),
                    .title = QCoreApplication::applicationName()},
                   desktopActions(), keyNaming())
    , portalShortcuts(desktopActions(), keyNaming(), needs.mainQueue)
    , actionShortcuts(desktopActions(),
                      key_notation::settingsOf(qEnvironmentVariable("XDG_CURRENT_DESKTOP")),
                      keyNaming())
    , hotKeys({&kdeShortcuts, &portalShortcuts, &actionShortcuts})
    , panels(connection, needs.mainQueue)
    , windowActivation(panels.surface)
    , dragCarrier(connection, needs.mainQueue)
    , dropSupport(needs.mainQueue, panels.surface)
    , xwaylandDrags(needs.mainQueue)
{
    wireDrags();
    wireStrips();
    hotKeys.onChosen = [this] { tellAbilities(); };
    tellAbilities();
    needs.screens.observeChanges(lifetime.guard([this] { edgeStrips.renew(); }));
}

KeyNaming LayerSession::keyNaming() const
{
    return
        [this](KeyPosition key, bool isShifted) { return keyboardLayout.nameOf(key, isShifted); };
}

void LayerSession::wireDrags()
{
    xwaylandDrags.onBegan = [this] { dragIsNoticed(); };
    xwaylandDrags.onLost = [this] {
        updateStrips();
        tellAbilities();
    };
    panels.surface.onDropped = [this] { dragWatch.droppedOnPanel(); };
    panels.surface.onPointer = [this] { dragWatch.pointerIsFree(); };
    dropSupport.onDropped = [this] { dragWatch.droppedOnPanel(); };
    dropSupport.onPointer = [this] { dragWatch.pointerIsFree(); };
    dropSupport.isOwnDrag = [this] { return dragCarrier.isCarrying(); };
}

void LayerSession::dragIsNoticed()
{
    dragWatch.noticed();
    if (!dragCarrier.isCarrying())
        dropSupport.expect();
}

void LayerSession::wireStrips()
{
    edgeStrips.onDragEntered = [this](const ScreenPointer &screen, bool isOwn) {
        if (isOwn || dragCarrier.isCarrying())
            return;
        screenLocator.cameTo(screen);
        dragIsNoticed();
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
    Abilities now{.clicksElsewhere = {ClicksElsewhere::Unnoticed, Reason::KeptByDesktop}};
    const OptionalHotKeys *const service = hotKeys.chosen();
    if (!service || service->choice() != ShortcutChoice::Here)
        now.shortcutChoice = {ShortcutChoice::InTheDesktop, Reason::KeptByDesktop};
    if (!xwaylandDrags.isWatching())
        now.drags = {Drags::AtTheEdge, Reason::KeptByDesktop};
    abilities.become(now);
}

DesktopSession LayerSession::desktop()
{
    PanelDesktop panelDesktop = panels.desktop();
    if (dragCarrier.isAble())
        panelDesktop.dragCarrier = &dragCarrier;
    return {.abilities = abilities,
            .screenLocator = screenLocator,
            .dragWatch = dragWatch,
            .edgeTrigger = edgeStrips,
            .outsideClicks = outsideClicks,
            .hotKeys = hotKeys,
            .keyboardLayout = keyboardLayout,
            .panels = panelDesktop,
            .dropSupport = dropSupport.isAble() ? &dropSupport : nullptr,
            .windowActivation = windowActivation};
}

} // namespace corvane
