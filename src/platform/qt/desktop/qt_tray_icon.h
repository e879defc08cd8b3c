#pragma once

#include "platform/desktop/status_item.h"

#include <QIcon>

#include <map>
#include <memory>

class QMenu;
class QSystemTrayIcon;

namespace corvane {

/// A status item by Qt's own means: on the session bus where a panel shows such items, in the
/// window system's own tray otherwise. A left click opens the menu too.
///
/// Qt decides between the two once in a process, when the icon is first made. So nothing is made
/// before `appear`, and what it was made for it stays: panels of the same kind may come and go, but
/// an icon in the window system's tray does not move to a panel on the bus that comes later, nor
/// the other way.
class QtTrayIcon : public StatusItem {
public:
    QtTrayIcon();
    ~QtTrayIcon() override;
    QtTrayIcon(const QtTrayIcon &) = delete;
    QtTrayIcon &operator=(const QtTrayIcon &) = delete;

    /// Makes the icon. To be called once somebody is there to show it; again does nothing.
    void appear();
    void setForeground(const QColor &foreground);

    void setIcon(int shape, Icon icon) override;
    void setToolTip(const QString &toolTip) override;
    void setMenu(Menu menu) override;
    void menuChanged() override;

private:
    void showIcon();
    QIcon drawn() const;

    int m_shape = 0;
    Icon m_icon;
    /// By their shapes, in the present foreground. One is six pictures, and the panel is told of
    /// each that it is handed.
    std::map<int, QIcon> m_drawn;
    QColor m_foreground = Qt::white;
    QString m_toolTip;
    Menu m_build;
    /// What the menu shows now.
    MenuRows m_rows;
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<QSystemTrayIcon> m_tray;
};

} // namespace corvane
