#include "platform/freedesktop/session_bus.h"

#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QFileInfo>

namespace corvane::session_bus {

namespace {

constexpr auto address = "DBUS_SESSION_BUS_ADDRESS";

bool isThere()
{
    if (!qEnvironmentVariableIsEmpty(address))
        return true;
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtime.isEmpty() && QFileInfo::exists(runtime + QLatin1String("/bus"));
}

} // namespace

bool isAvailable()
{
    if (!isThere())
        return false;
    // Qt makes its types known on first use. Done by the thread of a first connection, that would
    // still be under way when a program that asks one question ends, and Qt complains of half of
    // them.
    qDBusRegisterMetaType<QDBusVariant>();
    return QDBusConnection::sessionBus().isConnected();
}

void keepFromStarting()
{
    // Without an address one is looked for with a program that starts a bus if it finds none. No
    // transport has this name, so that nothing is tried at all.
    if (!isThere())
        qputenv(address, "disabled:");
}

} // namespace corvane::session_bus
