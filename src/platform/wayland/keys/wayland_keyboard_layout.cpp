#include "platform/wayland/keys/wayland_keyboard_layout.h"

#include "platform/desktop/virtual_key_codes.h"
#include "platform/wayland/base/wayland_connection.h"

#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>

#include <cstring>
#include <utility>

namespace corvane {

struct WaylandKeyboardLayout::Listener {
    static void keymap(void *data, wl_keyboard * /*keyboard*/, std::uint32_t format,
                       std::int32_t file, std::uint32_t size)
    {
        auto &self = *static_cast<WaylandKeyboardLayout *>(data);
        void *const text = format == WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1
            ? ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0)
            : MAP_FAILED;
        ::close(file);
        if (text == MAP_FAILED)
            return;
        self.m_keymap.reset(
            xkb_keymap_new_from_buffer(self.m_context.get(), static_cast<const char *>(text),
                                       // The null byte at its end is no part of it.
                                       ::strnlen(static_cast<const char *>(text), size),
                                       XKB_KEYMAP_FORMAT_TEXT_V1, XKB_KEYMAP_COMPILE_NO_FLAGS));
        ::munmap(text, size);
    }
    static void modifiers(void *data, wl_keyboard * /*keyboard*/, std::uint32_t /*serial*/,
                          std::uint32_t /*down*/, std::uint32_t /*latched*/,
                          std::uint32_t /*locked*/, std::uint32_t layout)
    {
        static_cast<WaylandKeyboardLayout *>(data)->m_layout = layout;
    }
    // Qt hears of the keys themselves.
    static constexpr wl_keyboard_listener all = {
        keymap,
        [](void *, wl_keyboard *, std::uint32_t, wl_surface *, wl_array *) {},
        [](void *, wl_keyboard *, std::uint32_t, wl_surface *) {},
        [](void *, wl_keyboard *, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t) {},
        modifiers,
        [](void *, wl_keyboard *, std::int32_t, std::int32_t) {},
    };
};

WaylandKeyboardLayout::WaylandKeyboardLayout(WaylandConnection &connection)
    : m_connection(connection)
    , m_context(xkb_context_new(XKB_CONTEXT_NO_FLAGS))
{
    m_connection.onKeyboardChanged = [this] { follow(); };
    follow();
}

WaylandKeyboardLayout::~WaylandKeyboardLayout()
{
    m_connection.onKeyboardChanged = nullptr;
    release();
}

void WaylandKeyboardLayout::follow()
{
    release();
    wl_seat *const seat = m_connection.seatWithKeyboard();
    if (!seat || !m_context)
        return;
    m_keyboard = wl_seat_get_keyboard(seat);
    wl_keyboard_add_listener(m_keyboard, &Listener::all, this);
    // Waited for: hot keys are registered by what the keys type.
    wl_event_queue *const queue = wl_display_create_queue(m_connection.display());
    auto *const proxy = reinterpret_cast<wl_proxy *>(m_keyboard);
    wl_proxy_set_queue(proxy, queue);
    bool isAsked = false;
    m_connection.waitOn(queue, [&] { return std::exchange(isAsked, true); });
    wl_proxy_set_queue(proxy, nullptr);
    // What has come since then.
    wl_display_dispatch_queue_pending(m_connection.display(), queue);
    wl_event_queue_destroy(queue);
}

void WaylandKeyboardLayout::release()
{
    if (!m_keyboard)
        return;
    if (wl_keyboard_get_version(m_keyboard) >= WL_KEYBOARD_RELEASE_SINCE_VERSION)
        wl_keyboard_release(m_keyboard);
    else
        wl_keyboard_destroy(m_keyboard);
    m_keyboard = nullptr;
}

QString WaylandKeyboardLayout::charactersOf(KeyPosition position) const
{
    const auto native = virtual_key_codes::toNative(position);
    if (!native || !m_keymap)
        return {};
    return xkb_keys::textOf(m_keymap.get(), static_cast<xkb_keycode_t>(*native), m_layout);
}

KeyName WaylandKeyboardLayout::nameOf(KeyPosition position, bool isShifted) const
{
    const auto native = virtual_key_codes::toNative(position);
    if (!native || !m_keymap)
        return {};
    return xkb_keys::nameOf(m_keymap.get(), static_cast<xkb_keycode_t>(*native), m_layout,
                            isShifted);
}

} // namespace corvane
