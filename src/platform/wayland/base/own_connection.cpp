#include "platform/wayland/base/own_connection.h"

#include <QSocketNotifier>

#include <wayland-client.h>

#include <cerrno>

namespace corvane {

namespace {

/// The compositor that Qt was told of by name. Without a name nobody is asked: the usual one may be
/// that of another session.
wl_display *connectAgain()
{
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        || qEnvironmentVariableIsSet("WAYLAND_SOCKET"))
        return nullptr;
    return wl_display_connect(nullptr);
}

} // namespace

OwnConnection::OwnConnection()
    : m_display(connectAgain())
{
    if (!m_display)
        return;
    m_notifier
        = std::make_unique<QSocketNotifier>(wl_display_get_fd(m_display), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { readEvents(); });
}

OwnConnection::~OwnConnection()
{
    m_notifier.reset();
    if (m_display)
        wl_display_disconnect(m_display);
}

void OwnConnection::readEvents()
{
    bool isAlive = true;
    while (isAlive && wl_display_prepare_read(m_display) != 0)
        isAlive = wl_display_dispatch_pending(m_display) >= 0;
    isAlive = isAlive && wl_display_read_events(m_display) >= 0
        && wl_display_dispatch_pending(m_display) >= 0;
    if (isAlive) {
        flush();
        return;
    }
    // Qt hears of the compositor's end, too, and ends the program.
    m_isBroken = true;
    m_notifier->setEnabled(false);
}

void OwnConnection::flush()
{
    // What does not fit in now goes with the next events' answers.
    if (!m_isBroken && wl_display_flush(m_display) < 0 && errno != EAGAIN)
        m_isBroken = true;
}

} // namespace corvane
