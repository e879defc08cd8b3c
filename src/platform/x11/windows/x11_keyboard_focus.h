#pragma once

#include "platform/base/callback_list.h"
#include "platform/desktop/keyboard_focus.h"
#include "platform/x11/keys/x11_key_shield.h"
#include "platform/x11/windows/x11_window_manager.h"

namespace corvane {

/// The keyboard on X11, where panels, which no window manager manages, have to set the focus
/// themselves. The connection must outlive it.
class X11KeyboardFocus : public KeyboardFocus {
public:
    explicit X11KeyboardFocus(X11Connection &connection);
    ~X11KeyboardFocus() override;
    X11KeyboardFocus(const X11KeyboardFocus &) = delete;
    X11KeyboardFocus &operator=(const X11KeyboardFocus &) = delete;

    WindowNumber focusedWindow() const override;
    Owner owner() const override;
    void giveTo(WindowNumber panel) override;
    bool giveBackTo(const Owner &owner) override;
    bool askForAnswer() override;
    void observeAnswers(std::function<void()> callback) override;
    bool isKeyDown(NativeKey key) const override
    {
        return m_keyShield.isDown(static_cast<xcb_keycode_t>(key));
    }
    bool isAnyKeyDown() const override { return m_keyShield.isAnyDown(); }
    bool isLeftButtonDown() const override;
    void swallowRepeats(NativeKey key, std::uint32_t modifiers) override
    {
        m_keyShield.hold(static_cast<xcb_keycode_t>(key), static_cast<std::uint16_t>(modifiers));
    }

protected:
    /// Has the window manager answer once it has done what it was asked for before.
    void askForSign() { m_windowManager.askForSign(m_answers); }

private:
    void handle(const xcb_generic_event_t &event);
    xcb_window_t focus() const;
    bool tryToFocus(xcb_window_t window, xcb_timestamp_t time);

    X11Connection &m_connection;
    X11WindowManager m_windowManager;
    /// What the server said last, or was told last.
    mutable xcb_window_t m_lastFocus = XCB_NONE;
    X11KeyShield m_keyShield;
    Subscription m_listener;
    /// A window that is never shown; the window manager answers `askForSign` on it.
    xcb_window_t m_answers;
    CallbackList<> m_observers;
};

} // namespace corvane
