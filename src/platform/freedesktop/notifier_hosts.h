#pragma once

#include <QDBusServiceWatcher>
#include <QObject>

#include <functional>

namespace corvane {

/// Tells when a panel shows the status items of the session bus. Nothing waits for the bus; without
/// a bus nothing is ever told. Main thread only.
class NotifierHosts : public QObject {
    Q_OBJECT

public:
    /// Begins to look. `onHost` is called at a later turn of the loop, once the place where items
    /// gather says that somebody shows them, and again whenever it says so anew.
    void start(std::function<void()> onHost);

private:
    Q_SLOT void ask();

    std::function<void()> m_onHost;
    QDBusServiceWatcher m_watcher;
};

} // namespace corvane
