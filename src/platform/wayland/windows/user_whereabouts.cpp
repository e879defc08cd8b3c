#include "platform/wayland/windows/user_whereabouts.h"

#include "layer_shell_generated.h"
#include "platform/base/main_queue.h"
#include "platform/system/file_descriptor.h"
#include "platform/wayland/base/wayland_connection.h"
#include "platform/wayland/base/wayland_globals.h"
#include "platform/wayland/windows/toolkit_screen.h"

#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

/// What users name in their compositor's rules for it.
constexpr auto labelForProbe = "corvane-probe";
constexpr std::uint32_t surfaceVersion = 1;
constexpr std::int32_t bytesOfAPixel = 4;

/// A single transparent pixel; null where there is no memory for it.
wl_buffer *transparentPixel(wl_shm *shm)
{
    const FileDescriptor file(::memfd_create("corvane-probe", MFD_CLOEXEC));
    if (!file.isOpen() || ::ftruncate(file.number(), bytesOfAPixel) != 0)
        return nullptr;
    wl_shm_pool *const pool = wl_shm_create_pool(shm, file.number(), bytesOfAPixel);
    wl_buffer *const buffer
        = wl_shm_pool_create_buffer(pool, 0, 1, 1, bytesOfAPixel, WL_SHM_FORMAT_ARGB8888);
    wl_shm_pool_destroy(pool);
    return buffer;
}

} // namespace

/// The surface. Qt knows nothing of it: of a window it would tell only where that differs from what
/// it has taken for granted.
class UserWhereabouts::Probe {
public:
    Probe(UserWhereabouts &owner, wl_buffer *buffer)
        : m_owner(owner)
        , m_buffer(buffer)
        , m_surface(wl_compositor_create_surface(owner.m_compositor))
        , m_place(zwlr_layer_shell_v1_get_layer_surface(
              owner.m_connection.layerShell(), m_surface, nullptr,
              ZWLR_LAYER_SHELL_V1_LAYER_BACKGROUND, labelForProbe))
    {
        wl_surface_add_listener(m_surface, &surfaceListener, this);
        zwlr_layer_surface_v1_add_listener(m_place, &placeListener, this);
        zwlr_layer_surface_v1_set_size(m_place, 1, 1);
        zwlr_layer_surface_v1_set_anchor(
            m_place, ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT);
        wl_region *const nothing = wl_compositor_create_region(owner.m_compositor);
        wl_surface_set_input_region(m_surface, nothing);
        wl_region_destroy(nothing);
        wl_surface_commit(m_surface);
        owner.m_connection.flush();
    }
    ~Probe()
    {
        zwlr_layer_surface_v1_destroy(m_place);
        wl_surface_destroy(m_surface);
        wl_buffer_destroy(m_buffer);
        m_owner.m_connection.flush();
    }
    Probe(const Probe &) = delete;
    Probe &operator=(const Probe &) = delete;

private:
    static void configure(void *data, zwlr_layer_surface_v1 *place, std::uint32_t serial,
                          std::uint32_t /*width*/, std::uint32_t /*height*/)
    {
        auto &self = *static_cast<Probe *>(data);
        zwlr_layer_surface_v1_ack_configure(place, serial);
        wl_surface_attach(self.m_surface, self.m_buffer, 0, 0);
        wl_surface_damage(self.m_surface, 0, 0, 1, 1);
        wl_surface_commit(self.m_surface);
        self.m_owner.m_connection.flush();
    }
    static void closed(void *data, zwlr_layer_surface_v1 * /*place*/)
    {
        static_cast<Probe *>(data)->m_owner.isOn(nullptr);
    }
    static void enter(void *data, wl_surface * /*surface*/, wl_output *output)
    {
        static_cast<Probe *>(data)->m_owner.isOn(output);
    }
    static constexpr zwlr_layer_surface_v1_listener placeListener = {configure, closed};
    // The version that is asked for has no other events.
    static constexpr wl_surface_listener surfaceListener = [] {
        wl_surface_listener listener = {};
        listener.enter = enter;
        listener.leave = [](void *, wl_surface *, wl_output *) {};
        return listener;
    }();

    UserWhereabouts &m_owner;
    wl_buffer *m_buffer;
    wl_surface *m_surface;
    zwlr_layer_surface_v1 *m_place;
};

UserWhereabouts::UserWhereabouts(WaylandConnection &connection, MainQueue &queue,
                                 const Screens &screens)
    : ScreenSearch(queue, screens)
    , m_connection(connection)
{
    if (connection.display())
        bindGlobals(connection.display(),
                    {{&wl_compositor_interface, surfaceVersion, placeOf(m_compositor)},
                     {&wl_shm_interface, 1, placeOf(m_shm)}});
}

UserWhereabouts::~UserWhereabouts()
{
    m_probe.reset();
    if (m_compositor)
        wl_compositor_destroy(m_compositor);
    if (m_shm)
        wl_shm_destroy(m_shm);
}

bool UserWhereabouts::begin()
{
    const bool canAsk = m_compositor && m_shm && m_connection.layerShell();
    wl_buffer *const pixel = canAsk ? transparentPixel(m_shm) : nullptr;
    if (!pixel)
        return false;
    m_probe = std::make_unique<Probe>(*this, pixel);
    giveUpAfter(patience);
    return true;
}

void UserWhereabouts::end()
{
    m_probe.reset();
}

/// Later: the surface is just being told of it.
void UserWhereabouts::isOn(const wl_output *output)
{
    ScreenPointer screen;
    for (const ScreenPointer &one : screens().screens()) {
        if (output && WaylandConnection::outputOf(toolkitScreen(*one)) == output)
            screen = one;
    }
    queue().async(search().guard([this, screen] { found(screen); }));
}

} // namespace corvane
