#pragma once

#include "platform/base/lifetime.h"
#include "platform/freedesktop/notifier_hosts.h"
#include "platform/qt/desktop/qt_tray_icon.h"

#include <memory>

namespace corvane {

class KeyboardLoan;
class MainQueue;
class TrayWatch;

/// Makes the status item appear once the desktop has a place for it: a panel on the session bus, or
/// a tray of the session's own kind. If there are both, the bus is used. If there is none, no icon
/// appears; the rest of the program works without it.
class DesktopStatusItem {
public:
    /// Begins to search in the next turn of the queue. All must outlive it; `tray` is null for
    /// sessions without a tray of their own, `menuKeyboard` where menus need nobody to have keys.
    DesktopStatusItem(MainQueue &mainQueue, TrayWatch *tray, KeyboardLoan *menuKeyboard);
    ~DesktopStatusItem();
    DesktopStatusItem(const DesktopStatusItem &) = delete;
    DesktopStatusItem &operator=(const DesktopStatusItem &) = delete;

    StatusItem &item() { return m_item; }

private:
    void search();
    /// Makes the item appear after `delay` seconds.
    void found(double delay);
    /// Sets the icon's colour for the present palette.
    void updateForeground();

    MainQueue &m_mainQueue;
    QtTrayIcon m_item;
    TrayWatch *m_tray;
    // Null once a place was found.
    std::unique_ptr<NotifierHosts> m_hosts;
    Lifetime m_lifetime;
};

} // namespace corvane
