#include "platform/wayland/windows/layer_surface.h"

#include "layer_shell_generated.h"
#include "platform/wayland/base/wayland_connection.h"

#include <QWindow>

#include <wayland-client.h>

#include <algorithm>

namespace corvane {

namespace {

/// What users name in their compositor's rules for it.
constexpr auto label = "corvane";
/// For KWin it is what kind of window it is. One of no kind that it knows would be among those that
/// KWin 6 looks through for who gets the keyboard next, also when it does not want it any more.
constexpr auto kindForKWin = "on-screen-display";
/// KWin 5 has an older one, and gives the keyboard back without that.
constexpr std::uint32_t versionOfKWin6 = 4;

const char *labelFor(const WaylandConnection &connection)
{
    const bool isKWin6 = connection.leavesKeyboardBehind()
        && zwlr_layer_shell_v1_get_version(connection.layerShell()) >= versionOfKWin6;
    return isKWin6 ? kindForKWin : label;
}

/// Bars that keep space free for themselves do not push it down.
constexpr std::int32_t atTheVeryEdge = -1;

} // namespace

struct LayerSurface::Listener {
    static void configure(void *data, zwlr_layer_surface_v1 *surface, std::uint32_t serial,
                          std::uint32_t /*width*/, std::uint32_t /*height*/)
    {
        static_cast<LayerSurface *>(data)->m_isConfigured = true;
        zwlr_layer_surface_v1_ack_configure(surface, serial);
    }
    static void closed(void *data, zwlr_layer_surface_v1 * /*surface*/)
    {
        auto &self = *static_cast<LayerSurface *>(data);
        self.m_isClosed = true;
        // A copy: it may destroy the surface, and itself with it.
        if (const auto tell = self.onClosed; tell && !self.m_isBeingAnnounced)
            tell();
    }
    static constexpr zwlr_layer_surface_v1_listener all = {configure, closed};
};

LayerSurface::LayerSurface(WaylandConnection &connection, QWindow &window, const Place &place)
    : m_connection(connection)
    , m_surface(WaylandConnection::surfaceOf(window))
{
    wl_output *const output = WaylandConnection::outputOf(place.screen);
    if (!m_surface || !output || !connection.layerShell())
        return;
    m_layerSurface = zwlr_layer_shell_v1_get_layer_surface(
        connection.layerShell(), m_surface, output, static_cast<std::uint32_t>(place.layer),
        labelFor(connection));
    zwlr_layer_surface_v1_add_listener(m_layerSurface, &Listener::all, this);
    zwlr_layer_surface_v1_set_anchor(
        m_layerSurface, ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT);
    zwlr_layer_surface_v1_set_exclusive_zone(m_layerSurface, atTheVeryEdge);
    setArea(place.area);
    setKeyboard(Keyboard::Never);
}

LayerSurface::~LayerSurface()
{
    if (!m_layerSurface)
        return;
    zwlr_layer_surface_v1_destroy(m_layerSurface);
    m_connection.flush();
}

bool LayerSurface::announce()
{
    if (!m_layerSurface)
        return false;
    // On a queue of its own meanwhile: what comes for Qt is handled where Qt expects it.
    wl_event_queue *const queue = wl_display_create_queue(m_connection.display());
    auto *const proxy = reinterpret_cast<wl_proxy *>(m_layerSurface);
    wl_proxy_set_queue(proxy, queue);
    m_isBeingAnnounced = true;
    commit();
    const bool isAnswered
        = m_connection.waitOn(queue, [this] { return m_isConfigured || m_isClosed; });
    wl_proxy_set_queue(proxy, nullptr);
    // What has come since then.
    wl_display_dispatch_queue_pending(m_connection.display(), queue);
    m_isBeingAnnounced = false;
    wl_event_queue_destroy(queue);
    return isAnswered && !m_isClosed;
}

void LayerSurface::setArea(const QRect &area)
{
    if (!m_layerSurface)
        return;
    // A size of nothing would mean as large as the screen.
    zwlr_layer_surface_v1_set_size(m_layerSurface,
                                   static_cast<std::uint32_t>(std::max(1, area.width())),
                                   static_cast<std::uint32_t>(std::max(1, area.height())));
    zwlr_layer_surface_v1_set_margin(m_layerSurface, area.top(), 0, 0, area.left());
}

void LayerSurface::setKeyboard(Keyboard keyboard)
{
    if (m_layerSurface)
        zwlr_layer_surface_v1_set_keyboard_interactivity(m_layerSurface,
                                                         static_cast<std::uint32_t>(keyboard));
}

void LayerSurface::commit()
{
    if (!m_layerSurface)
        return;
    wl_surface_commit(m_surface);
    m_connection.flush();
}

} // namespace corvane
