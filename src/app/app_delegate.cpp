#include "app/app_delegate.h"

#include "app/shell_windows.h"
#include "app/status/status_item_controller.h"
#include "app/updates/updater.h"
#include "core/kept_items.h"
#include "core/scratch_spool.h"
#include "core/settings.h"
#include "core/shelf_store.h"
#include "input/hot_key_center.h"
#include "input/shortcut_binder.h"
#include "platform/base/end_deadline.h"
#include "services/quick_look_presenter.h"
#include "shelf/edge_summoner.h"
#include "shelf/hud_controller.h"

#include <QDeadlineTimer>
#include <QtDebug>

#include <utility>

namespace corvane {

AppDelegate::AppDelegate(const Context &context)
    : m_context(context)
{
}

AppDelegate::~AppDelegate()
{
    m_context.previewPanel.setController(nullptr);
    m_context.dragWatch.onDragBegan = nullptr;
    m_context.dragWatch.onDragEnded = nullptr;
    m_context.shortcuts.onToggleShelf = nullptr;
    m_context.shortcuts.onToggleViewAll = nullptr;
    m_context.statusItem.onShowShelf = nullptr;
    m_context.statusItem.onPreferences = nullptr;
    m_context.statusItem.onWelcome = nullptr;
    m_context.store.onOwnDragChanged = nullptr;
    m_context.hud.onDragOver = nullptr;
    m_context.hud.onAwaitsDrop = nullptr;
    m_context.hud.onPointerInside = nullptr;
    m_context.hud.onUsed = nullptr;
}

void AppDelegate::applicationDidFinishLaunching()
{
    if (m_context.updater)
        m_context.updater->start();
    if (!m_context.settings.areKept())
        qWarning("[Corvane] The settings folder cannot be written to; changes are not kept.");
    m_context.previewPanel.setController(this);
    wireAwaitedDrops();
    wireDragsOverShelf();
    wireDragDetection();
    wireHotKey();
    wireMenu();
    wireEdge();
    // Before anything can be dropped, so that what was kept comes first.
    m_context.keptItems.restore();
    m_context.windows.showWelcomeOnFirstLaunch();
}

void AppDelegate::wireDragDetection()
{
    DragWatch &watch = m_context.dragWatch;
    watch.onDragBegan = [this] { dragBegan(); };
    watch.onDragEnded = [this](DragEnd end) { dragEnded(end); };
    m_context.store.onOwnDragChanged = [&watch](bool isOwn) { watch.ownDrag(isOwn); };
    watch.start();
}

void AppDelegate::dragBegan()
{
    m_context.hud.dragChanged(true);
    m_isDragEndAssumed = false;
    if (!m_context.settings.autoShowOnDrag())
        return;
    m_isDragEndOwed = false;
    m_context.store.dragBegan();
}

void AppDelegate::dragEnded(DragEnd end)
{
    m_context.hud.dragChanged(false);
    m_isDragEndAssumed = end == DragEnd::Assumed;
    // An empty shelf would close although a drop is on its way to it.
    m_isDragEndOwed = m_isAwaitingDrop && m_context.store.items().isEmpty();
    if (!m_isDragEndOwed)
        m_context.store.dragEnded();
}

/// If a drag comes over the closed shelf after its end was only assumed, the shelf opens again.
void AppDelegate::wireDragsOverShelf()
{
    m_context.hud.onDragOver = [this](bool isOver) {
        m_context.dragWatch.overPanel(isOver);
        if (isOver && m_isDragEndAssumed)
            dragBegan();
    };
}

void AppDelegate::wireAwaitedDrops()
{
    m_context.hud.onAwaitsDrop = [this](bool isAwaiting) {
        m_isAwaitingDrop = isAwaiting;
        // With an item on it the shelf does not close any more.
        const bool isOver = !isAwaiting || !m_context.store.items().isEmpty();
        if (isOver && std::exchange(m_isDragEndOwed, false))
            m_context.store.dragEnded();
    };
}

void AppDelegate::wireHotKey()
{
    ShortcutBinder &shortcuts = m_context.shortcuts;
    shortcuts.onToggleShelf = [this] { toggleShelf(); };
    shortcuts.onToggleViewAll = [this] { m_context.store.toggleViewAll(); };
    const bool isShelfBound = shortcuts.bindShelf();
    const bool isViewAllBound = shortcuts.bindViewAll();
    if (!isShelfBound || !isViewAllBound)
        qWarning("[Corvane] A shortcut is already claimed by another app; the menu bar item still "
                 "works.");
}

void AppDelegate::wireMenu()
{
    StatusItemController &menu = m_context.statusItem;
    menu.onShowShelf = [this] { toggleShelf(); };
    menu.onPreferences = [this] { showPreferences(PreferencesTab::General); };
    menu.onWelcome = [this] { showWelcome(); };
}

void AppDelegate::wireEdge()
{
    HUDController &hud = m_context.hud;
    hud.onPointerInside = [this](bool isInside) { m_context.edge.pointerIsInside(isInside); };
    hud.onUsed = [this] { m_context.edge.shelfIsUsed(); };
}

void AppDelegate::applicationWillTerminate()
{
    if (std::exchange(m_isTerminated, true))
        return;
    m_context.edge.stop();
    m_context.dragWatch.stop();
    m_context.hotKeys.unregisterAll();
    m_context.previewPanel.orderOut();
    m_context.presenter.discardScratch();
    keepItems();
    m_context.spool.discardAll();
}

/// Writes to disk, which takes longer than the other steps.
void AppDelegate::keepItems()
{
    if (m_context.settings.keepItems())
        end_deadline::set(end_deadline::forKeeping);
    const QDeadlineTimer deadline(KeptItems::patience);
    m_context.keptItems.keep([&deadline] { return !deadline.hasExpired(); });
    if (m_context.settings.keepItems())
        end_deadline::set(end_deadline::forSteps);
}

bool AppDelegate::applicationShouldHandleReopen(bool /*hasVisibleWindows*/)
{
    toggleShelf();
    return false;
}

bool AppDelegate::perform(const QString &action)
{
    if (action == QLatin1String("toggle"))
        toggleShelf();
    else if (action == QLatin1String("view-all"))
        toggleViewAll();
    else if (action == QLatin1String("show-all"))
        showAll();
    else if (action == QLatin1String("preferences"))
        showPreferences(PreferencesTab::General);
    else
        return false;
    return true;
}

void AppDelegate::toggleShelf()
{
    m_context.hud.toggleByHand();
}

void AppDelegate::showAll()
{
    if (!m_context.store.isViewAllOpen())
        toggleViewAll();
}

void AppDelegate::toggleViewAll()
{
    m_context.store.toggleViewAll();
}

void AppDelegate::showPreferences(PreferencesTab tab)
{
    m_context.windows.showPreferences(tab);
}

void AppDelegate::showWelcome()
{
    m_context.windows.showWelcome();
}

bool AppDelegate::acceptsPreviewPanelControl(PreviewPanel & /*panel*/)
{
    return !m_isTerminated;
}

void AppDelegate::beginPreviewPanelControl(PreviewPanel &panel)
{
    panel.setDataSource(&m_context.presenter);
    panel.reloadData();
}

void AppDelegate::endPreviewPanelControl(PreviewPanel &panel)
{
    panel.setDataSource(nullptr);
    m_context.presenter.discardScratch();
}

} // namespace corvane
