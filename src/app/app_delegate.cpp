#include "app/app_delegate.h"

#include "app/shell_windows.h"
#include "app/updates/updater.h"
#include "core/scratch_spool.h"
#include "core/settings.h"
#include "core/shelf_store.h"
#include "input/drag_monitor.h"
#include "input/hot_key_center.h"
#include "input/shortcut_binder.h"
#include "services/quick_look_presenter.h"

#include <QtDebug>

#include <utility>

namespace corvane {

AppDelegate::AppDelegate(Context context)
    : m_context(std::move(context))
{
}

AppDelegate::~AppDelegate()
{
    m_context.previewPanel.setController(nullptr);
}

void AppDelegate::applicationDidFinishLaunching()
{
    m_context.settings.registerDefaults();
    if (m_context.updater)
        m_context.updater->start();
    if (!m_context.settings.areKept())
        qWarning("[Corvane] The settings folder cannot be written to; changes are not kept.");
    m_hud = std::make_unique<HUDController>(m_context.hud);
    m_context.previewPanel.setController(this);
    m_statusItem = std::make_unique<StatusItemController>(StatusItemController::Context{
        m_context.statusItem, m_context.store, m_context.settings, m_context.hud.view.queue,
        m_context.terminate, m_context.updater});
    wireAwaitedDrops();
    wireDragDetection();
    wireHotKey();
    wireMenu();
    wireEdge();
    m_context.windows.showWelcomeOnFirstLaunch();
}

void AppDelegate::wireDragDetection()
{
    DragMonitor &monitor = m_context.dragMonitor;
    const std::weak_ptr<bool> alive = m_alive;
    monitor.onDragBegan = [this, alive] {
        if (alive.expired() || !m_context.settings.autoShowOnDrag())
            return;
        ShelfStore &store = m_context.store;
        store.setDragInFlight(true);
        m_isDragEndOwed = false;
        // An open shelf is told by its items that it may take a drop now.
        if (store.state() == ShelfState::Idle)
            store.setState(ShelfState::Expanded);
        else
            store.publishItems();
    };
    monitor.onDragEnded = [this, alive] {
        if (alive.expired())
            return;
        // An empty shelf would close under what was dropped on it and is still on its way.
        m_isDragEndOwed = m_isAwaitingDrop && m_context.store.items().isEmpty();
        if (!m_isDragEndOwed)
            m_context.store.dragEnded();
    };
    monitor.start();
}

void AppDelegate::wireAwaitedDrops()
{
    m_hud->onAwaitsDrop = [this](bool isAwaiting) {
        m_isAwaitingDrop = isAwaiting;
        // With the first item there is nothing left that would close.
        const bool isOver = !isAwaiting || !m_context.store.items().isEmpty();
        if (isOver && std::exchange(m_isDragEndOwed, false))
            m_context.store.dragEnded();
    };
}

void AppDelegate::wireHotKey()
{
    ShortcutBinder &shortcuts = m_context.shortcuts;
    const std::weak_ptr<bool> alive = m_alive;
    shortcuts.onToggleShelf = [this, alive] {
        if (!alive.expired())
            m_hud->toggleByHand();
    };
    shortcuts.onToggleViewAll = [this, alive] {
        if (!alive.expired())
            m_context.store.toggleViewAll();
    };
    const bool isShelfBound = shortcuts.bindShelf();
    const bool isViewAllBound = shortcuts.bindViewAll();
    if (!isShelfBound || !isViewAllBound)
        qWarning("[Corvane] A shortcut is already claimed by another app; the menu bar item still "
                 "works.");
}

void AppDelegate::wireMenu()
{
    // The menu's rows are only there as long as the status item, which ends with this.
    m_statusItem->onShowShelf = [this] { m_hud->toggleByHand(); };
    m_statusItem->onPreferences = [this] { showPreferences(PreferencesTab::General); };
    m_statusItem->onWelcome = [this] { showWelcome(); };
}

void AppDelegate::wireEdge()
{
    // It goes before the shelf, which it asks and hears.
    m_edge = std::make_unique<EdgeSummoner>(EdgeSummoner::Context{
        m_context.edge, m_context.hud.screens, m_context.store, m_context.hud.view.queue,
        [this](const ScreenPointer &screen) { return m_hud->openWidth(screen); },
        [this](double seconds) { m_hud->letClicksThrough(seconds); }});
    m_hud->onPointerInside = [this](bool isInside) {
        if (m_edge)
            m_edge->pointerIsInside(isInside);
    };
    m_hud->onUsed = [this] {
        if (m_edge)
            m_edge->shelfIsUsed();
    };
}

void AppDelegate::applicationWillTerminate()
{
    if (std::exchange(m_isTerminated, true))
        return;
    m_edge.reset();
    m_context.dragMonitor.stop();
    m_context.hotKeys.unregisterAll();
    m_context.previewPanel.orderOut();
    m_context.presenter.discardScratch();
    m_context.spool.discardAll();
}

bool AppDelegate::applicationShouldHandleReopen(bool /*hasVisibleWindows*/)
{
    m_hud->toggleByHand();
    return false;
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
