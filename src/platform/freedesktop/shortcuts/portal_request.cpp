#include "platform/freedesktop/shortcuts/portal_request.h"

#include "platform/freedesktop/shortcuts/desktop_portal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringBuilder>

#include <utility>

namespace corvane {

namespace {

QString nextToken()
{
    static quint32 count = 0;
    return QStringLiteral("corvane%1").arg(++count);
}

} // namespace

PortalRequest::PortalRequest(QObject *parent, Answered answered)
    : QObject(parent)
    , m_answered(std::move(answered))
    , m_token(nextToken())
{
}

QVariantMap PortalRequest::options() const
{
    return {{QStringLiteral("handle_token"), m_token}};
}

void PortalRequest::ask(const QString &method, const QVariantList &arguments)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    // Before it is asked: the answer may come at once. The name of its place follows from ours.
    QString sender = bus.baseService().mid(1);
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    bus.connect(desktop_portal::service,
                desktop_portal::path % QStringLiteral("/request/") % sender % QLatin1Char('/')
                    % m_token,
                QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"), this,
                SLOT(answer(QDBusMessage)));
    auto call = QDBusMessage::createMethodCall(desktop_portal::service, desktop_portal::path,
                                               desktop_portal::globalShortcuts, method);
    call.setArguments(arguments);
    auto *accepted = new QDBusPendingCallWatcher(bus.asyncCall(call, acceptMilliseconds), this);
    connect(accepted, &QDBusPendingCallWatcher::finished, this, [this, accepted] {
        accepted->deleteLater();
        if (accepted->isError())
            tell(std::nullopt);
    });
}

void PortalRequest::answer(const QDBusMessage &message)
{
    const QVariantList said = message.arguments();
    const bool isGranted = said.size() == 2 && said.at(0).metaType() == QMetaType::fromType<uint>()
        && said.at(0).toUInt() == 0 && said.at(1).canConvert<QDBusArgument>();
    tell(isGranted ? std::optional(qdbus_cast<QVariantMap>(said.at(1))) : std::nullopt);
}

void PortalRequest::tell(const std::optional<QVariantMap> &contents)
{
    deleteLater();
    // Once: an answer may follow on a refusal.
    if (const auto answered = std::exchange(m_answered, nullptr))
        answered(contents);
}

} // namespace corvane
