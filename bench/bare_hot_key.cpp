// The least that a hot key can do: a grab on the root window, and an empty window that is mapped on
// its press and unmapped on the next.

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>

int main()
{
    constexpr xcb_keycode_t positionOfD = 40;
    xcb_connection_t *const connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) != 0)
        return 1;
    const xcb_screen_t *const screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_window_t window = xcb_generate_id(connection);
    const std::uint32_t isUnmanaged = 1;
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 610, 0, 292, 56, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT,
                      &isUnmanaged);
    xcb_grab_key(connection, 0, screen->root, XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_4, positionOfD,
                 XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    xcb_flush(connection);
    bool isShown = false;
    while (auto *event = xcb_wait_for_event(connection)) {
        if ((event->response_type & 0x7f) == XCB_KEY_PRESS) {
            isShown = !isShown;
            if (isShown)
                xcb_map_window(connection, window);
            else
                xcb_unmap_window(connection, window);
            xcb_flush(connection);
        }
        std::free(event);
    }
    xcb_disconnect(connection);
}
