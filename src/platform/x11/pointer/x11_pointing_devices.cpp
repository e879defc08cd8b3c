#include "platform/x11/pointer/x11_pointing_devices.h"

#include "platform/x11/base/x11_reply.h"

#include <xcb/xinput.h>

namespace corvane {

bool X11PointingDevices::isOfType(std::int64_t device, const char *type)
{
    if (!m_types.contains(device)) {
        read();
        // Remembered also for a device that the server does not know, so that it is not asked for
        // every turn of a wheel.
        m_types.try_emplace(device, XCB_NONE);
    }
    return m_types[device] != XCB_NONE && m_types[device] == m_connection.atom(type);
}

void X11PointingDevices::read()
{
    if (!m_connection.hasXInput())
        return;
    const X11Reply<xcb_input_list_input_devices_reply_t> reply(xcb_input_list_input_devices_reply(
        m_connection.get(), xcb_input_list_input_devices(m_connection.get()), nullptr));
    if (!reply)
        return;
    auto device = xcb_input_list_input_devices_devices_iterator(reply.get());
    for (; device.rem > 0; xcb_input_device_info_next(&device))
        m_types[device.data->device_id] = device.data->device_type;
}

} // namespace corvane
