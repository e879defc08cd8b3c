#include "platform/wayland/base/wayland_connection.h"

#include "layer_shell_generated.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <qpa/qplatformnativeinterface.h>
#include <qpa/qplatformscreen.h>

#include <wayland-client.h>

#include <algorithm>
#include <cstring>

namespace corvane {

namespace {

/// Milliseconds that a compositor may take before a panel is shown without its answer.
constexpr int patience = 2000;

/// No other compositor has it.
constexpr auto kwinsOwn = "org_kde_plasma_shell";

/// The versions up to which they are known here.
constexpr std::uint32_t layerShellVersion = 4;
constexpr std::uint32_t seatVersion = 5;

QPlatformNativeInterface *native()
{
    return QGuiApplication::platformNativeInterface();
}

/// Its later events are handled by Qt's event loop along with Qt's own.
template<typename Proxy>
void giveToQt(Proxy *proxy)
{
    if (proxy)
        wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(proxy), nullptr);
}

} // namespace

struct WaylandConnection::Listeners {
    static void global(void *data, wl_registry *registry, std::uint32_t name, const char *interface,
                       std::uint32_t version)
    {
        auto &self = *static_cast<WaylandConnection *>(data);
        const auto bind = [&](const wl_interface &wanted, std::uint32_t known) {
            return wl_registry_bind(registry, name, &wanted, std::min(version, known));
        };
        if (std::strcmp(interface, zwlr_layer_shell_v1_interface.name) == 0) {
            self.m_layerShell = static_cast<zwlr_layer_shell_v1 *>(
                bind(zwlr_layer_shell_v1_interface, layerShellVersion));
        } else if (std::strcmp(interface, kwinsOwn) == 0) {
            self.m_leavesKeyboardBehind = true;
        } else if (std::strcmp(interface, wl_seat_interface.name) == 0 && !self.m_seat) {
            self.m_seat = static_cast<wl_seat *>(bind(wl_seat_interface, seatVersion));
            wl_seat_add_listener(self.m_seat, &seat, &self);
        }
    }
    static void capabilities(void *data, wl_seat * /*seat*/, std::uint32_t capabilities)
    {
        auto &self = *static_cast<WaylandConnection *>(data);
        self.m_hasKeyboard = (capabilities & WL_SEAT_CAPABILITY_KEYBOARD) != 0;
        if (self.onKeyboardChanged)
            self.onKeyboardChanged();
    }
    static constexpr wl_registry_listener registry
        = {global, [](void *, wl_registry *, std::uint32_t) {}};
    static constexpr wl_seat_listener seat = {capabilities, [](void *, wl_seat *, const char *) {}};
};

WaylandConnection::WaylandConnection()
    : m_display(
        native() ? static_cast<wl_display *>(native()->nativeResourceForIntegration("wl_display"))
                 : nullptr)
{
    if (!m_display)
        return;
    wl_event_queue *const queue = wl_display_create_queue(m_display);
    auto *const wrapper = static_cast<wl_display *>(wl_proxy_create_wrapper(m_display));
    wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(wrapper), queue);
    wl_registry *const registry = wl_display_get_registry(wrapper);
    wl_proxy_wrapper_destroy(wrapper);
    wl_registry_add_listener(registry, &Listeners::registry, this);
    // What there is, and then what has been told of it.
    wl_display_roundtrip_queue(m_display, queue);
    wl_display_roundtrip_queue(m_display, queue);
    giveToQt(m_layerShell);
    giveToQt(m_seat);
    wl_registry_destroy(registry);
    // What came meanwhile.
    wl_display_dispatch_queue_pending(m_display, queue);
    wl_event_queue_destroy(queue);
}

WaylandConnection::~WaylandConnection()
{
    if (m_layerShell
        && zwlr_layer_shell_v1_get_version(m_layerShell)
            >= ZWLR_LAYER_SHELL_V1_DESTROY_SINCE_VERSION)
        zwlr_layer_shell_v1_destroy(m_layerShell);
    else if (m_layerShell)
        wl_proxy_destroy(reinterpret_cast<wl_proxy *>(m_layerShell));
    if (m_seat && wl_seat_get_version(m_seat) >= WL_SEAT_RELEASE_SINCE_VERSION)
        wl_seat_release(m_seat);
    else if (m_seat)
        wl_seat_destroy(m_seat);
}

wl_surface *WaylandConnection::surfaceOf(QWindow &window)
{
    if (!window.handle() || !native())
        return nullptr;
    return static_cast<wl_surface *>(native()->nativeResourceForWindow("surface", &window));
}

wl_output *WaylandConnection::outputOf(QScreen *screen)
{
    // Qt takes the one that it makes where there are none for one of the compositor's.
    const bool isReal = screen && screen->handle() && !screen->handle()->isPlaceholder();
    if (!isReal || !native())
        return nullptr;
    return static_cast<wl_output *>(native()->nativeResourceForScreen("output", screen));
}

bool WaylandConnection::waitOn(wl_event_queue *queue, const std::function<bool()> &isDone) const
{
    const QDeadlineTimer deadline(patience);
    while (!isDone()) {
        if (deadline.hasExpired() || wl_display_roundtrip_queue(m_display, queue) < 0)
            return false;
    }
    return true;
}

void WaylandConnection::flush() const
{
    if (m_display)
        wl_display_flush(m_display);
}

} // namespace corvane
