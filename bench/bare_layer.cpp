// The least that can be a shelf in a Wayland session: a surface at the top edge, which is shown and
// filled when the X server for X11's programs tells of a drag, or when a call on the session bus
// asks for it. It is hidden when the pointer comes to it, or with the next call.

#include "layer_shell_generated.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QSocketNotifier>

#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>
#include <xcb/xcb.h>
#include <xcb/xfixes.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <span>

namespace {

constexpr std::uint32_t width = 292;
constexpr std::uint32_t height = 56;

/// The panel, and what it needs of the compositor.
class Panel {
public:
    Panel()
        : m_display(wl_display_connect(nullptr))
    {
        if (!m_display)
            std::exit(1);
        wl_registry_add_listener(wl_display_get_registry(m_display), &registryListener, this);
        wl_display_roundtrip(m_display);
        if (!m_compositor || !m_shm || !m_seat || !m_shell)
            std::exit(1);
        wl_pointer_add_listener(wl_seat_get_pointer(m_seat), &pointerListener, this);
        m_buffer = makeBuffer();
        wl_display_flush(m_display);
    }

    int descriptor() const { return wl_display_get_fd(m_display); }
    void dispatch()
    {
        if (wl_display_dispatch(m_display) < 0)
            std::exit(1);
        wl_display_flush(m_display);
    }

    void show()
    {
        if (m_surface)
            return;
        m_surface = wl_compositor_create_surface(m_compositor);
        m_place = zwlr_layer_shell_v1_get_layer_surface(m_shell, m_surface, nullptr,
                                                        ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, "bare");
        zwlr_layer_surface_v1_add_listener(m_place, &placeListener, this);
        zwlr_layer_surface_v1_set_size(m_place, width, height);
        zwlr_layer_surface_v1_set_anchor(m_place, ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP);
        zwlr_layer_surface_v1_set_exclusive_zone(m_place, -1);
        wl_surface_commit(m_surface);
        wl_display_flush(m_display);
    }
    void hide()
    {
        if (!m_surface)
            return;
        zwlr_layer_surface_v1_destroy(m_place);
        wl_surface_destroy(m_surface);
        m_surface = nullptr;
        wl_display_flush(m_display);
    }
    void toggle() { m_surface ? hide() : show(); }

private:
    static Panel &of(void *data) { return *static_cast<Panel *>(data); }

    wl_buffer *makeBuffer()
    {
        constexpr std::uint32_t pixels = width * height;
        constexpr std::uint32_t size = pixels * sizeof(std::uint32_t);
        const int file = ::memfd_create("panel", MFD_CLOEXEC);
        if (::ftruncate(file, size) != 0)
            std::exit(1);
        void *const memory = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
        std::ranges::fill(std::span(static_cast<std::uint32_t *>(memory), pixels), 0xff000000U);
        wl_shm_pool *const pool = wl_shm_create_pool(m_shm, file, size);
        wl_buffer *const buffer = wl_shm_pool_create_buffer(
            pool, 0, width, height, width * sizeof(std::uint32_t), WL_SHM_FORMAT_ARGB8888);
        wl_shm_pool_destroy(pool);
        ::close(file);
        return buffer;
    }

    template<typename Object>
    static void bind(Object *&object, wl_registry *registry, std::uint32_t name,
                     const wl_interface &interface)
    {
        object = static_cast<Object *>(wl_registry_bind(registry, name, &interface, 1));
    }
    static void global(void *data, wl_registry *registry, std::uint32_t name, const char *interface,
                       std::uint32_t /*version*/)
    {
        const auto is = [interface](const wl_interface &one) {
            return std::strcmp(interface, one.name) == 0;
        };
        if (is(wl_compositor_interface))
            bind(of(data).m_compositor, registry, name, wl_compositor_interface);
        else if (is(wl_shm_interface))
            bind(of(data).m_shm, registry, name, wl_shm_interface);
        else if (is(wl_seat_interface))
            bind(of(data).m_seat, registry, name, wl_seat_interface);
        else if (is(zwlr_layer_shell_v1_interface))
            bind(of(data).m_shell, registry, name, zwlr_layer_shell_v1_interface);
    }
    static void globalRemove(void * /*data*/, wl_registry * /*registry*/, std::uint32_t /*name*/) {
    }
    static constexpr wl_registry_listener registryListener = {global, globalRemove};

