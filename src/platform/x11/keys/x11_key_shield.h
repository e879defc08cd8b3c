#pragma once

#include "platform/x11/base/x11_connection.h"

#include <cstdint>

namespace corvane {

/// When the keyboard is given to another program while a key is held down, this keeps the key's
/// repeats from that program until the key is released.
///
/// It grabs the key with the modifiers that it was pressed with. The first repeat activates the
/// grab, which then covers the whole keyboard: until the key is released other keys are swallowed,
/// too. Before that, and if the key does not repeat, other keys are not affected. The connection
/// must outlive it.
class X11KeyShield {
public:
    explicit X11KeyShield(X11Connection &connection);
    ~X11KeyShield();
    X11KeyShield(const X11KeyShield &) = delete;
    X11KeyShield &operator=(const X11KeyShield &) = delete;

    /// Begins to swallow this key's repeats, instead of an earlier key's. Does nothing if the key
    /// is not down any more. The combination must not be grabbed by others on this connection; a
    /// key that was delivered to a window is not.
    void hold(xcb_keycode_t key, std::uint16_t modifiers);
    bool isDown(xcb_keycode_t key) const;
    bool isAnyDown() const;

private:
    void handle(const xcb_generic_event_t &event);
    void letGo();
    void listen(bool wanted);

    X11Connection &m_connection;
    Subscription m_listener;
    /// 0 while there is none.
    xcb_keycode_t m_key = 0;
    std::uint16_t m_modifiers = 0;
};

} // namespace corvane
