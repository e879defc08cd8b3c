#include "platform/wayland/drags/catcher_services.h"

#include "layer_shell_generated.h"
#include "platform/wayland/base/wayland_globals.h"
#include "platform/wayland/drags/drag_versions.h"

#include <QScreen>

#include <wayland-client.h>

#include <algorithm>
#include <cstring>

namespace corvane {

namespace {

constexpr std::uint32_t catcherShellVersion = 3;
/// The first that tells names.
constexpr std::uint32_t outputVersion = 4;

} // namespace

struct CatcherServices::Listeners {
    static void global(void *data, wl_registry *registry, std::uint32_t name, const char *interface,
                       std::uint32_t version)
    {
        auto &self = *static_cast<CatcherServices *>(data);
        if (std::strcmp(interface, wl_output_interface.name) != 0)
            return;
        auto *const bound = static_cast<wl_output *>(wl_registry_bind(
            registry, name, &wl_output_interface, std::min(version, outputVersion)));
        self.m_outputs.push_back(std::make_unique<Output>(Output{name, bound, {}, {}}));
        wl_output_add_listener(bound, &output, self.m_outputs.back().get());
    }
    static void removed(void *data, wl_registry *, std::uint32_t name)
    {
        std::erase_if(static_cast<CatcherServices *>(data)->m_outputs, [name](const auto &output) {
            if (output->global == name)
                wl_output_destroy(output->output);
            return output->global == name;
        });
    }
    static void geometry(void *data, wl_output *, std::int32_t x, std::int32_t y, std::int32_t,
                         std::int32_t, std::int32_t, const char *, const char *, std::int32_t)
    {
        static_cast<Output *>(data)->place = {x, y};
    }

    static constexpr wl_registry_listener registry = {global, removed};
    // The version that is asked for has no other events.
    static constexpr wl_output_listener output = [] {
        wl_output_listener listener = {};
        listener.geometry = geometry;
        listener.mode
            = [](void *, wl_output *, std::uint32_t, std::int32_t, std::int32_t, std::int32_t) {};
        listener.done = [](void *, wl_output *) {};
        listener.scale = [](void *, wl_output *, std::int32_t) {};
        listener.name = [](void *data, wl_output *, const char *name) {
            static_cast<Output *>(data)->name = QString::fromUtf8(name);
        };
        listener.description = [](void *, wl_output *, const char *) {};
        return listener;
    }();
};

CatcherServices::CatcherServices()
{
    wl_display *const display = connection.display();
    if (!display)
        return;
    bindGlobals(display,
                {{&wl_data_device_manager_interface, drag_versions::manager, placeOf(manager)},
                 {&wl_compositor_interface, drag_versions::compositor, placeOf(compositor)},
                 {&wl_shm_interface, 1, placeOf(shm)},
                 {&wl_seat_interface, drag_versions::seat, placeOf(seat)},
                 {&zwlr_layer_shell_v1_interface, catcherShellVersion, placeOf(layerShell)}});
    m_registry = wl_display_get_registry(display);
    wl_registry_add_listener(m_registry, &Listeners::registry, this);
    connection.flush();
}

CatcherServices::~CatcherServices()
{
    for (const auto &output : m_outputs)
        wl_output_destroy(output->output);
    if (m_registry)
        wl_registry_destroy(m_registry);
    if (manager)
        wl_data_device_manager_destroy(manager);
    if (compositor)
        wl_compositor_destroy(compositor);
    if (shm)
        wl_shm_destroy(shm);
    if (layerShell)
        wl_proxy_destroy(reinterpret_cast<wl_proxy *>(layerShell));
}

bool CatcherServices::areAll() const
{
    return connection.display() && manager && compositor && shm && seat && layerShell
        && wl_data_device_manager_get_version(manager) >= drag_versions::manager;
}

wl_output *CatcherServices::outputOf(const QScreen &screen) const
{
    const auto found = std::ranges::find_if(m_outputs, [&screen](const auto &output) {
        return output->name.isEmpty() ? output->place == screen.geometry().topLeft()
                                      : output->name == screen.name();
    });
    return found == m_outputs.end() ? nullptr : (*found)->output;
}

} // namespace corvane
