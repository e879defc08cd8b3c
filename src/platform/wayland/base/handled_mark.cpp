#include "platform/wayland/base/handled_mark.h"

#include <wayland-client.h>

#include <cstdint>
#include <utility>

namespace corvane {

struct HandledMark::Listener {
    static void done(void *data, wl_callback * /*callback*/, std::uint32_t /*time*/)
    {
        auto &self = *static_cast<HandledMark *>(data);
        self.forget();
        const auto tell = std::move(self.m_onHandled);
        tell();
    }
    static constexpr wl_callback_listener all = {done};
};

HandledMark::HandledMark(wl_display *display, std::function<void()> onHandled)
    : m_onHandled(std::move(onHandled))
{
    if (!display)
        return;
    m_callback = wl_display_sync(display);
    wl_callback_add_listener(m_callback, &Listener::all, this);
    wl_display_flush(display);
}

HandledMark::~HandledMark()
{
    forget();
}

void HandledMark::forget()
{
    if (wl_callback *const callback = std::exchange(m_callback, nullptr))
        wl_callback_destroy(callback);
}

} // namespace corvane
