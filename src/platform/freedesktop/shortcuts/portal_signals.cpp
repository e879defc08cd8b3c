#include "platform/freedesktop/shortcuts/portal_signals.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QVariant>

namespace corvane {

void PortalSignals::listen()
{
    const auto service = QStringLiteral("org.freedesktop.portal.Desktop");
    const auto path = QStringLiteral("/org/freedesktop/portal/desktop");
    const auto interface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(service, path, interface, QStringLiteral("Activated"), this,
                SLOT(activated(QDBusMessage)));
    bus.connect(service, path, interface, QStringLiteral("ShortcutsChanged"), this,
                SLOT(changed(QDBusMessage)));
}

void PortalSignals::activated(const QDBusMessage &message) const
{
    const QVariantList said = message.arguments();
    if (onActivated && said.size() >= 2)
        onActivated(said.at(0).value<QDBusObjectPath>().path(), said.at(1).toString());
}

void PortalSignals::changed(const QDBusMessage &message) const
{
    const QVariantList said = message.arguments();
    if (onChanged && said.size() >= 2)
        onChanged(said.at(0).value<QDBusObjectPath>().path(), said.at(1));
}

} // namespace corvane
