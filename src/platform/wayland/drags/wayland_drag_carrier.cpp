#include "platform/wayland/drags/wayland_drag_carrier.h"

#include "platform/base/checked_math.h"
#include "platform/desktop/panel_window.h"
#include "platform/wayland/base/wayland_connection.h"
#include "platform/wayland/base/wayland_globals.h"
#include "platform/wayland/drags/drag_trip.h"
#include "platform/wayland/drags/drag_versions.h"
#include "platform/wayland/drags/pipe_delivery.h"

#include <QWindow>

#include <wayland-client.h>

#include <algorithm>
#include <utility>

namespace corvane {

WaylandDragCarrier::Services::Services(WaylandConnection &connection)
{
    if (!connection.display())
        return;
    bindGlobals(connection.display(),
                {{&wl_data_device_manager_interface, drag_versions::manager, placeOf(manager)},
                 {&wl_compositor_interface, drag_versions::compositor, placeOf(compositor)},
                 {&wl_subcompositor_interface, 1, placeOf(subcompositor)},
                 {&wl_shm_interface, 1, placeOf(shm)},
                 {&wl_seat_interface, drag_versions::seat, placeOf(seat)}});
}

WaylandDragCarrier::Services::~Services()
{
    if (manager)
        wl_data_device_manager_destroy(manager);
    if (compositor)
        wl_compositor_destroy(compositor);
    if (subcompositor)
        wl_subcompositor_destroy(subcompositor);
    if (shm)
        wl_shm_destroy(shm);
}

WaylandDragCarrier::WaylandDragCarrier(WaylandConnection &connection, MainQueue &queue)
    : m_connection(connection)
    , m_queue(queue)
    , m_services(connection)
    , m_presses(m_services.seat)
{
    m_presses.onPointer = [this] { pointerIsHere(); };
}

WaylandDragCarrier::~WaylandDragCarrier() = default;

bool WaylandDragCarrier::isAble() const
{
    return m_services.seat && m_services.manager
        && wl_data_device_manager_get_version(m_services.manager) >= drag_versions::manager;
}

bool WaylandDragCarrier::isCarrying() const
{
    return std::ranges::any_of(m_trips,
                               [](const auto &trip) { return trip.second->drag().isCarried(); });
}

DragCarrier::Events WaylandDragCarrier::watched(DragId id, Events events)
{
    // Both are told in the middle of what the trip hears: it goes away later.
    return {m_lifetime.guard([this, id, tell = std::move(events.released)](DragOperation promised) {
                m_queue.async(m_lifetime.guard([this, id] { letGo(id); }));
                tell(promised);
            }),
            m_lifetime.guard([this, id, tell = std::move(events.ended)](const DragOutEnd &end) {
                m_queue.async(m_lifetime.guard([this, id] { m_trips.erase(id); }));
                tell(end);
            })};
}

DragCarrier::DragId WaylandDragCarrier::carry(QWindow &window, Load load, Events events)
{
    m_lastId = checkedAdd(m_lastId, 1);
    const DragId id = m_lastId;
    wl_surface *const origin = WaylandConnection::surfaceOf(window);
    const auto serial = m_presses.serial();
    if (!isAble() || !origin || !serial) {
        events.released(DragOperation::None);
        events.ended({});
        return id;
    }
    auto drag = std::make_unique<CarriedDrag>(
        m_queue,
        [this](FileDescriptor pipe, QByteArray bytes, Delivery::Events told) {
            return std::make_unique<PipeDelivery>(m_queue, std::move(pipe), std::move(bytes),
                                                  std::move(told));
        },
        NamedForms(std::move(load.forms)), load.areFinal, watched(id, std::move(events)));
    auto icon = std::make_unique<DragIcon>(
        DragIcon::Services{m_services.compositor, m_services.subcompositor, m_services.shm},
        load.image, window.devicePixelRatio());
    m_trips[id] = std::make_unique<DragTrip>(DragTrip::Start{m_connection.display(),
                                                             m_services.manager, m_services.seat,
                                                             origin, *serial, load.hotSpot},
                                             std::move(drag), std::move(icon));
    m_connection.flush();
    return id;
}

void WaylandDragCarrier::formsAreReady(DragId drag, std::optional<PasteboardForms> forms)
{
    const auto found = m_trips.find(drag);
    if (found != m_trips.end())
        found->second->drag().formsAreReady(std::move(forms));
}

void WaylandDragCarrier::letGo(DragId drag)
{
    const auto found = m_trips.find(drag);
    if (found != m_trips.end())
        found->second->release();
    m_connection.flush();
}

void WaylandDragCarrier::pointerIsHere()
{
    for (const auto &[id, trip] : m_trips)
        trip->pointerIsHere();
}

} // namespace corvane
