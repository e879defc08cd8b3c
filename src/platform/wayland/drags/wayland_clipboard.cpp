#include "platform/wayland/drags/wayland_clipboard.h"

#include "platform/wayland/base/wayland_connection.h"
#include "platform/wayland/base/wayland_globals.h"
#include "platform/wayland/drags/drag_versions.h"
#include "platform/wayland/drags/wayland_incoming_drag.h"

#include <wayland-client.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace corvane {

namespace {

template<typename Proxy>
void putOn(wl_event_queue *queue, Proxy *proxy)
{
    wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(proxy), queue);
}

/// The same service, whose events come on that queue.
template<typename Service>
Service *wrapped(Service *service, wl_event_queue *queue)
{
    auto *const wrapper = static_cast<Service *>(wl_proxy_create_wrapper(service));
    putOn(queue, wrapper);
    return wrapper;
}

} // namespace

/// What a device is told when it is made.
struct WaylandClipboard::Glance {
    using Offer = std::shared_ptr<WaylandIncomingDrag>;

    static Glance &of(void *data) { return *static_cast<Glance *>(data); }
    static void offered(void *data, wl_data_device *, wl_data_offer *offer)
    {
        Glance &self = of(data);
        self.announced.push_back(
            std::make_shared<WaylandIncomingDrag>(self.link, self.mainQueue, offer));
    }
    static void selected(void *data, wl_data_device *, wl_data_offer *offer)
    {
        Glance &self = of(data);
        const auto found = std::ranges::find(
            self.announced, offer, [](const Offer &announced) { return announced->offer(); });
        self.selection = found == self.announced.end() ? nullptr : *found;
    }
    static constexpr wl_data_device_listener device
        = {.data_offer = offered,
           .enter = [](void *, wl_data_device *, std::uint32_t, wl_surface *, wl_fixed_t,
                       wl_fixed_t, wl_data_offer *) {},
           .leave = [](void *, wl_data_device *) {},
           .motion = [](void *, wl_data_device *, std::uint32_t, wl_fixed_t, wl_fixed_t) {},
           .drop = [](void *, wl_data_device *) {},
           .selection = selected};
    static void end(void *data, wl_callback *, std::uint32_t) { of(data).isOver = true; }
    static constexpr wl_callback_listener told = {end};

    WaylandIncomingDrag::Link link;
    MainQueue &mainQueue;
    std::vector<Offer> announced = {};
    Offer selection = nullptr;
    bool isOver = false;
};

WaylandClipboard::WaylandClipboard(WaylandConnection &connection, MainQueue &queue)
    : m_connection(connection)
    , m_queue(queue)
{
    if (connection.display())
        bindGlobals(
            connection.display(),
            {{&wl_data_device_manager_interface, drag_versions::manager, placeOf(m_manager)},
             {&wl_seat_interface, drag_versions::seat, placeOf(m_seat)}});
}

WaylandClipboard::~WaylandClipboard()
{
    if (m_manager)
        wl_data_device_manager_destroy(m_manager);
    if (m_seat)
        wl_seat_destroy(m_seat);
}

void WaylandClipboard::look(Found found)
{
    found(isAble() ? offered() : nullptr);
}

std::shared_ptr<IncomingDrag> WaylandClipboard::offered() const
{
    WaylandConnection &connection = m_connection;
    Glance glance{{[&connection] { return connection.display() != nullptr; },
                   [&connection] { connection.flush(); }},
                  m_queue};
    wl_event_queue *const queue = wl_display_create_queue(connection.display());
    auto *const manager = wrapped(m_manager, queue);
    auto *const display = wrapped(connection.display(), queue);
    wl_data_device *const device = wl_data_device_manager_get_data_device(manager, m_seat);
    wl_data_device_add_listener(device, &Glance::device, &glance);
    // Answered after everything that the device is told at its beginning.
    wl_callback *const told = wl_display_sync(display);
    wl_callback_add_listener(told, &Glance::told, &glance);
    connection.waitOn(queue, [&glance] { return glance.isOver; });
    wl_callback_destroy(told);
    if (wl_data_device_get_version(device) >= WL_DATA_DEVICE_RELEASE_SINCE_VERSION)
        wl_data_device_release(device);
    else
        wl_data_device_destroy(device);
    wl_proxy_wrapper_destroy(display);
    wl_proxy_wrapper_destroy(manager);
    // The queue goes, the offer stays.
    for (const auto &offer : glance.announced)
        putOn(nullptr, offer->offer());
    wl_event_queue_destroy(queue);
    return glance.selection;
}

} // namespace corvane
