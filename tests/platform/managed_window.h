#pragma once

#include "platform/display.h"

#include <array>
#include <cstdlib>

namespace corvane::test {

/// An ordinary window of another program, managed and with the focus.
class ManagedWindow {
public:
    explicit ManagedWindow(const QRect &frame)
        : m_window(xcb_generate_id(m_server.connection()))
    {
        const std::array<std::uint32_t, 2> values = {0x336633, XCB_EVENT_MASK_BUTTON_PRESS};
        xcb_create_window(m_server.connection(), XCB_COPY_FROM_PARENT, m_window, m_server.root(), 0,
                          0, 100, 100, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                          XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values.data());
        xcb_map_window(m_server.connection(), m_window);
        xcb_flush(m_server.connection());
        eventually([&] { return m_server.activeWindow() == m_window; });
        resize(frame);
    }
    ~ManagedWindow()
    {
        xcb_destroy_window(m_server.connection(), m_window);
        xcb_flush(m_server.connection());
    }
    xcb_window_t id() const { return m_window; }
    /// Done by the window manager, after all that it was asked before.
    void resize(const QRect &frame)
    {
        m_server.moveResize(m_window, frame);
        eventually([&] { return m_server.facts(m_window)->frame.size() == frame.size(); });
    }
    int clicks()
    {
        while (xcb_generic_event_t *event = xcb_poll_for_event(m_server.connection())) {
            m_clicks += (event->response_type & 0x7f) == XCB_BUTTON_PRESS ? 1 : 0;
            std::free(event);
        }
        return m_clicks;
    }

private:
    e2e::XServer m_server{qgetenv("DISPLAY")};
    xcb_window_t m_window;
    int m_clicks = 0;
};

} // namespace corvane::test
