#pragma once

#include "platform/base/lifetime.h"
#include "platform/base/main_queue.h"
#include "platform/desktop/drag_carrier.h"
#include "platform/wayland/drags/pointer_presses.h"

#include <map>
#include <memory>
#include <optional>

struct wl_compositor;
struct wl_data_device_manager;
struct wl_seat;
struct wl_shm;
struct wl_subcompositor;

namespace corvane {

class DragTrip;
class WaylandConnection;

/// Drags with a source of our own, beside Qt's: Qt tells neither what of a drag was fetched nor
/// that its target has finished, names texts in one way only, and needs all contents at once.
///
/// A target may still be busy with a drop when the next drag has begun. The connection and the
/// queue must outlive it.
class WaylandDragCarrier : public DragCarrier {
public:
    WaylandDragCarrier(WaylandConnection &connection, MainQueue &queue);
    ~WaylandDragCarrier() override;
    WaylandDragCarrier(const WaylandDragCarrier &) = delete;
    WaylandDragCarrier &operator=(const WaylandDragCarrier &) = delete;

    /// Whether the compositor tells all that is needed; otherwise nothing can be carried.
    bool isAble() const;

    DragId carry(QWindow &window, Load load, Events events) override;
    void formsAreReady(DragId drag, std::optional<PasteboardForms> forms) override;
    bool isCarrying() const override;

private:
    /// What a drag is made with. Null where the compositor has none.
    struct Services {
        explicit Services(WaylandConnection &connection);
        ~Services();
        Services(const Services &) = delete;
        Services &operator=(const Services &) = delete;

        wl_data_device_manager *manager = nullptr;
        wl_compositor *compositor = nullptr;
        wl_subcompositor *subcompositor = nullptr;
        wl_shm *shm = nullptr;
        /// Becomes the presses'.
        wl_seat *seat = nullptr;
    };

    /// These events, and what becomes of the trip with them.
    Events watched(DragId id, Events events);
    void pointerIsHere();
    void letGo(DragId drag);

    WaylandConnection &m_connection;
    MainQueue &m_queue;
    Services m_services;
    PointerPresses m_presses;
    std::map<DragId, std::unique_ptr<DragTrip>> m_trips;
    DragId m_lastId = 0;
    Lifetime m_lifetime;
};

} // namespace corvane
