#include "platform/wayland/drags/pointer_presses.h"

#include <wayland-client.h>

#include <algorithm>

namespace corvane {

struct PointerPresses::Listeners {
    static void capabilities(void *data, wl_seat *seat, std::uint32_t capabilities)
    {
        auto &self = *static_cast<PointerPresses *>(data);
        const bool hasPointer = (capabilities & WL_SEAT_CAPABILITY_POINTER) != 0;
        if (hasPointer && !self.m_pointer) {
            self.m_pointer = wl_seat_get_pointer(seat);
            wl_pointer_add_listener(self.m_pointer, &pointer, data);
        } else if (!hasPointer && self.m_pointer) {
            self.forget();
        }
    }
    static void enter(void *data, wl_pointer *, std::uint32_t, wl_surface *, wl_fixed_t, wl_fixed_t)
    {
        auto &self = *static_cast<PointerPresses *>(data);
        self.m_down = 0;
        self.m_serial.reset();
        self.tell();
    }
    static void leave(void *data, wl_pointer *, std::uint32_t, wl_surface *)
    {
        auto &self = *static_cast<PointerPresses *>(data);
        self.m_down = 0;
        self.m_serial.reset();
    }
    static void motion(void *, wl_pointer *, std::uint32_t, wl_fixed_t, wl_fixed_t) { }
    static void button(void *data, wl_pointer *, std::uint32_t serial, std::uint32_t, std::uint32_t,
                       std::uint32_t state)
    {
        auto &self = *static_cast<PointerPresses *>(data);
        if (state == WL_POINTER_BUTTON_STATE_PRESSED && self.m_down++ == 0)
            self.m_serial = serial;
        else if (state == WL_POINTER_BUTTON_STATE_RELEASED
                 && (self.m_down = std::max(0, self.m_down - 1)) == 0)
            self.m_serial.reset();
        self.tell();
    }
    static void axis(void *, wl_pointer *, std::uint32_t, std::uint32_t, wl_fixed_t) { }

    static constexpr wl_seat_listener seat = {capabilities, [](void *, wl_seat *, const char *) {}};
    // The version that is asked for has no other events.
    static constexpr wl_pointer_listener pointer = [] {
        wl_pointer_listener listener = {};
        listener.enter = enter;
        listener.leave = leave;
        listener.motion = motion;
        listener.button = button;
        listener.axis = axis;
        return listener;
    }();
};

PointerPresses::PointerPresses(wl_seat *seat)
    : m_seat(seat)
{
    if (m_seat)
        wl_seat_add_listener(m_seat, &Listeners::seat, this);
}

PointerPresses::~PointerPresses()
{
    forget();
    if (m_seat)
        wl_seat_destroy(m_seat);
}

void PointerPresses::forget()
{
    m_down = 0;
    m_serial.reset();
    if (!m_pointer)
        return;
    if (wl_pointer_get_version(m_pointer) >= WL_POINTER_RELEASE_SINCE_VERSION)
        wl_pointer_release(m_pointer);
    else
        wl_pointer_destroy(m_pointer);
    m_pointer = nullptr;
}

void PointerPresses::tell() const
{
    if (const auto told = onPointer)
        told();
}

} // namespace corvane
