#include "platform/freedesktop/desktop_notification.h"

#include "platform/freedesktop/session_bus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>

namespace corvane::desktop_notification {

bool show(const QString &title, const QString &text)
{
    // A service that has to be started first takes a moment.
    constexpr int timeoutMilliseconds = 3'000;
    constexpr int untilTheDesktopDecides = -1;
    constexpr quint32 replacesNone = 0;
    if (!session_bus::isAvailable())
        return false;
    const auto name = QStringLiteral("org.freedesktop.Notifications");
    auto call = QDBusMessage::createMethodCall(
        name, QStringLiteral("/org/freedesktop/Notifications"), name, QStringLiteral("Notify"));
    call << QGuiApplication::applicationDisplayName() << replacesNone
         << QGuiApplication::desktopFileName() << title << text.toHtmlEscaped() << QStringList()
         << QVariantMap{{QStringLiteral("desktop-entry"), QGuiApplication::desktopFileName()}}
         << untilTheDesktopDecides;
    const auto reply = QDBusConnection::sessionBus().call(call, QDBus::Block, timeoutMilliseconds);
    return reply.type() == QDBusMessage::ReplyMessage;
}

} // namespace corvane::desktop_notification
