#pragma once

#include "platform/x11/windows/x11_keyboard_focus.h"

namespace corvane {

/// The keyboard in a Wayland session, on the X server that its compositor keeps. While one of
/// Wayland's programs has the keyboard no window has it for that server, and none can be named that
/// it would go back to: newer compositors name a window of their own instead of none. But they
/// choose one, the one that was in use last, when the window that has the keyboard goes: so it is
/// given to a window of ours that then goes.
///
/// A compositor that has just moved the server's focus itself, and asked the server for nothing
/// since, takes the next change for its own, and goes on giving the keys to the program that had
/// them. So it is asked for answers, and if it then does not know of a panel's keyboard that is
/// changed again.
class XWaylandKeyboardFocus : public X11KeyboardFocus {
public:
    /// Stands for all windows of which the X server knows nothing.
    static constexpr WindowNumber somebodyElse{~std::uint64_t{0}};

    explicit XWaylandKeyboardFocus(X11Connection &connection);
    ~XWaylandKeyboardFocus() override;
    XWaylandKeyboardFocus(const XWaylandKeyboardFocus &) = delete;
    XWaylandKeyboardFocus &operator=(const XWaylandKeyboardFocus &) = delete;

    WindowNumber focusedWindow() const override;
    Owner owner() const override;
    void giveTo(WindowNumber panel) override;
    bool giveBackTo(const Owner &owner) override;

private:
    void handle(const xcb_generic_event_t &event);
    void focus(xcb_window_t window);

    X11Connection &m_connection;
    X11WindowManager m_windowManager;
    Subscription m_listener;
    /// A window that is never shown, for answers about panels that were given the keyboard.
    xcb_window_t m_questions;
    int m_awaitedAnswers = 0;
    WindowNumber m_given = WindowNumber::None;
    /// Out of sight, and shown all the time: a window that has just been shown may be gone before
    /// the compositor has heard of it.
    xcb_window_t m_goesAway;
};

} // namespace corvane
