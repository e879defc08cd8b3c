#include "platform/x11/windows/x11_window_manager.h"

namespace corvane {

bool X11WindowManager::isRunning() const
{
    return rootProperty("_NET_SUPPORTING_WM_CHECK") != XCB_NONE;
}

xcb_window_t X11WindowManager::activeWindow() const
{
    return rootProperty("_NET_ACTIVE_WINDOW");
}

void X11WindowManager::activate(xcb_window_t window, xcb_connection_t *on,
                                xcb_timestamp_t time) const
{
    tellTime(on);
    // Sent as a pager: requests in a program's own name may be refused.
    constexpr std::uint32_t fromPager = 2;
    xcb_client_message_event_t message = {};
    message.window = window;
    message.type = m_connection.atom("_NET_ACTIVE_WINDOW");
    message.data.data32[0] = fromPager;
    message.data.data32[1] = time;
    sendToRoot(message, on);
}

/// Windows are numbered by the connection that made them, and it has to have made the one by which
/// it is known.
bool X11WindowManager::isItsOwn(xcb_window_t window) const
{
    const xcb_window_t itsMark = rootProperty("_NET_SUPPORTING_WM_CHECK");
    const std::uint32_t countedUp = xcb_get_setup(m_connection.get())->resource_id_mask;
    return itsMark != XCB_NONE && (window & ~countedUp) == (itsMark & ~countedUp);
}

/// `_NET_REQUEST_FRAME_EXTENTS` asks for an estimate of the window's frame, which is written to a
/// property.
void X11WindowManager::askForSign(xcb_window_t window) const
{
    xcb_client_message_event_t message = {};
    message.window = window;
    message.type = m_connection.atom("_NET_REQUEST_FRAME_EXTENTS");
    sendToRoot(message, m_connection.get());
}

bool X11WindowManager::isSign(const xcb_generic_event_t &event, xcb_window_t window) const
{
    if ((event.response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
        return false;
    const auto &news = reinterpret_cast<const xcb_property_notify_event_t &>(event);
    return news.window == window && news.atom == m_connection.atom("_NET_FRAME_EXTENTS");
}

void X11WindowManager::sendToRoot(xcb_client_message_event_t message, xcb_connection_t *on) const
{
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    xcb_send_event(on, 0, m_connection.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(on);
}

/// Some window managers ignore the time in the message and use that of the latest event that they
/// saw. So they are shown one: a property of the root window is set and deleted.
void X11WindowManager::tellTime(xcb_connection_t *on) const
{
    const xcb_atom_t property = m_connection.atom("_CORVANE_TIME");
    xcb_change_property(on, XCB_PROP_MODE_APPEND, m_connection.root(), property, XCB_ATOM_CARDINAL,
                        32, 0, nullptr);
    xcb_delete_property(on, m_connection.root(), property);
}

xcb_window_t X11WindowManager::rootProperty(const char *name) const
{
    const auto reply = m_connection.reply<xcb_get_property_reply_t>(
        xcb_get_property(m_connection.get(), 0, m_connection.root(), m_connection.atom(name),
                         XCB_ATOM_WINDOW, 0, 1));
    if (!reply || xcb_get_property_value_length(reply.get()) < int{sizeof(xcb_window_t)})
        return XCB_NONE;
    return *static_cast<const xcb_window_t *>(xcb_get_property_value(reply.get()));
}

} // namespace corvane
