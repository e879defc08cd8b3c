#pragma once

#include <cstdint>
#include <vector>

struct wl_display;
struct wl_interface;

namespace corvane {

/// One of the compositor's services, and the version up to which it is known here.
struct WantedGlobal {
    const wl_interface *interface;
    std::uint32_t version;
    /// Becomes the service, of several the first; stays as it is where there is none.
    void **bound;
};

/// Where a service is to be kept.
template<typename Service>
void **placeOf(Service *&service)
{
    return reinterpret_cast<void **>(&service);
}

/// Asks the compositor what it has of these. What is on its way to others on that connection is not
/// handled meanwhile. Events of what was bound come on the connection's main queue, so that whoever
/// listens before that is handled next misses none.
void bindGlobals(wl_display *display, const std::vector<WantedGlobal> &wanted);

} // namespace corvane
