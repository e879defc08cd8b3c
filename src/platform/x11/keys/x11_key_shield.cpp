#include "platform/x11/keys/x11_key_shield.h"

#include <xcb/xinput.h>

#include <algorithm>

namespace corvane {

namespace {

/// Shift, Lock, Control and Mod1 to Mod5: an event's state also tells buttons and layouts.
constexpr std::uint16_t modifierBits = 0xff;

} // namespace

X11KeyShield::X11KeyShield(X11Connection &connection)
    : m_connection(connection)
    , m_listener(
          connection.addListener([this](const xcb_generic_event_t &event) { handle(event); }))
{
}

X11KeyShield::~X11KeyShield()
{
    letGo();
}

void X11KeyShield::hold(xcb_keycode_t key, std::uint16_t modifiers)
{
    letGo();
    if (key == 0 || !m_connection.hasXInput())
        return;
    m_key = key;
    m_modifiers = modifiers & modifierBits;
    // If another program has grabbed the combination, the repeats go there.
    const auto request
        = xcb_grab_key_checked(m_connection.get(), 0, m_connection.root(), m_modifiers, m_key,
                               XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    xcb_discard_reply(m_connection.get(), request.sequence);
    listen(true);
    // Asked after the events were selected: either its release will be reported, or it is up
    // already.
    if (!isDown(m_key))
        letGo();
}

void X11KeyShield::letGo()
{
    if (m_key == 0)
        return;
    xcb_ungrab_key(m_connection.get(), m_key, m_connection.root(), m_modifiers);
    listen(false);
    m_key = 0;
}

// Raw events, because they do not include repeats and come whichever window has the keyboard. For
// all devices rather than the master devices, whose selection on this connection others set.
void X11KeyShield::listen(bool wanted)
{
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } request = {{XCB_INPUT_DEVICE_ALL, 1}, 0};
    if (wanted)
        request.mask = XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE;
    xcb_input_xi_select_events(m_connection.get(), m_connection.root(), 1, &request.head);
    m_connection.flush();
}

bool X11KeyShield::isDown(xcb_keycode_t key) const
{
    constexpr int bitsPerByte = 8;
    const auto reply
        = m_connection.reply<xcb_query_keymap_reply_t>(xcb_query_keymap(m_connection.get()));
    // A silent server has not said that it was released.
    if (!reply)
        return m_connection.isConnected();
    return (reply->keys[key / bitsPerByte] >> (key % bitsPerByte) & 1) != 0;
}

bool X11KeyShield::isAnyDown() const
{
    const auto reply
        = m_connection.reply<xcb_query_keymap_reply_t>(xcb_query_keymap(m_connection.get()));
    return reply && std::ranges::any_of(reply->keys, [](std::uint8_t keys) { return keys != 0; });
}

void X11KeyShield::handle(const xcb_generic_event_t &event)
{
    if (m_key == 0 || (event.response_type & 0x7f) != XCB_GE_GENERIC)
        return;
    const auto &raw = reinterpret_cast<const xcb_input_raw_key_press_event_t &>(event);
    if (raw.extension == m_connection.xinputOpcode() && raw.event_type == XCB_INPUT_RAW_KEY_RELEASE
        && raw.detail == m_key)
        letGo();
}

} // namespace corvane
