#pragma once

#include "platform/x11/base/x11_connection.h"

#include <cstdint>

namespace corvane {

/// Keeps a key that is held down from acting on the program that is given the keyboard: until it is
/// released its repeats go nowhere.
///
/// A grab of that key, with the modifiers that it was pressed with. Its first repeat makes it a
/// grab of the whole keyboard, as every such grab is: from then until the key is released other
/// keys go nowhere either. Before that, and where the key does not repeat, they go where they
/// should. The connection must outlive it.
class X11KeyShield {
public:
    explicit X11KeyShield(X11Connection &connection);
    ~X11KeyShield();
    X11KeyShield(const X11KeyShield &) = delete;
    X11KeyShield &operator=(const X11KeyShield &) = delete;

    /// In place of the key before it. Does nothing if the key is not down any more. The combination
    /// must be none that is grabbed otherwise on this connection; one that came to a window is
    /// none.
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
