#pragma once

#include "platform/freedesktop/notifier_item.h"
#include "platform/qt/menu_popup.h"
#include "platform/qt/qt_tray_icon.h"
#include "platform/status_item.h"

#include <memory>

namespace corvane {

class MainQueue;

/// The status item wherever the desktop has a place for it: on the session bus while somebody
/// gathers items there, in the X11 tray otherwise. Either may come and go; without both there is no
/// icon, and nothing else is missing.
class DesktopStatusItem : public StatusItem {
public:
    /// Begins at the next turn of the queue, which must outlive it.
    explicit DesktopStatusItem(MainQueue &mainQueue);

    void setIcon(Icon icon) override;
    void setToolTip(const QString &toolTip) override;
    void setMenu(Menu menu) override;
    void menuChanged() override;

private:
    void setOnBus(bool isOnBus);
    /// Has it drawn in the colour of the present palette.
    void updateForeground();

    Icon m_icon;
    QString m_toolTip;
    Menu m_menu;
    MenuPopup m_popup;
    NotifierItem m_notifier;
    /// Only while it is needed: it watches the tray by itself.
    std::unique_ptr<QtTrayIcon> m_tray;
    std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
};

} // namespace corvane
