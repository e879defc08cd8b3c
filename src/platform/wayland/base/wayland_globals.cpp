#include "platform/wayland/base/wayland_globals.h"

#include <wayland-client.h>

#include <algorithm>
#include <cstring>

namespace corvane {

namespace {

struct Found {
    const WantedGlobal *wanted;
    std::uint32_t name;
    std::uint32_t version;
};

struct Search {
    const std::vector<WantedGlobal> &wanted;
    std::vector<Found> found;
};

void noteIfWanted(void *data, wl_registry * /*registry*/, std::uint32_t name, const char *interface,
                  std::uint32_t version)
{
    auto &search = *static_cast<Search *>(data);
    for (const WantedGlobal &wanted : search.wanted) {
        const bool isFirst
            = std::ranges::find(search.found, &wanted, &Found::wanted) == search.found.end();
        if (isFirst && std::strcmp(interface, wanted.interface->name) == 0)
            search.found.push_back({&wanted, name, std::min(version, wanted.version)});
    }
}

const wl_registry_listener wantedListener = {
    .global = noteIfWanted,
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
    Search search{wanted, {}};
    wl_registry_add_listener(registry, &wantedListener, &search);
    wl_display_roundtrip_queue(display, queue);
    // What is bound there is there from its first event on. Were it moved there afterwards, then
    // what the compositor tells at once would be lost, whenever it came before that.
    wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(registry), nullptr);
    for (const Found &one : search.found)
        *one.wanted->bound
            = wl_registry_bind(registry, one.name, one.wanted->interface, one.version);
    wl_registry_destroy(registry);
    wl_event_queue_destroy(queue);
}

} // namespace corvane
