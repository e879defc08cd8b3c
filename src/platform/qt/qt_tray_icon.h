#pragma once

#include "platform/qt/menu_popup.h"
#include "platform/status_item.h"

#include <QSystemTrayIcon>

namespace corvane {

/// A status item in the tray of an X11 panel, for as long as it exists and whenever there is a
/// tray. A click opens the menu, whichever button it was.
class QtTrayIcon : public StatusItem {
public:
    QtTrayIcon();

    void setForeground(const QColor &foreground);

    void setIcon(Icon icon) override;
    void setToolTip(const QString &toolTip) override;
    void setMenu(Menu menu) override;
    /// Nobody has a copy of this menu.
    void menuChanged() override { }

private:
    void show();

    Icon m_icon;
    QColor m_foreground = Qt::white;
    Menu m_menu;
    MenuPopup m_popup;
    QSystemTrayIcon m_tray;
};

} // namespace corvane
