#include "platform/wayland/drags/drop_catcher.h"

#include "layer_shell_generated.h"
#include "platform/system/file_descriptor.h"
#include "platform/wayland/drags/catcher_services.h"
#include "platform/wayland/windows/layer_panel_surface.h"

#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>

#include <utility>

namespace corvane {

namespace {

/// What users name in their compositor's rules for it.
constexpr auto labelForDrops = "corvane-drops";
constexpr std::int32_t bytesPerPixel = 4;

} // namespace

struct DropCatcher::Listener {
    static void configure(void *data, zwlr_layer_surface_v1 *surface, std::uint32_t serial,
                          std::uint32_t /*width*/, std::uint32_t /*height*/)
    {
        zwlr_layer_surface_v1_ack_configure(surface, serial);
        static_cast<DropCatcher *>(data)->configured();
    }
    // It catches nothing any more, and goes away with the drag.
    static void closed(void * /*data*/, zwlr_layer_surface_v1 * /*surface*/) { }
    static constexpr zwlr_layer_surface_v1_listener all = {configure, closed};
};

DropCatcher::DropCatcher(CatcherServices &services, LayerPanelSurface &panels, QWindow &window)
    : m_services(services)
    , m_panels(panels)
    , m_window(&window)
    , m_screen(panels.screenOf(window))
    , m_area(panels.spaceOf(window))
{
    if (!services.areAll() || !makeBuffer())
        return;
    m_surface = wl_compositor_create_surface(services.compositor);
    m_layerSurface = zwlr_layer_shell_v1_get_layer_surface(
        services.layerShell, m_surface, m_screen ? services.outputOf(*m_screen) : nullptr,
        ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, labelForDrops);
    zwlr_layer_surface_v1_add_listener(m_layerSurface, &Listener::all, this);
    zwlr_layer_surface_v1_set_anchor(
        m_layerSurface, ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT);
    // Where the panel is, whatever bars keep free for themselves.
    zwlr_layer_surface_v1_set_exclusive_zone(m_layerSurface, -1);
    zwlr_layer_surface_v1_set_size(m_layerSurface, static_cast<std::uint32_t>(m_area.width()),
                                   static_cast<std::uint32_t>(m_area.height()));
    zwlr_layer_surface_v1_set_margin(m_layerSurface, m_area.top(), 0, 0, m_area.left());
    wl_surface_commit(m_surface);
    services.connection.flush();
}

DropCatcher::~DropCatcher()
{
    if (m_window)
        m_panels.setCovered(*m_window, false);
    if (m_layerSurface)
        zwlr_layer_surface_v1_destroy(m_layerSurface);
    if (m_surface)
        wl_surface_destroy(m_surface);
    if (m_buffer)
        wl_buffer_destroy(m_buffer);
    m_services.connection.flush();
}

/// All of it transparent, one pixel a point.
bool DropCatcher::makeBuffer()
{
    const std::int32_t stride = m_area.width() * bytesPerPixel;
    const std::int32_t size = stride * m_area.height();
    const FileDescriptor file(::memfd_create("corvane-drops", MFD_CLOEXEC));
    if (size <= 0 || !file.isOpen() || ::ftruncate(file.number(), size) != 0)
        return false;
    wl_shm_pool *const pool = wl_shm_create_pool(m_services.shm, file.number(), size);
    m_buffer = wl_shm_pool_create_buffer(pool, 0, m_area.width(), m_area.height(), stride,
                                         WL_SHM_FORMAT_ARGB8888);
    wl_shm_pool_destroy(pool);
    return true;
}

bool DropCatcher::isInPlace() const
{
    return m_window && m_window->isVisible() && m_panels.spaceOf(*m_window) == m_area
        && m_panels.screenOf(*m_window) == m_screen;
}

void DropCatcher::configured()
{
    m_isConfigured = true;
    wl_surface_attach(m_surface, m_buffer, 0, 0);
    wl_surface_damage(m_surface, 0, 0, m_area.width(), m_area.height());
    m_region.reset();
    follow();
    wl_surface_commit(m_surface);
    m_services.connection.flush();
    if (m_window)
        m_panels.setCovered(*m_window, true);
}

void DropCatcher::follow()
{
    if (!m_isConfigured || !m_window)
        return;
    const QRegion region = m_panels.inputRegionOf(*m_window);
    if (std::exchange(m_region, region) != region)
        setInputRegion(region);
}

void DropCatcher::stepAside()
{
    if (m_window)
        m_panels.setCovered(*m_window, false);
    m_window.clear();
    if (m_surface)
        setInputRegion({});
}

void DropCatcher::setInputRegion(const QRegion &region)
{
    wl_region *const input = wl_compositor_create_region(m_services.compositor);
    for (const QRect &rect : region)
        wl_region_add(input, rect.x(), rect.y(), rect.width(), rect.height());
    wl_surface_set_input_region(m_surface, input);
    wl_region_destroy(input);
    wl_surface_commit(m_surface);
    m_services.connection.flush();
}

} // namespace corvane
