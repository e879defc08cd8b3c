#pragma once

#include "e2e/desktop/x_server.h"

#include <QPoint>

namespace corvane::e2e {

/// The user's hands: pointer and keyboard, through the X test extension.
///
/// Events come from the server's own devices, so that grabs, raw events and input shapes work as
/// for a real user.
class Hands {
public:
    explicit Hands(XServer &server)
        : m_server(server)
    {
    }

    void moveTo(QPoint point);
    void moveBy(QPoint step);
    /// Moves in steps with pauses, as a hand does. Programs begin a drag only after more than one
    /// step.
    void glideTo(QPoint point);
    void press(uint8_t button = 1);
    void release(uint8_t button = 1);
    void click(QPoint point, uint8_t button = 1);
    void doubleClick(QPoint point);
    /// Presses at `from` and moves far enough for a drag to begin.
    void beginDrag(QPoint from, QPoint towards);
    /// Moves a little around the place, so that a target has time to answer.
    void aim(QPoint point);

    /// Types a key by its symbol, for instance XK_space, with the modifiers held.
    void key(uint32_t symbol, std::initializer_list<uint32_t> modifiers = {});
    void keyDown(uint32_t symbol);
    void keyUp(uint32_t symbol);
    /// By the key's position on the keyboard, whatever the layout.
    void keyDownAt(xcb_keycode_t place);
    void keyUpAt(xcb_keycode_t place);

    /// Turns the wheel; XTEST has wheels as buttons 4 to 7.
    enum class Wheel : uint8_t { Up = 4, Down = 5, Left = 6, Right = 7 };
    void turn(Wheel direction, int notches = 1);

private:
    void fake(uint8_t type, uint8_t detail, QPoint point = {});
    uint8_t keyCode(uint32_t symbol);

    XServer &m_server;
};

namespace keys {
inline constexpr uint32_t backSpace = 0xff08, escape = 0xff1b, enter = 0xff0d, home = 0xff50,
                          left = 0xff51, up = 0xff52, right = 0xff53, down = 0xff54, tab = 0xff09,
                          shift = 0xffe1, control = 0xffe3, alt = 0xffe9, super = 0xffeb,
                          forwardDelete = 0xffff, space = 0x20;
} // namespace keys

} // namespace corvane::e2e
