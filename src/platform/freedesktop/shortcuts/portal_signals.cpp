#include "platform/freedesktop/shortcuts/portal_signals.h"

#include "platform/freedesktop/shortcuts/desktop_portal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QVariant>

namespace corvane {

void PortalSignals::listen()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(desktop_portal::service, desktop_portal::path, desktop_portal::globalShortcuts,
                QStringLiteral("Activated"), this, SLOT(activated(QDBusMessage)));
    bus.connect(desktop_portal::service, desktop_portal::path, desktop_portal::globalShortcuts,
                QStringLiteral("ShortcutsChanged"), this, SLOT(changed(QDBusMessage)));
    // Wherever the sessions are: each is told to its own program alone.
    bus.connect(desktop_portal::service, QString(), desktop_portal::session,
                QStringLiteral("Closed"), this, SLOT(closed(QDBusMessage)));
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

void PortalSignals::closed(const QDBusMessage &message) const
{
    if (onClosed)
        onClosed(message.path());
}

} // namespace corvane
