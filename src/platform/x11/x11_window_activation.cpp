#include "platform/x11/x11_window_activation.h"

#include "platform/x11/x11_qt.h"
#include "platform/x11/x11_reply.h"

#include <QWindow>

#include <utility>

namespace corvane {

X11WindowActivation::X11WindowActivation(X11Connection &connection)
    : m_connection(connection)
    , m_listener(
          connection.addListener([this](const xcb_generic_event_t &event) { handle(event); }))
{
}

X11WindowActivation::~X11WindowActivation()
{
    m_connection.removeListener(m_listener);
    if (m_clock != XCB_NONE)
        xcb_destroy_window(m_connection.get(), m_clock);
}

void X11WindowActivation::bringToFront(QWindow &window)
{
    const xcb_window_t native = x11_qt::nativeWindow(window);
    if (native == XCB_NONE)
        return;
    window.raise();
    m_waiting = native;
    askForTime();
}

// Qt would ask with the time of the latest event that it had, which the window manager may have
// overtaken.
void X11WindowActivation::giveKeyboard(QWindow &window)
{
    auto *const qt = x11_qt::connection();
    const xcb_window_t native = x11_qt::nativeWindow(window);
    if (!qt || native == XCB_NONE)
        return;
    x11_qt::ignoreErrors(
        xcb_set_input_focus_checked(qt, XCB_INPUT_FOCUS_PARENT, native, XCB_CURRENT_TIME));
    xcb_flush(qt);
}

void X11WindowActivation::askForTime()
{
    if (m_clock == XCB_NONE) {
        m_clock = xcb_generate_id(m_connection.get());
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_clock, m_connection.root(),
                          -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
                          XCB_CW_EVENT_MASK, &events);
    }
    // Nothing is added to it; the server tells when that happened.
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_APPEND, m_clock,
                        m_connection.atom("_NET_WM_USER_TIME"), XCB_ATOM_CARDINAL, 32, 0, nullptr);
    m_connection.flush();
}

void X11WindowActivation::handle(const xcb_generic_event_t &event)
{
    constexpr std::uint8_t sentFlag = 0x80;
    if (m_waiting == XCB_NONE || (event.response_type & ~sentFlag) != XCB_PROPERTY_NOTIFY)
        return;
    const auto &news = reinterpret_cast<const xcb_property_notify_event_t &>(event);
    if (news.window == m_clock)
        activate(std::exchange(m_waiting, XCB_NONE), news.time);
}

// On Qt's connection, behind what it asked for when it showed the window: a window manager refuses
// what it does not know yet.
void X11WindowActivation::activate(xcb_window_t window, xcb_timestamp_t time)
{
    auto *const qt = x11_qt::connection();
    if (!qt)
        return;
    x11_qt::ignoreErrors(xcb_change_property_checked(qt, XCB_PROP_MODE_REPLACE, window,
                                                     m_connection.atom("_NET_WM_USER_TIME"),
                                                     XCB_ATOM_CARDINAL, 32, 1, &time));
    if (hasWindowManager()) {
        // As a panel would: a program that asks for itself may be refused.
        constexpr std::uint32_t forTheUser = 2;
        xcb_client_message_event_t message = {};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window;
        message.type = m_connection.atom("_NET_ACTIVE_WINDOW");
        message.data.data32[0] = forTheUser;
        message.data.data32[1] = time;
        x11_qt::ignoreErrors(xcb_send_event_checked(qt, 0, m_connection.root(),
                                                    XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY
                                                        | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                                                    reinterpret_cast<const char *>(&message)));
    } else {
        x11_qt::ignoreErrors(xcb_set_input_focus_checked(qt, XCB_INPUT_FOCUS_PARENT, window, time));
    }
    xcb_flush(qt);
}

bool X11WindowActivation::hasWindowManager() const
{
    const X11Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        m_connection.get(),
        xcb_get_property(m_connection.get(), 0, m_connection.root(),
                         m_connection.atom("_NET_SUPPORTING_WM_CHECK"), XCB_ATOM_WINDOW, 0, 1),
        nullptr));
    return reply && xcb_get_property_value_length(reply.get()) > 0;
}

} // namespace corvane
