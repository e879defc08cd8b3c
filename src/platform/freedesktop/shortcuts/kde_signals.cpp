#include "platform/freedesktop/shortcuts/kde_signals.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>
#include <QVariant>

namespace corvane {

void KdeSignals::listen()
{
    const auto service = QStringLiteral("org.kde.kglobalaccel");
    const auto keys = QStringLiteral("org.kde.kglobalaccel.Component");
    const auto settings = QStringLiteral("org.kde.KGlobalAccel");
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(service, {}, keys, QStringLiteral("globalShortcutPressed"), this,
                SLOT(pressed(QDBusMessage)));
    bus.connect(service, {}, keys, QStringLiteral("globalShortcutReleased"), this,
                SLOT(released()));
    // Versions of it tell one or the other.
    for (const auto &name :
         {QStringLiteral("yourShortcutGotChanged"), QStringLiteral("yourShortcutsChanged")})
        bus.connect(service, {}, settings, name, this, SLOT(changed(QDBusMessage)));
}

void KdeSignals::pressed(const QDBusMessage &message) const
{
    const QVariantList said = message.arguments();
    if (onPressed && said.size() >= 2)
        onPressed(said.at(0).toString(), said.at(1).toString());
}

void KdeSignals::released() const
{
    if (onReleased)
        onReleased();
}

/// Which keys that are, it says in several forms.
void KdeSignals::changed(const QDBusMessage &message) const
{
    const QStringList which = message.arguments().value(0).toStringList();
    if (onChanged && which.size() >= 2)
        onChanged(which.at(0), which.at(1));
}

} // namespace corvane
