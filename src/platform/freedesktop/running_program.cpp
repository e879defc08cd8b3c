#include "platform/freedesktop/running_program.h"

#include "platform/freedesktop/shelf_adaptor.h"
#include "platform/freedesktop/shelf_errors.h"
#include "platform/system/sealed_memory.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>

#include <limits>
#include <utility>

namespace corvane {

namespace {

constexpr auto applicationInterface = "org.freedesktop.Application";

/// Errors of the bus itself: there is nobody of that name.
bool tellsOfNobody(const QString &error)
{
    return error == QLatin1String("org.freedesktop.DBus.Error.ServiceUnknown")
        || error == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner")
        || error == QLatin1String("org.freedesktop.DBus.Error.Disconnected");
}

RunningProgram::Refusal refusalOf(const QString &error)
{
    using enum RunningProgram::Refusal;
    for (const auto &[name, refusal] : {
             std::pair(shelf_errors::notReady, NotReady),
             std::pair(shelf_errors::tooMuch, TooMuch),
             std::pair(shelf_errors::badArguments, NotKnown),
             std::pair("org.freedesktop.DBus.Error.UnknownObject", NotKnown),
             std::pair("org.freedesktop.DBus.Error.UnknownInterface", NotKnown),
             std::pair("org.freedesktop.DBus.Error.UnknownMethod", NotKnown),
             std::pair(shelf_errors::nothingTaken, NothingTaken),
             std::pair(shelf_errors::noMemory, NoMemory),
         }) {
        if (error == QLatin1String(name))
            return refusal;
    }
    return Other;
}

} // namespace

RunningProgram::RunningProgram(QString applicationId)
    : m_applicationId(std::move(applicationId))
{
}

QString RunningProgram::objectPath(QString applicationId)
{
    applicationId.replace(QLatin1Char('.'), QLatin1Char('/'))
        .replace(QLatin1Char('-'), QLatin1Char('_'));
    return QLatin1Char('/') % applicationId;
}

QVariantMap RunningProgram::platformDataOfEnvironment()
{
    QVariantMap data;
    for (const auto &[name, variable] : {std::pair("activation-token", "XDG_ACTIVATION_TOKEN"),
                                         std::pair("desktop-startup-id", "DESKTOP_STARTUP_ID")}) {
        const QString value = qEnvironmentVariable(variable);
        if (!value.isEmpty())
            data.insert(QLatin1String(name), value);
    }
    return data;
}

bool RunningProgram::exists() const
{
    const auto bus = QDBusConnection::sessionBus();
    return bus.isConnected() && bus.interface()->isServiceRegistered(m_applicationId);
}

std::optional<qint64> RunningProgram::process() const
{
    const auto name = QStringLiteral("org.freedesktop.DBus");
    auto call = QDBusMessage::createMethodCall(name, QStringLiteral("/org/freedesktop/DBus"), name,
                                               QStringLiteral("GetConnectionUnixProcessID"));
    call.setArguments({m_applicationId});
    const auto reply = QDBusConnection::sessionBus().call(call, QDBus::Block, busMilliseconds);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return std::nullopt;
    return reply.arguments().constFirst().toLongLong();
}

RunningProgram::Answer RunningProgram::ask(const QString &interface, const QString &method,
                                           const QVariantList &arguments, int milliseconds,
                                           QVariantList *results) const
{
    auto call = QDBusMessage::createMethodCall(m_applicationId, objectPath(m_applicationId),
                                               interface, method);
    call.setArguments(arguments);
    call.setAutoStartService(false);
    const auto reply = QDBusConnection::sessionBus().call(call, QDBus::Block, milliseconds);
    if (reply.type() == QDBusMessage::ReplyMessage) {
        if (results)
            *results = reply.arguments();
        return Answer::Done;
    }
    if (reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.NoReply"))
        return Answer::None;
    if (tellsOfNobody(reply.errorName()))
        return Answer::Gone;
    return refused(refusalOf(reply.errorName()), reply.errorName());
}

RunningProgram::Answer RunningProgram::refused(Refusal refusal, const QString &name) const
{
    m_refusal = refusal;
    m_refusedBy = name;
    return Answer::Refused;
}

RunningProgram::Answer RunningProgram::isAlive() const
{
    // The program's main thread describes its object, and every version of it does.
    const Answer answer = ask(QStringLiteral("org.freedesktop.DBus.Introspectable"),
                              QStringLiteral("Introspect"), {}, answerMilliseconds);
    return answer == Answer::Refused ? Answer::Gone : answer;
}

RunningProgram::Answer RunningProgram::activate() const
{
    const Answer answer = ask(QLatin1String(applicationInterface), QStringLiteral("Activate"),
                              {m_platformData}, answerMilliseconds);
    return answer == Answer::Refused ? Answer::Gone : answer;
}

RunningProgram::Answer RunningProgram::act(const QString &action) const
{
    return ask(QLatin1String(applicationInterface), QStringLiteral("ActivateAction"),
               {action, QVariantList(), m_platformData}, answerMilliseconds);
}

RunningProgram::Answer RunningProgram::put(const ShelfDelivery &delivery, int &items) const
{
    const FileDescriptor memory = sealed_memory::holding(delivery.bytes);
    if (!memory.isOpen())
        return refused(Refusal::NoMemory);
    QVariantList results;
    const Answer answer = ask(ShelfAdaptor::interfaceName(), QStringLiteral("Put"),
                              {ShelfAdaptor::nameOf(delivery.kind),
                               QVariant::fromValue(QDBusUnixFileDescriptor(memory.number()))},
                              contentsMilliseconds, &results);
    items = results.isEmpty() ? 0 : results.constFirst().toInt();
    return answer;
}

RunningProgram::Answer RunningProgram::askForEntries(const QString &method,
                                                     QByteArray &entries) const
{
    QVariantList results;
    const Answer answer
        = ask(ShelfAdaptor::interfaceName(), method, {}, contentsMilliseconds, &results);
    if (answer != Answer::Done)
        return answer;
    const auto memory = results.isEmpty()
        ? QDBusUnixFileDescriptor()
        : qvariant_cast<QDBusUnixFileDescriptor>(results.constFirst());
    const auto contents
        = sealed_memory::contents(memory.fileDescriptor(), std::numeric_limits<qint32>::max());
    if (!contents)
        return refused(Refusal::AnswerUnreadable);
    entries = *contents;
    return Answer::Done;
}

RunningProgram::Answer RunningProgram::list(QByteArray &entries) const
{
    return askForEntries(QStringLiteral("List"), entries);
}

RunningProgram::Answer RunningProgram::take(QByteArray &entries) const
{
    return askForEntries(QStringLiteral("Take"), entries);
}

RunningProgram::Answer RunningProgram::confirmTaken() const
{
    return ask(ShelfAdaptor::interfaceName(), QStringLiteral("ConfirmTaken"), {},
               answerMilliseconds);
}

RunningProgram::Answer RunningProgram::end() const
{
    // This call is never answered: the bus says so when the process has left it.
    const Answer answer
        = ask(ShelfAdaptor::interfaceName(), QStringLiteral("End"), {}, answerMilliseconds * 2);
    return answer == Answer::None && !exists() ? Answer::Done : answer;
}

} // namespace corvane
