#include "platform/freedesktop/notifier_hosts.h"

#include "platform/freedesktop/session_bus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <utility>

namespace corvane {

namespace {

const auto watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const auto watcherPath = QStringLiteral("/StatusNotifierWatcher");

} // namespace

void NotifierHosts::start(std::function<void()> onHost)
{
    m_onHost = std::move(onHost);
    if (!session_bus::isAvailable())
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    m_watcher.setConnection(bus);
    m_watcher.setWatchMode(QDBusServiceWatcher::WatchForRegistration);
    m_watcher.addWatchedService(watcherName);
    connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &NotifierHosts::ask);
    // The service that gathers items may run long before a panel that shows them.
    bus.connect({}, watcherPath, watcherName, QStringLiteral("StatusNotifierHostRegistered"), this,
                SLOT(ask()));
    ask();
}

void NotifierHosts::ask()
{
    auto call = QDBusMessage::createMethodCall(watcherName, watcherPath,
                                               QStringLiteral("org.freedesktop.DBus.Properties"),
                                               QStringLiteral("Get"));
    call << watcherName << QStringLiteral("IsStatusNotifierHostRegistered");
    call.setAutoStartService(false);
    auto *answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        if (!reply.isError() && reply.value().variant().toBool())
            m_onHost();
    });
}

} // namespace corvane
