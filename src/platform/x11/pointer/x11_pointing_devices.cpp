#include "platform/x11/pointer/x11_pointing_devices.h"

#include <xcb/xinput.h>

namespace corvane {

bool X11PointingDevices::isOfType(std::int64_t device, const char *type)
{
    if (!m_types.contains(device)) {
        // Remembered also for a device that the server does not know, so that it is not asked for
        // every turn of a wheel.
        if (!read())
            return false;
        m_types.try_emplace(device, XCB_NONE);
    }
    return m_types[device] != XCB_NONE && m_types[device] == m_connection.atom(type);
}

/// False where the server does not answer.
bool X11PointingDevices::read()
{
    if (!m_connection.hasXInput())
        return true;
    const auto reply = m_connection.reply<xcb_input_list_input_devices_reply_t>(
        xcb_input_list_input_devices(m_connection.get()));
    if (!reply)
        return !m_connection.isConnected();
    auto device = xcb_input_list_input_devices_devices_iterator(reply.get());
    for (; device.rem > 0; xcb_input_device_info_next(&device))
        m_types[device.data->device_id] = device.data->device_type;
    return true;
}

} // namespace corvane
