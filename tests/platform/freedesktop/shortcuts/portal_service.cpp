#include "platform/freedesktop/shortcuts/portal_service.h"

#include "platform/freedesktop/shortcuts/desktop_portal.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>

namespace corvane::test {

QDBusArgument &operator<<(QDBusArgument &to, const PortalEntry &entry)
{
    to.beginStructure();
    to << entry.name << entry.about;
    to.endStructure();
    return to;
}

const QDBusArgument &operator>>(const QDBusArgument &from, PortalEntry &entry)
{
    from.beginStructure();
    from >> entry.name >> entry.about;
    from.endStructure();
    return from;
}

PortalService::PortalService()
{
    qDBusRegisterMetaType<PortalEntry>();
    qDBusRegisterMetaType<PortalEntries>();
    m_bus.registerObject(desktop_portal::path, this,
                         QDBusConnection::ExportScriptableInvokables
                             | QDBusConnection::ExportAllProperties);
}

PortalService::~PortalService()
{
    go();
    QDBusConnection::disconnectFromBus(QStringLiteral("shortcuts"));
}

void PortalService::come()
{
    m_bus.registerService(desktop_portal::service);
}

void PortalService::go()
{
    m_bus.unregisterService(desktop_portal::service);
}

QString PortalService::sessionPath(int number)
{
    return desktop_portal::path + QStringLiteral("/session/%1").arg(number);
}

QString PortalService::requestOf(const QVariantMap &options) const
{
    QString sender = message().service().mid(1);
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    return desktop_portal::path + QStringLiteral("/request/") + sender + QLatin1Char('/')
        + options.value(QStringLiteral("handle_token")).toString();
}

void PortalService::respond(const QString &request, uint code, const QVariantMap &results)
{
    auto signal = QDBusMessage::createSignal(
        request, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"));
    signal << code << results;
    m_bus.send(signal);
}

QVariant PortalService::listed() const
{
    if (manners.isConfused)
        return QStringList{QStringLiteral("what?")};
    PortalEntries entries;
    if (manners.listsShortcuts) {
        for (const auto &[name, keys] : asked)
            entries << PortalEntry{name, {{QStringLiteral("trigger_description"), m_keys}}};
    }
    return QVariant::fromValue(entries);
}

QDBusObjectPath PortalService::CreateSession(const QVariantMap &options)
{
    const QString request = requestOf(options);
    if (manners.makesSessions) {
        const QString place = sessionPath(static_cast<int>(sessions.size()));
        sessions.push_back(std::make_unique<PortalSession>());
        m_bus.registerObject(place, sessions.back().get(),
                             QDBusConnection::ExportScriptableInvokables);
        respond(request, 0, {{QStringLiteral("session_handle"), place}});
    }
    return QDBusObjectPath(request);
}

QDBusObjectPath PortalService::BindShortcuts(const QDBusObjectPath & /*session*/,
                                             const PortalEntries &shortcuts,
                                             const QString & /*parent*/, const QVariantMap &options)
{
    asked.clear();
    for (const PortalEntry &entry : shortcuts)
        asked[entry.name] = entry.about.value(QStringLiteral("preferred_trigger")).toString();
    m_pending = requestOf(options);
    return QDBusObjectPath(m_pending);
}

void PortalService::userSays(bool yes)
{
    respond(m_pending, yes ? 0 : 1,
            yes ? QVariantMap{{QStringLiteral("shortcuts"), listed()}} : QVariantMap());
}

void PortalService::press(const QString &shortcut, int session)
{
    auto signal = QDBusMessage::createSignal(desktop_portal::path, desktop_portal::globalShortcuts,
                                             QStringLiteral("Activated"));
    signal << QVariant::fromValue(QDBusObjectPath(sessionPath(session))) << shortcut << quint64(0)
           << QVariantMap();
    m_bus.send(signal);
}

void PortalService::end(int session)
{
    m_bus.unregisterObject(sessionPath(session));
    auto signal = QDBusMessage::createSignal(sessionPath(session), desktop_portal::session,
                                             QStringLiteral("Closed"));
    signal << QVariantMap();
    m_bus.send(signal);
}

void PortalService::choose(const QString &keys)
{
    m_keys = keys;
    auto signal = QDBusMessage::createSignal(desktop_portal::path, desktop_portal::globalShortcuts,
                                             QStringLiteral("ShortcutsChanged"));
    signal << QVariant::fromValue(
        QDBusObjectPath(sessionPath(static_cast<int>(sessions.size()) - 1)))
           << listed();
    m_bus.send(signal);
}

} // namespace corvane::test