    static void configure(void *data, zwlr_layer_surface_v1 *place, std::uint32_t serial,
                          std::uint32_t /*width*/, std::uint32_t /*height*/)
    {
        zwlr_layer_surface_v1_ack_configure(place, serial);
        wl_surface_attach(of(data).m_surface, of(data).m_buffer, 0, 0);
        wl_surface_damage(of(data).m_surface, 0, 0, width, height);
        wl_surface_commit(of(data).m_surface);
    }
    static void closed(void *data, zwlr_layer_surface_v1 * /*place*/) { of(data).hide(); }
    static constexpr zwlr_layer_surface_v1_listener placeListener = {configure, closed};

    static void enter(void *data, wl_pointer * /*pointer*/, std::uint32_t /*serial*/,
                      wl_surface * /*surface*/, wl_fixed_t /*x*/, wl_fixed_t /*y*/)
    {
        of(data).hide();
    }
    static void leave(void * /*data*/, wl_pointer * /*pointer*/, std::uint32_t /*serial*/,
                      wl_surface * /*surface*/)
    {
    }
    static void motion(void * /*data*/, wl_pointer * /*pointer*/, std::uint32_t /*time*/,
                       wl_fixed_t /*x*/, wl_fixed_t /*y*/)
    {
    }
    static void button(void * /*data*/, wl_pointer * /*pointer*/, std::uint32_t /*serial*/,
                       std::uint32_t /*time*/, std::uint32_t /*button*/, std::uint32_t /*state*/)
    {
    }
    static void axis(void * /*data*/, wl_pointer * /*pointer*/, std::uint32_t /*time*/,
                     std::uint32_t /*axis*/, wl_fixed_t /*value*/)
    {
    }
    // Bound at version 1, which has no more events.
    static constexpr wl_pointer_listener pointerListener = [] {
        wl_pointer_listener all{};
        all.enter = enter;
        all.leave = leave;
        all.motion = motion;
        all.button = button;
        all.axis = axis;
        return all;
    }();

    wl_display *m_display;
    wl_compositor *m_compositor = nullptr;
    wl_shm *m_shm = nullptr;
    wl_seat *m_seat = nullptr;
    zwlr_layer_shell_v1 *m_shell = nullptr;
    wl_buffer *m_buffer = nullptr;
    /// Null while it is hidden.
    wl_surface *m_surface = nullptr;
    zwlr_layer_surface_v1 *m_place = nullptr;
};

/// Any call toggles the panel.
class Calls : public QDBusVirtualObject {
public:
    explicit Calls(Panel &panel)
        : m_panel(panel)
    {
    }
    QString introspect(const QString & /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage & /*message*/,
                       const QDBusConnection & /*connection*/) override
    {
        m_panel.toggle();
        return true;
    }

private:
    Panel &m_panel;
};

/// Selects the events that tell of drags; null without such an X server.
xcb_connection_t *watchDrags()
{
    xcb_connection_t *const connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) != 0)
        return nullptr;
    constexpr char name[] = "XdndSelection";
    auto *const atom = xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, sizeof name - 1, name), nullptr);
    std::free(xcb_xfixes_query_version_reply(connection, xcb_xfixes_query_version(connection, 5, 0),
                                             nullptr));
    xcb_xfixes_select_selection_input(
        connection, xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root, atom->atom,
        XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER);
    std::free(atom);
    xcb_flush(connection);
    return connection;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    Panel panel;
    const QSocketNotifier compositor(panel.descriptor(), QSocketNotifier::Read);
    QObject::connect(&compositor, &QSocketNotifier::activated, [&panel] { panel.dispatch(); });

    Calls calls(panel);
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.registerVirtualObject(QStringLiteral("/"), &calls, QDBusConnection::SubPath);
    bus.registerService(QStringLiteral("example.bare.Layer"));

    xcb_connection_t *const drags = watchDrags();
    if (!drags)
        return QCoreApplication::exec();
    const int firstEvent = xcb_get_extension_data(drags, &xcb_xfixes_id)->first_event;
    const QSocketNotifier x11(xcb_get_file_descriptor(drags), QSocketNotifier::Read);
    QObject::connect(&x11, &QSocketNotifier::activated, [&panel, drags, firstEvent] {
        while (auto *const event = xcb_poll_for_event(drags)) {
            if ((event->response_type & 0x7f) == firstEvent + XCB_XFIXES_SELECTION_NOTIFY)
                panel.show();
            std::free(event);
        }
    });
    return QCoreApplication::exec();
}
