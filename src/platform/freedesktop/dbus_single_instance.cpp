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

QDBusMessage toBus(const QString &method, const QVariantList &arguments)
{
    const auto name = QStringLiteral("org.freedesktop.DBus");
    auto call = QDBusMessage::createMethodCall(name, QStringLiteral("/org/freedesktop/DBus"), name,
                                               method);
    call.setArguments(arguments);
    return call;
}

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
    // Before the name is ours: another process may call the object as soon as it sees the name.
    QDBusConnection::sessionBus().registerObject(objectPath(), this,
                                                 QDBusConnection::ExportScriptableInvokables);
    // The other one may end just while it is asked.
    constexpr int attempts = 2;
    auto answer = Answer::Gone;
    for (int i = 0; i < attempts; ++i) {
        switch (requestName()) {
        case NameRequest::Granted:
            return Outcome::First;
        case NameRequest::Failed:
            return Outcome::Unknown;
        case NameRequest::Taken:
            // The bus reports a process that ended and one that is stuck alike, so the name is
            // asked for once more; waiting once more would tell nothing new.
            if (answer == Answer::None)
                return Outcome::NotAnswering;
            answer = activateOther();
            if (answer == Answer::Done)
                return Outcome::HandedOver;
        }
    }
    return answer == Answer::None ? Outcome::NotAnswering : Outcome::Unknown;
}

std::optional<qint64> DBusSingleInstance::otherProcess() const
{
    const auto reply = QDBusConnection::sessionBus().call(
        toBus(QStringLiteral("GetConnectionUnixProcessID"), {m_applicationId}), QDBus::Block,
        busMilliseconds);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return std::nullopt;
    return reply.arguments().constFirst().toLongLong();
}

DBusSingleInstance::NameRequest DBusSingleInstance::requestName() const
{
    const auto reply = QDBusConnection::sessionBus().call(
        toBus(QStringLiteral("RequestName"), {m_applicationId, doNotQueue}), QDBus::Block,
        busMilliseconds);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return NameRequest::Failed;
    const quint32 answer = reply.arguments().constFirst().toUInt();
    if (answer == primaryOwner || answer == alreadyOwner)
        return NameRequest::Granted;
    return answer == nameExists ? NameRequest::Taken : NameRequest::Failed;
}

DBusSingleInstance::Answer DBusSingleInstance::askOther(const QString &interface,
                                                        const QString &method,
                                                        const QVariantList &arguments) const
{
    auto call = QDBusMessage::createMethodCall(m_applicationId, objectPath(), interface, method);
    call.setArguments(arguments);
    call.setAutoStartService(false);
    const auto reply = QDBusConnection::sessionBus().call(call, QDBus::Block, answerMilliseconds);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return Answer::Done;
    return reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.NoReply") ? Answer::None
                                                                                    : Answer::Gone;
}

DBusSingleInstance::Answer DBusSingleInstance::activateOther() const
{
    // The program's main thread describes its object, and every version of it does.
    const Answer alive = askOther(QStringLiteral("org.freedesktop.DBus.Introspectable"),
                                  QStringLiteral("Introspect"), {});
    if (alive != Answer::Done)
        return alive;
    return askOther(QLatin1String(interface), QStringLiteral("Activate"), {QVariantMap()});
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
