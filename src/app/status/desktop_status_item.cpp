#include "app/status/desktop_status_item.h"

#include "app/status/status_icon.h"
#include "platform/base/main_queue.h"
#include "platform/desktop/tray_watch.h"

#include <QGuiApplication>
#include <QPalette>

namespace corvane {

DesktopStatusItem::DesktopStatusItem(MainQueue &mainQueue, TrayWatch *tray,
                                     KeyboardLoan *menuKeyboard)
    : m_mainQueue(mainQueue)
    , m_item(menuKeyboard)
    , m_tray(tray)
    , m_hosts(std::make_unique<NotifierHosts>())
{
    // Later, so that the start of the shelf does not wait for the icon.
    mainQueue.async(m_lifetime.guard([this] { search(); }));
}

DesktopStatusItem::~DesktopStatusItem()
{
    if (m_tray)
        m_tray->stop();
}

void DesktopStatusItem::search()
{
    m_hosts->start([this] { found(0); });
    // In seconds: a panel that has both announces one after the other. Qt decides by what is there
    // when the icon is made, so the bus gets some time.
    constexpr double settleDelay = 1;
    if (m_tray)
        m_tray->start([this] { found(settleDelay); });
}

void DesktopStatusItem::found(double delay)
{
    // Never at once: this destroys `m_hosts`, which may be the caller.
    m_mainQueue.asyncAfter(delay, m_lifetime.guard([this] {
        if (!m_hosts)
            return;
        m_hosts.reset();
        if (m_tray)
            m_tray->stop();
        updateForeground();
        // The event that replaces this signal could be seen only by an event filter for all events.
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        QObject::connect(qGuiApp, &QGuiApplication::paletteChanged, qGuiApp,
                         m_lifetime.guard([this] { updateForeground(); }));
        QT_WARNING_POP
        m_item.appear();
    }));
}

void DesktopStatusItem::updateForeground()
{
    m_item.setForeground(
        status_icon::likelyForeground(qEnvironmentVariable("XDG_CURRENT_DESKTOP"),
                                      QGuiApplication::palette().color(QPalette::WindowText)));
}

} // namespace corvane
