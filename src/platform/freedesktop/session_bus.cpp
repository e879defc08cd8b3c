#include "platform/freedesktop/session_bus.h"

#include <QDBusConnection>
#include <QFileInfo>

namespace corvane::session_bus {

bool isAvailable()
{
    if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) {
        const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
        if (runtime.isEmpty() || !QFileInfo::exists(runtime + QLatin1String("/bus")))
            return false;
    }
    return QDBusConnection::sessionBus().isConnected();
}

} // namespace corvane::session_bus
