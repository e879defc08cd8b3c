#pragma once

#include "platform/wayland/drags/carried_drag.h"
#include "platform/wayland/drags/drag_icon.h"

#include <memory>
#include <vector>

struct wl_callback;
struct wl_data_device;
struct wl_data_device_manager;
struct wl_data_offer;
struct wl_data_source;
struct wl_display;
struct wl_seat;
struct wl_surface;

namespace corvane {

/// What the compositor knows of one drag of ours, and what it tells of it.
class DragTrip {
public:
    struct Start {
        wl_display *display = nullptr;
        wl_data_device_manager *manager = nullptr;
        wl_seat *seat = nullptr;
        wl_surface *origin = nullptr;
        std::uint32_t serial = 0;
        QPoint hotSpot;
    };
    DragTrip(const Start &start, std::unique_ptr<CarriedDrag> drag, std::unique_ptr<DragIcon> icon);
    ~DragTrip();
    DragTrip(const DragTrip &) = delete;
    DragTrip &operator=(const DragTrip &) = delete;

    CarriedDrag &drag() { return *m_drag; }
    /// The pointer is over a window of ours, as it never is during a drag: it was not begun, or is
    /// over without a word.
    void pointerIsHere();
    /// The user has let go: what only the dragging needs goes away.
    void release();

private:
    struct Listeners;

    void begin(const Start &start);

    std::unique_ptr<CarriedDrag> m_drag;
    std::unique_ptr<DragIcon> m_icon;
    wl_data_source *m_source;
    wl_data_device *m_device;
    /// Done once the compositor has begun the drag, or has not.
    wl_callback *m_begun = nullptr;
    /// What is told of drags over our windows; Qt is told the same.
    std::vector<wl_data_offer *> m_offers;
};

} // namespace corvane
