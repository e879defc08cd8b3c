#include "platform/freedesktop/portal_settings.h"

#include "platform/freedesktop/session_bus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <utility>

namespace corvane {

namespace {

const auto portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");

/// The portal wraps what it reads in one variant more than it needs.
QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

PortalSettings::PortalSettings(const QList<Key> &keys, Take take)
    : m_keys(keys)
    , m_take(std::move(take))
{
    if (!session_bus::isAvailable())
        return;
    QDBusConnection::sessionBus().connect(portalService, portalPath, settingsInterface,
                                          QStringLiteral("SettingChanged"), this,
                                          SLOT(settingChanged(QString, QString, QDBusVariant)));
    for (const Key &key : keys)
        ask(key);
}

void PortalSettings::settingChanged(const QString &group, const QString &name,
                                    const QDBusVariant &value)
{
    const Key key{group, name};
    if (m_keys.contains(key))
        m_take(key, unwrapped(value.variant()));
}

void PortalSettings::ask(const Key &key)
{
    auto call = QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface,
                                               QStringLiteral("Read"));
    call << key.group << key.name;
    auto *watcher
        = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, key] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (!reply.isError())
            m_take(key, unwrapped(reply.value().variant()));
        watcher->deleteLater();
    });
}

} // namespace corvane
