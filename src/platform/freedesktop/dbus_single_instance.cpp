#include "platform/freedesktop/dbus_single_instance.h"

#include "platform/freedesktop/session_bus.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <utility>

namespace corvane {

namespace {

constexpr auto interface = "org.freedesktop.Application";

// What the bus knows a request for a name by.
constexpr quint32 doNotQueue = 4;
constexpr quint32 primaryOwner = 1;
constexpr quint32 nameExists = 3;
constexpr quint32 alreadyOwner = 4;

} // namespace

DBusSingleInstance::DBusSingleInstance(QString applicationId)
    : m_applicationId(std::move(applicationId))
{
}

SingleInstance::Outcome DBusSingleInstance::acquire(std::function<void()> onReopen)
{
    m_onReopen = std::move(onReopen);
    if (!session_bus::isAvailable())
        return Outcome::Unknown;
    // Before the name is ours: whoever finds the name finds somebody to answer.
    QDBusConnection::sessionBus().registerObject(objectPath(), this,
                                                 QDBusConnection::ExportScriptableInvokables);
    // The other one may end just while it is asked.
    constexpr int attempts = 2;
    for (int i = 0; i < attempts; ++i) {
        switch (requestName()) {
        case NameRequest::Granted:
            return Outcome::First;
        case NameRequest::Failed:
            return Outcome::Unknown;
        case NameRequest::Taken:
            if (activateOther())
                return Outcome::HandedOver;
        }
    }
    return Outcome::Unknown;
}

DBusSingleInstance::NameRequest DBusSingleInstance::requestName() const
{
    auto request = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName"));
    request << m_applicationId << doNotQueue;
    const auto reply
        = QDBusConnection::sessionBus().call(request, QDBus::Block, timeoutMilliseconds);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return NameRequest::Failed;
    const quint32 answer = reply.arguments().constFirst().toUInt();
    if (answer == primaryOwner || answer == alreadyOwner)
        return NameRequest::Granted;
    return answer == nameExists ? NameRequest::Taken : NameRequest::Failed;
}

bool DBusSingleInstance::activateOther() const
{
    auto call = QDBusMessage::createMethodCall(
        m_applicationId, objectPath(), QLatin1String(interface), QStringLiteral("Activate"));
    call << QVariantMap();
    call.setAutoStartService(false);
    const auto reply = QDBusConnection::sessionBus().call(call, QDBus::Block, timeoutMilliseconds);
    // One that is busy has the message and will see to it; a second shelf would be worse.
    return reply.type() == QDBusMessage::ReplyMessage
        || reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.NoReply");
}

QString DBusSingleInstance::objectPath() const
{
    QString path = QLatin1Char('/') % m_applicationId;
    return path.replace(QLatin1Char('.'), QLatin1Char('/'))
        .replace(QLatin1Char('-'), QLatin1Char('_'));
}

void DBusSingleInstance::Activate(const QVariantMap &)
{
    if (m_onReopen)
        m_onReopen();
}

void DBusSingleInstance::Open(const QStringList &, const QVariantMap &platformData)
{
    Activate(platformData);
}

void DBusSingleInstance::ActivateAction(const QString &name, const QVariantList &,
                                        const QVariantMap &) const
{
    if (onAction)
        onAction(name);
}

} // namespace corvane
