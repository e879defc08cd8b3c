#include "app/status/status_item_controller.h"

#include "app/status/status_icon.h"
#include "app/updates/update_notices.h"
#include "app/updates/update_texts.h"
#include "app/updates/updater.h"
#include "core/settings.h"
#include "core/shelf_store.h"
#include "platform/base/main_queue.h"
#include "platform/desktop/status_item.h"

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

void call(const std::function<void()> &action)
{
    if (action)
        action();
}

} // namespace

StatusItemController::StatusItemController(Context context)
    : m_context(std::move(context))
    , m_count(static_cast<int>(m_context.store.items().size()))
{
    updateIcon(m_count);
    m_context.statusItem.setMenu(m_lifetime.guard([this] { return rebuild(); }));
    m_context.store.observeItems(
        m_lifetime.guard([this](const QList<DropItem> &) { itemsChanged(); }));
    if (m_context.updater)
        m_notices
            = m_context.updater->notices().observe([this] { m_context.statusItem.menuChanged(); });
}

QString StatusItemController::updateNotice() const
{
    if (!m_context.updater || !m_context.updater->notices().now())
        return {};
    return UpdateTexts::menuTitle(*m_context.updater->notices().now());
}

void StatusItemController::itemsChanged()
{
    // Most publications do not change the number, and panels redraw at every message.
    const bool isNew = m_context.store.items().size() != m_count;
    if (!isNew || std::exchange(m_isUpdateScheduled, true))
        return;
    m_context.queue.async(m_lifetime.guard([this] { update(); }));
}

void StatusItemController::update()
{
    m_isUpdateScheduled = false;
    const int count = static_cast<int>(m_context.store.items().size());
    if (std::exchange(m_count, count) == count)
        return;
    updateIcon(count);
    m_context.statusItem.menuChanged();
}

void StatusItemController::updateIcon(int count)
{
    const int cards = std::min(count, status_icon::mostCards);
    m_context.statusItem.setIcon(cards, [cards](int side, const QColor &foreground) {
        return status_icon::image(cards, side, foreground);
    });
    m_context.statusItem.setToolTip(status_menu::toolTip(count));
}

MenuRows StatusItemController::rebuild() const
{
    MenuRows rows = status_menu::rows(
        {static_cast<int>(m_context.store.items().size()), m_context.settings.shortcut(),
         m_context.settings.viewAllShortcut(), m_context.updater != nullptr, updateNotice()});
    for (MenuRow &row : rows) {
        if (row.isSeparator())
            continue;
        row.action
            = m_lifetime.guard([this, id = row.id] { perform(static_cast<StatusMenuRow>(id)); });
    }
    return rows;
}

void StatusItemController::perform(StatusMenuRow row) const
{
    switch (row) {
    case StatusMenuRow::ShowShelf:
        return call(onShowShelf);
    case StatusMenuRow::ViewAllItems:
        return m_context.store.toggleViewAll();
    case StatusMenuRow::ClearShelf:
        return m_context.store.clearAll();
    case StatusMenuRow::Preferences:
        return call(onPreferences);
    case StatusMenuRow::HowItWorks:
        return call(onWelcome);
    case StatusMenuRow::UpdateNotice:
        if (m_context.updater)
            m_context.updater->showNotice();
        return;
    case StatusMenuRow::CheckForUpdates:
        if (m_context.updater)
            m_context.updater->checkForUpdates();
        return;
    case StatusMenuRow::Quit:
        return call(m_context.terminate);
    case StatusMenuRow::FirstSeparator:
    case StatusMenuRow::SecondSeparator:
        return;
    }
}

} // namespace corvane
