#include "app/app_delegate.h"

#include "core/scratch_spool.h"
#include "core/settings.h"
#include "core/shelf_store.h"
#include "input/drag_monitor.h"

#include <utility>

namespace corvane {

AppDelegate::AppDelegate(const Context &context)
    : m_context(context)
{
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching()
{
    m_context.settings.registerDefaults();
    m_hud = std::make_unique<HUDController>(m_context.hud);
    wireDragDetection();
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
        // An open shelf is told by its items that it may take a drop now.
        if (store.state() == ShelfState::Idle)
            store.setState(ShelfState::Expanded);
        else
            store.publishItems();
    };
    monitor.onDragEnded = [this, alive] {
        if (!alive.expired())
            m_context.store.dragEnded();
    };
    monitor.start();
}

void AppDelegate::applicationWillTerminate()
{
    if (std::exchange(m_isTerminated, true))
        return;
    m_context.dragMonitor.stop();
    m_context.spool.discardAll();
}

bool AppDelegate::applicationShouldHandleReopen(bool /*hasVisibleWindows*/)
{
    m_context.store.toggleManually();
    return false;
}

} // namespace corvane
