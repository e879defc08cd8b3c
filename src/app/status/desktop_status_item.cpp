#include "app/status/desktop_status_item.h"

#include "app/status/status_icon.h"
#include "platform/base/main_queue.h"
#include "platform/desktop/tray_watch.h"

#include <QGuiApplication>
#include <QPalette>

namespace corvane {

DesktopStatusItem::DesktopStatusItem(MainQueue &mainQueue, TrayWatch *tray)
    : m_mainQueue(mainQueue)
    , m_tray(tray)
    , m_hosts(std::make_unique<NotifierHosts>())
{
    // The shelf does not wait for its icon.
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
    // A panel that has both announces one after the other, and the first icon decides for good.
    constexpr double settleDelay = 1;
    if (m_tray)
        m_tray->start([this] { found(settleDelay); });
}

void DesktopStatusItem::found(double delay)
{
    // Never at once: who found it ends here.
    m_mainQueue.asyncAfter(delay, m_lifetime.guard([this] {
        if (!m_hosts)
            return;
        m_hosts.reset();
        if (m_tray)
            m_tray->stop();
        updateForeground();
        // The event that is to be handled instead is seen only by filtering every event there is.
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
