#pragma once

#include "platform/desktop/pointing_devices.h"
#include "platform/x11/base/x11_connection.h"

#include <cstdint>
#include <map>

namespace corvane {

/// What the server's drivers say that pointing devices are. Events tell nothing of it: how far
/// wheels and touchpads scroll for a notch is up to their drivers. The connection must outlive it.
class X11PointingDevices : public PointingDevices {
public:
    explicit X11PointingDevices(X11Connection &connection)
        : m_connection(connection)
    {
    }

    bool isTouchpad(std::int64_t device) override { return isOfType(device, "TOUCHPAD"); }
    /// By the input extension's name for what a driver announces. The server is asked when a device
    /// is named for the first time, and believed from then on.
    bool isOfType(std::int64_t device, const char *type);

private:
    void read();

    X11Connection &m_connection;
    /// None for a device that the server does not know.
    std::map<std::int64_t, xcb_atom_t> m_types;
};

} // namespace corvane
