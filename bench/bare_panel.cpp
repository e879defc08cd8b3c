// The least that can notice a drag and show a panel: it hears of the drag selection and of raw
// motion, and maps and fills a window on the first motion after the selection changed.

#include <xcb/xcb.h>
#include <xcb/xfixes.h>
#include <xcb/xinput.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace {

struct Desk {
    xcb_connection_t *connection;
    const xcb_screen_t *screen;
};

xcb_atom_t atom(const Desk &desk, const char *name)
{
    auto *reply = xcb_intern_atom_reply(
        desk.connection,
        xcb_intern_atom(desk.connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name),
        nullptr);
    const xcb_atom_t result = reply->atom;
    std::free(reply);
    return result;
}

/// Gives the number that XFixes' events begin at.
std::uint8_t listen(const Desk &desk)
{
    const auto *xfixes = xcb_get_extension_data(desk.connection, &xcb_xfixes_id);
    std::free(xcb_xfixes_query_version_reply(
        desk.connection, xcb_xfixes_query_version(desk.connection, 5, 0), nullptr));
    std::free(xcb_input_xi_query_version_reply(
        desk.connection, xcb_input_xi_query_version(desk.connection, 2, 2), nullptr));
    xcb_xfixes_select_selection_input(desk.connection, desk.screen->root,
                                      atom(desk, "XdndSelection"),
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER);
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } const request
        = {{XCB_INPUT_DEVICE_ALL_MASTER, 1},
           XCB_INPUT_XI_EVENT_MASK_RAW_MOTION | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE};
    xcb_input_xi_select_events(desk.connection, desk.screen->root, 1, &request.head);
    return xfixes->first_event;
}

/// A visual with alpha where there is one, as the shelf uses.
const xcb_visualtype_t *visual(const Desk &desk, std::uint8_t depth)
{
    for (auto depths = xcb_screen_allowed_depths_iterator(desk.screen); depths.rem > 0;
         xcb_depth_next(&depths)) {
        if (depths.data->depth == depth && depths.data->visuals_len > 0)
            return xcb_depth_visuals(depths.data);
    }
    return nullptr;
}

xcb_window_t makePanel(const Desk &desk)
{
    constexpr std::uint16_t width = 292;
    constexpr std::uint16_t height = 56;
    constexpr std::uint8_t depth = 32;
    const auto *alpha = visual(desk, depth);
    const xcb_colormap_t colormap = xcb_generate_id(desk.connection);
    xcb_create_colormap(desk.connection, XCB_COLORMAP_ALLOC_NONE, colormap, desk.screen->root,
                        alpha->visual_id);
    const xcb_window_t window = xcb_generate_id(desk.connection);
    const std::uint32_t values[] = {0, 1, colormap};
    xcb_create_window(desk.connection, depth, window, desk.screen->root,
                      static_cast<std::int16_t>((desk.screen->width_in_pixels - width) / 2), 0,
                      width, height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, alpha->visual_id,
                      XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_COLORMAP, values);
    return window;
}

void show(const Desk &desk, xcb_window_t window)
{
    const std::uint32_t above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(desk.connection, window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    xcb_map_window(desk.connection, window);
    const xcb_gcontext_t context = xcb_generate_id(desk.connection);
    const std::uint32_t black = 0xff000000;
    xcb_create_gc(desk.connection, context, window, XCB_GC_FOREGROUND, &black);
    const xcb_rectangle_t everything = {0, 0, 292, 56};
    xcb_poly_fill_rectangle(desk.connection, window, context, 1, &everything);
    xcb_free_gc(desk.connection, context);
    xcb_flush(desk.connection);
}

} // namespace

int main()
{
    xcb_connection_t *const connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) != 0)
        return 1;
    const Desk desk{connection, xcb_setup_roots_iterator(xcb_get_setup(connection)).data};
    const xcb_window_t panel = makePanel(desk);
    const std::uint8_t firstXFixesEvent = listen(desk);
    xcb_flush(connection);
    bool hasChanged = false;
    while (auto *event = xcb_wait_for_event(connection)) {
        const int type = event->response_type & 0x7f;
        const auto *raw = reinterpret_cast<const xcb_ge_generic_event_t *>(event);
        if (type == firstXFixesEvent + int{XCB_XFIXES_SELECTION_NOTIFY}) {
            hasChanged = true;
        } else if (type == XCB_GE_GENERIC && raw->event_type == XCB_INPUT_RAW_MOTION
                   && std::exchange(hasChanged, false)) {
            show(desk, panel);
        } else if (type == XCB_GE_GENERIC && raw->event_type == XCB_INPUT_RAW_BUTTON_RELEASE) {
            xcb_unmap_window(connection, panel);
            xcb_flush(connection);
        }
        std::free(event);
    }
    xcb_disconnect(connection);
}
