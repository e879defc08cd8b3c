#include "platform/qt/qt_tray_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane {

namespace {

/// Draws the icon in whatever size the tray has, so that it is never scaled.
class DrawnIcon : public QIconEngine {
public:
    DrawnIcon(StatusItem::Icon icon, const QColor &foreground)
        : m_icon(std::move(icon))
        , m_foreground(foreground)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        const double scale = painter->device()->devicePixelRatio();
        const int side = std::min(rect.width(), rect.height());
        QImage image = m_icon(static_cast<int>(std::round(side * scale)), m_foreground);
        image.setDevicePixelRatio(scale);
        painter->drawImage(rect.x() + (rect.width() - side) / 2,
                           rect.y() + (rect.height() - side) / 2, image);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode, QIcon::State) override
    {
        const int side = std::min(size.width(), size.height());
        return QPixmap::fromImage(m_icon(side, m_foreground));
    }
    QIconEngine *clone() const override { return new DrawnIcon(m_icon, m_foreground); }

private:
    StatusItem::Icon m_icon;
    QColor m_foreground;
};

} // namespace

QtTrayIcon::QtTrayIcon()
{
    QObject::connect(&m_tray, &QSystemTrayIcon::activated, &m_tray,
                     [this](QSystemTrayIcon::ActivationReason reason) {
                         const bool isClick = reason == QSystemTrayIcon::Trigger
                             || reason == QSystemTrayIcon::Context;
                         if (isClick && m_menu)
                             m_popup.open(m_menu(), m_tray.geometry());
                     });
}

void QtTrayIcon::setForeground(const QColor &foreground)
{
    m_foreground = foreground;
    show();
}

void QtTrayIcon::setIcon(Icon icon)
{
    m_icon = std::move(icon);
    show();
}

void QtTrayIcon::show()
{
    if (!m_icon)
        return;
    // An icon owns its engine.
    m_tray.setIcon(QIcon(new DrawnIcon(m_icon, m_foreground)));
    if (!m_tray.isVisible())
        m_tray.show();
}

void QtTrayIcon::setToolTip(const QString &toolTip)
{
    m_tray.setToolTip(toolTip);
}

void QtTrayIcon::setMenu(Menu menu)
{
    m_menu = std::move(menu);
}

} // namespace corvane
