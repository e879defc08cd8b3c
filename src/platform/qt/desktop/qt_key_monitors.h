#pragma once

#include "platform/base/changing_list.h"
#include "platform/base/lifetime.h"
#include "platform/desktop/key_monitors.h"

#include <QObject>

class QKeyEvent;

namespace corvane {

class KeyboardLayout;

/// Key monitors by an event filter on the application, which sees keys before shortcuts and focus
/// handling do, so Tab and Return come, too. The filter is installed only while there is a monitor.
/// Needs the application object; the layout must outlive it.
///
/// While there is a monitor, keys that it passes reach their window as keys but trigger no
/// shortcuts. Dead keys do not come, because Qt composes letters from them first.
class QtKeyMonitors : public QObject, public KeyMonitors {
public:
    explicit QtKeyMonitors(const KeyboardLayout &layout);
    ~QtKeyMonitors() override;

    Subscription addLocalMonitor(Handler handler) override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void remove(ChangingList<Handler>::Id monitor);
    Disposition notify(const QKeyEvent &key);

    const KeyboardLayout &m_layout;
    ChangingList<Handler> m_monitors;
    Lifetime m_lifetime;
};

} // namespace corvane
