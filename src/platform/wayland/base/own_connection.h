#pragma once

#include <memory>

struct wl_display;

class QSocketNotifier;

namespace corvane {

/// A second connection to the compositor, which Qt does not know of; its events are handled by the
/// same event loop. For surfaces that Qt is to have no part in. Made once there is an application
/// object, which must outlive it. Main thread only.
class OwnConnection {
public:
    OwnConnection();
    ~OwnConnection();
    OwnConnection(const OwnConnection &) = delete;
    OwnConnection &operator=(const OwnConnection &) = delete;

    /// Null where there is none, or none any more: what was made on it must not be used then, but
    /// may be destroyed.
    wl_display *display() const { return m_isBroken ? nullptr : m_display; }
    /// Sends off what was asked for.
    void flush();

private:
    void readEvents();

    wl_display *m_display;
    bool m_isBroken = false;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace corvane
