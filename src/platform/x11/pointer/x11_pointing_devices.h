#pragma once

#include "platform/desktop/pointing_devices.h"
#include "platform/x11/base/x11_connection.h"

#include <cstdint>
#include <map>

namespace corvane {

/// The types of pointing devices, as their drivers announce them to the server. Scroll events do
/// not tell whether they come from a touchpad, and drivers decide how far a notch scrolls. The
/// connection must outlive it.
class X11PointingDevices : public PointingDevices {
public:
    explicit X11PointingDevices(X11Connection &connection)
        : m_connection(connection)
    {
    }

    bool isTouchpad(std::int64_t device) override { return isOfType(device, "TOUCHPAD"); }
    /// Whether the device has that type, by the input extension's name for it. The server is asked
    /// at the first question about a device; its answer is kept.
    bool isOfType(std::int64_t device, const char *type);

private:
    bool read();

    X11Connection &m_connection;
    /// None for a device that the server does not know.
    std::map<std::int64_t, xcb_atom_t> m_types;
};

} // namespace corvane
