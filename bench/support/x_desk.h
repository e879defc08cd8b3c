#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace corvane::bench {

/// The X server as a user has it: moves the pointer, presses keys, and looks at the screen.
class XDesk {
public:
    XDesk();
    XDesk(const XDesk &) = delete;
    XDesk &operator=(const XDesk &) = delete;
    ~XDesk();

    std::uint16_t width() const { return m_screen->width_in_pixels; }
    std::uint16_t height() const { return m_screen->height_in_pixels; }
    bool isComposited();

    void moveTo(int x, int y);
    /// Moves the pointer by a step, as a mouse does.
    void moveBy(int x, int y);
    void press();
    void release();
    /// Presses Super, Shift and D, the default shortcut of the shelf.
    void pressHotKey();
    void releaseHotKey();
    /// Covers everything with a white window of ours.
    void coverWithWhite();
    /// Takes the drag selection, as the source of a drag does.
    void takeDragSelection();

    /// Selects events of windows that are mapped and unmapped.
    void watchWindows();
    /// Waits for the next unmanaged window to be mapped (or unmapped); false after two seconds.
    bool waitForPanel(bool isMapped);
    /// Whether there is anything but white at the middle of the top edge.
    bool showsSomething();
    /// Waits until the server has handled all requests.
    void sync();

private:
    xcb_atom_t atom(const std::string &name);
    void fake(std::uint8_t type, std::uint8_t detail, int x = 0, int y = 0);

    xcb_connection_t *m_connection;
    xcb_screen_t *m_screen = nullptr;
    xcb_window_t m_cover = XCB_NONE;
};

} // namespace corvane::bench
