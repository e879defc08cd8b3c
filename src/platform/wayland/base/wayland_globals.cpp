#include "platform/wayland/base/wayland_globals.h"

#include <wayland-client.h>

#include <algorithm>
#include <cstring>

namespace corvane {

namespace {

void bindIfWanted(void *data, wl_registry *registry, std::uint32_t name, const char *interface,
                  std::uint32_t version)
{
    for (const WantedGlobal &wanted : *static_cast<const std::vector<WantedGlobal> *>(data)) {
        if (!*wanted.bound && std::strcmp(interface, wanted.interface->name) == 0)
            *wanted.bound = wl_registry_bind(registry, name, wanted.interface,
                                             std::min(version, wanted.version));
    }
}

const wl_registry_listener wantedListener = {
    .global = bindIfWanted,
    .global_remove = [](void *, wl_registry *, std::uint32_t) {},
};

} // namespace

void bindGlobals(wl_display *display, const std::vector<WantedGlobal> &wanted)
{
    wl_event_queue *const queue = wl_display_create_queue(display);
    auto *const wrapper = static_cast<wl_display *>(wl_proxy_create_wrapper(display));
    wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(wrapper), queue);
    wl_registry *const registry = wl_display_get_registry(wrapper);
    wl_proxy_wrapper_destroy(wrapper);
    wl_registry_add_listener(registry, &wantedListener,
                             const_cast<std::vector<WantedGlobal> *>(&wanted));
    wl_display_roundtrip_queue(display, queue);
    for (const WantedGlobal &one : wanted) {
        if (*one.bound)
            wl_proxy_set_queue(static_cast<wl_proxy *>(*one.bound), nullptr);
    }
    wl_registry_destroy(registry);
    wl_event_queue_destroy(queue);
}

} // namespace corvane
