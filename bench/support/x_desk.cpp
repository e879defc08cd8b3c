#include "support/x_desk.h"

#include "support/table.h"

#include <poll.h>
#include <xcb/xtest.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace corvane::bench {

namespace {

struct Free {
    void operator()(void *memory) const { std::free(memory); }
};
template<typename Type>
using Reply = std::unique_ptr<Type, Free>;

constexpr std::uint32_t white = 0xffffff;

/// Key codes, in the order in which they are pressed.
constexpr std::array<std::uint8_t, 3> hotKey = {133, 50, 40};

} // namespace

XDesk::XDesk()
    : m_connection(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(m_connection) != 0)
        throw std::runtime_error("no X server");
    m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
}

XDesk::~XDesk()
{
    xcb_disconnect(m_connection);
}

xcb_atom_t XDesk::atom(const std::string &name)
{
    const auto length = static_cast<std::uint16_t>(name.size());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        m_connection, xcb_intern_atom(m_connection, 0, length, name.c_str()), nullptr));
    return reply->atom;
}

bool XDesk::isComposited()
{
    const Reply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        m_connection, xcb_get_selection_owner(m_connection, atom("_NET_WM_CM_S0")), nullptr));
    return owner->owner != XCB_NONE;
}

void XDesk::sync()
{
    const Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
}

void XDesk::fake(std::uint8_t type, std::uint8_t detail, int x, int y)
{
    xcb_test_fake_input(m_connection, type, detail, XCB_CURRENT_TIME, m_screen->root,
                        static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
    xcb_flush(m_connection);
}

void XDesk::moveTo(int x, int y)
{
    fake(XCB_MOTION_NOTIFY, 0, x, y);
}

void XDesk::moveBy(int x, int y)
{
    fake(XCB_MOTION_NOTIFY, 1, x, y);
}

void XDesk::press()
{
    fake(XCB_BUTTON_PRESS, 1);
}

void XDesk::release()
{
    fake(XCB_BUTTON_RELEASE, 1);
}

void XDesk::pressHotKey()
{
    for (const std::uint8_t key : hotKey)
        fake(XCB_KEY_PRESS, key);
}

void XDesk::releaseHotKey()
{
    for (auto key = hotKey.rbegin(); key != hotKey.rend(); ++key)
        fake(XCB_KEY_RELEASE, *key);
}

void XDesk::coverWithWhite()
{
    m_cover = xcb_generate_id(m_connection);
    const std::uint32_t values[] = {white, 1, XCB_EVENT_MASK_BUTTON_PRESS};
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_cover, m_screen->root, 0, 0, width(),
                      height(), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    xcb_map_window(m_connection, m_cover);
    sync();
    for (const double start = now(); showsSomething();) {
        if (now() - start > 5000)
            throw std::runtime_error("the desktop does not turn white");
    }
}

void XDesk::takeDragSelection()
{
    xcb_set_selection_owner(m_connection, m_cover, atom("XdndSelection"), XCB_CURRENT_TIME);
    sync();
}

void XDesk::watchWindows()
{
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection, m_screen->root, XCB_CW_EVENT_MASK, &mask);
    sync();
}

bool XDesk::waitForPanel(bool isMapped)
{
    const double deadline = now() + 2000;
    while (now() < deadline) {
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
            const int type = event->response_type & 0x7f;
            const auto *map = reinterpret_cast<const xcb_map_notify_event_t *>(event.get());
            if (isMapped && type == XCB_MAP_NOTIFY && map->override_redirect != 0
                && map->window != m_cover)
                return true;
            if (!isMapped && type == XCB_UNMAP_NOTIFY)
                return true;
        }
        pollfd descriptor = {xcb_get_file_descriptor(m_connection), POLLIN, 0};
        ::poll(&descriptor, 1, 50);
    }
    return false;
}

bool XDesk::showsSomething()
{
    constexpr std::uint16_t columns = 16;
    const auto left = static_cast<std::int16_t>((width() - columns) / 2);
    const Reply<xcb_get_image_reply_t> image(
        xcb_get_image_reply(m_connection,
                            xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_screen->root,
                                          left, 0, columns, 1, ~0U),
                            nullptr));
    if (!image)
        return false;
    const auto *pixels = reinterpret_cast<const std::uint32_t *>(xcb_get_image_data(image.get()));
    for (int i = 0; i < columns; ++i) {
        if ((pixels[i] & white) != white)
            return true;
    }
    return false;
}

} // namespace corvane::bench
