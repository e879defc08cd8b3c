#pragma once

#include "platform/base/lifetime.h"
#include "platform/freedesktop/notifier_hosts.h"
#include "platform/qt/desktop/qt_tray_icon.h"

#include <memory>

namespace corvane {

class MainQueue;
class TrayWatch;

/// Brings the status item up once the desktop has a place for it, a panel on the session bus or a
/// tray of the session's own kind, whichever is seen first; where both are there it is the bus.
/// Without either nothing is made, and nothing else is missing.
class DesktopStatusItem {
public:
    /// Begins at the next turn of the queue. Both must outlive it; null where such sessions have no
    /// tray of their own.
    DesktopStatusItem(MainQueue &mainQueue, TrayWatch *tray);
    ~DesktopStatusItem();
    DesktopStatusItem(const DesktopStatusItem &) = delete;
    DesktopStatusItem &operator=(const DesktopStatusItem &) = delete;

    StatusItem &item() { return m_item; }

private:
    void search();
    /// Brings it up so many seconds later.
    void found(double delay);
    /// Has it drawn in the colour of the present palette.
    void updateForeground();

    MainQueue &m_mainQueue;
    QtTrayIcon m_item;
    TrayWatch *m_tray;
    // Only until something is found.
    std::unique_ptr<NotifierHosts> m_hosts;
    Lifetime m_lifetime;
};

} // namespace corvane
