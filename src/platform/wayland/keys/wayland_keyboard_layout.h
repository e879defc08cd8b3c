#pragma once

#include "platform/desktop/keyboard_layout.h"
#include "platform/xkb/xkb_keys.h"

struct wl_keyboard;

namespace corvane {

class WaylandConnection;

/// The layout as the compositor describes it; which one of several is in use it tells while a
/// window of ours has the keyboard. It is known as soon as this is made, if there is a keyboard.
/// The connection must outlive it.
class WaylandKeyboardLayout : public KeyboardLayout {
public:
    explicit WaylandKeyboardLayout(WaylandConnection &connection);
    ~WaylandKeyboardLayout() override;
    WaylandKeyboardLayout(const WaylandKeyboardLayout &) = delete;
    WaylandKeyboardLayout &operator=(const WaylandKeyboardLayout &) = delete;

    QString charactersOf(KeyPosition position) const override;
    /// What the key is called in the layout, alone or with Shift.
    KeyName nameOf(KeyPosition position, bool isShifted) const;
    bool changesKeys(KeySymbol symbol) const override { return xkb_keys::changesKeys(symbol); }

private:
    struct Listener;

    void follow();
    void release();

    WaylandConnection &m_connection;
    wl_keyboard *m_keyboard = nullptr;
    xkb_keys::Context m_context;
    xkb_keys::Keymap m_keymap;
    xkb_layout_index_t m_layout = 0;
};

} // namespace corvane
