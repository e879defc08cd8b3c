#include "platform/freedesktop/dbus_single_instance.h"

#include "platform/freedesktop/session_bus.h"
#include "platform/freedesktop/shelf_adaptor.h"
#include "platform/freedesktop/shelf_errors.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <utility>

namespace corvane {

namespace {

// What the bus knows a request for a name by.
constexpr quint32 doNotQueue = 4;
constexpr quint32 primaryOwner = 1;
constexpr quint32 nameExists = 3;
constexpr quint32 alreadyOwner = 4;

QString activationToken(const QVariantMap &platformData)
{
    // Compositors make them of a few dozen characters.
    constexpr qsizetype longest = 1'024;
    const QString token = platformData.value(QStringLiteral("activation-token")).toString();
    return token.size() > longest ? QString() : token;
}

} // namespace

DBusSingleInstance::DBusSingleInstance(QString applicationId)
    : m_applicationId(std::move(applicationId))
    , m_other(m_applicationId)
    , m_handOver([](const RunningProgram &other) { return other.activate(); })
    , m_shelf(new ShelfAdaptor(this))
{
}

DBusSingleInstance::~DBusSingleInstance() = default;

SingleInstance::Outcome DBusSingleInstance::acquire(std::function<void()> onReopen)
{
    using Answer = RunningProgram::Answer;
    m_onReopen = std::move(onReopen);
    if (!session_bus::isAvailable())
        return Outcome::Unknown;
    // Before the name is ours: another process may call the object as soon as it sees the name.
    QDBusConnection::sessionBus().registerObject(RunningProgram::objectPath(m_applicationId), this,
                                                 QDBusConnection::ExportScriptableInvokables
                                                     | QDBusConnection::ExportAdaptors);
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
            answer = askOther();
            if (answer == Answer::Done)
                return Outcome::HandedOver;
            if (answer == Answer::Refused)
                return Outcome::Refused;
        }
    }
    return answer == Answer::None ? Outcome::NotAnswering : Outcome::Unknown;
}

RunningProgram::Answer DBusSingleInstance::askOther() const
{
    const RunningProgram::Answer alive = m_other.isAlive();
    return alive == RunningProgram::Answer::Done ? m_handOver(m_other) : alive;
}

DBusSingleInstance::NameRequest DBusSingleInstance::requestName() const
{
    const auto bus = QStringLiteral("org.freedesktop.DBus");
    auto call = QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus,
                                               QStringLiteral("RequestName"));
    call.setArguments({m_applicationId, doNotQueue});
    const auto reply
        = QDBusConnection::sessionBus().call(call, QDBus::Block, RunningProgram::busMilliseconds);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return NameRequest::Failed;
    const quint32 answer = reply.arguments().constFirst().toUInt();
    if (answer == primaryOwner || answer == alreadyOwner)
        return NameRequest::Granted;
    return answer == nameExists ? NameRequest::Taken : NameRequest::Failed;
}

void DBusSingleInstance::setRequests(ShelfRequests *requests)
{
    m_shelf->requests = requests;
}

void DBusSingleInstance::refuse(const char *error, const QString &text) const
{
    if (calledFromDBus())
        sendErrorReply(QLatin1String(error), text);
}

void DBusSingleInstance::Activate(const QVariantMap &)
{
    if (!std::exchange(m_isBeingLaunched, false) && m_onReopen)
        m_onReopen();
}

void DBusSingleInstance::Open(const QStringList &uris, const QVariantMap &platformData)
{
    if (uris.isEmpty()) {
        Activate(platformData);
        return;
    }
    m_isBeingLaunched = false;
    ShelfDelivery delivery;
    // A line end would make two addresses of one.
    for (const QString &uri : uris)
        delivery.bytes += uri.toUtf8().replace('\n', "").replace('\r', "") + "\r\n";
    if (!m_shelf->requests) {
        refuse(shelf_errors::notReady, QStringLiteral("Corvane is not ready yet"));
        return;
    }
    if (uris.size() > mostAddresses || delivery.bytes.size() > ShelfRequests::maximumBytes) {
        refuse(shelf_errors::tooMuch, QStringLiteral("too many addresses"));
        return;
    }
    setDelayedReply(true);
    m_shelf->requests->put(delivery, [call = message()](int items) {
        const auto refusal = QStringLiteral("none of these can be put on the shelf");
        QDBusConnection::sessionBus().send(
            items > 0 ? call.createReply()
                      : call.createErrorReply(QLatin1String(shelf_errors::badArguments), refusal));
    });
}

void DBusSingleInstance::ActivateAction(const QString &name, const QVariantList &parameter,
                                        const QVariantMap &platformData)
{
    m_isBeingLaunched = false;
    if (!m_shelf->requests)
        refuse(shelf_errors::notReady, QStringLiteral("Corvane is not ready yet"));
    else if (!parameter.isEmpty())
        refuse(shelf_errors::badArguments, QStringLiteral("actions of Corvane have no parameters"));
    else if (!m_shelf->requests->act(name, activationToken(platformData)))
        refuse(shelf_errors::badArguments, QStringLiteral("Corvane has no action of that name"));
}

} // namespace corvane
