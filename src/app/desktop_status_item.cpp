#include "app/desktop_status_item.h"

#include "app/status_icon.h"
#include "platform/main_queue.h"

#include <QCursor>
#include <QGuiApplication>
#include <QPalette>

#include <utility>

namespace corvane {

namespace {

QColor foreground()
{
    return status_icon::likelyForeground(qEnvironmentVariable("XDG_CURRENT_DESKTOP"),
                                         QGuiApplication::palette().color(QPalette::WindowText));
}

} // namespace

DesktopStatusItem::DesktopStatusItem(MainQueue &mainQueue)
    : m_notifier(QStringLiteral("Corvane"))
{
    m_notifier.setMenuOpener([this] {
        if (m_menu)
            m_popup.open(m_menu(), {QCursor::pos(), QSize(1, 1)});
    });
    // The shelf does not wait for its icon.
    mainQueue.async([this, alive = std::weak_ptr<bool>(m_alive)] {
        if (alive.expired())
            return;
        updateForeground();
        // The event that is to be handled instead is seen only by filtering every event there is.
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        QObject::connect(qGuiApp, &QGuiApplication::paletteChanged, &m_notifier,
                         [this] { updateForeground(); });
        QT_WARNING_POP
        m_notifier.start([this](bool isAvailable) { setOnBus(isAvailable); });
    });
}

void DesktopStatusItem::setOnBus(bool isOnBus)
{
    if (isOnBus) {
        m_tray.reset();
    } else if (!m_tray) {
        m_tray = std::make_unique<QtTrayIcon>();
        m_tray->setForeground(foreground());
        m_tray->setToolTip(m_toolTip);
        m_tray->setMenu(m_menu);
        m_tray->setIcon(m_icon);
    }
}

void DesktopStatusItem::updateForeground()
{
    m_notifier.setForeground(foreground());
    if (m_tray)
        m_tray->setForeground(foreground());
}

void DesktopStatusItem::setIcon(Icon icon)
{
    m_icon = std::move(icon);
    m_notifier.setIcon(m_icon);
    if (m_tray)
        m_tray->setIcon(m_icon);
}

void DesktopStatusItem::setToolTip(const QString &toolTip)
{
    m_toolTip = toolTip;
    m_notifier.setToolTip(toolTip);
    if (m_tray)
        m_tray->setToolTip(toolTip);
}

void DesktopStatusItem::setMenu(Menu menu)
{
    m_menu = std::move(menu);
    m_notifier.setMenu(m_menu);
    if (m_tray)
        m_tray->setMenu(m_menu);
}

void DesktopStatusItem::menuChanged()
{
    m_notifier.menuChanged();
}

} // namespace corvane
