#pragma once

#include "platform/desktop/status_item.h"

#include <QIcon>

#include <map>
#include <memory>

class QMenu;
class QSystemTrayIcon;

namespace corvane {

class KeyboardLoan;

/// A status item by `QSystemTrayIcon`: on the session bus if a panel shows such items, else in the
/// window system's own tray. A left click opens the menu, too.
///
/// Qt decides between the two once in a process, when the first icon is made. So nothing is made
/// before `appear`. After that the icon keeps its kind: panels of that kind may come and go, but it
/// does not move to a panel of the other kind.
class QtTrayIcon : public StatusItem {
public:
    /// With a loan, which must outlive it, the menu has the keyboard by that; null where what the
    /// toolkit does for menus is enough.
    explicit QtTrayIcon(KeyboardLoan *keyboard = nullptr);
    ~QtTrayIcon() override;
    QtTrayIcon(const QtTrayIcon &) = delete;
    QtTrayIcon &operator=(const QtTrayIcon &) = delete;

    /// Makes the icon. To be called once a panel is there to show it; further calls do nothing.
    void appear();
    void setForeground(const QColor &foreground);

    void setIcon(int shape, Icon icon) override;
    void setToolTip(const QString &toolTip) override;
    void setMenu(Menu menu) override;
    void menuChanged() override;

private:
    void showIcon();
    QIcon drawn() const;

    KeyboardLoan *m_keyboard;
    int m_shape = 0;
    Icon m_icon;
    /// Icons by shape, in the present foreground. Each consists of six pictures, and panels are
    /// notified of each icon that is set.
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
