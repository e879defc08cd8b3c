#pragma once

#include "platform/base/changing_list.h"
#include "platform/desktop/key_monitors.h"

#include <QObject>

class QKeyEvent;

namespace corvane {

class KeyboardLayout;

/// Key monitors over the toolkit's events, before shortcuts and focus handling see them: Tab and
/// Return come, too. It looks at events only while there is a monitor. Needs the application
/// object; the layout must outlive it.
///
/// While there is a monitor, a key that it lets pass arrives as a key, but is no window's shortcut.
/// Dead keys do not come: the toolkit composes letters of them first.
class QtKeyMonitors : public QObject, public KeyMonitors {
public:
    explicit QtKeyMonitors(const KeyboardLayout &layout);
    ~QtKeyMonitors() override;

    Handle addLocalMonitor(Handler handler) override;
    void removeMonitor(Handle handle) override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Disposition notify(const QKeyEvent &key);

    const KeyboardLayout &m_layout;
    ChangingList<Handler> m_monitors;
};

} // namespace corvane
