#include "platform/wayland/drags/drag_trip.h"

#include <wayland-client.h>

#include <utility>

namespace corvane {

struct DragTrip::Listeners {
    static CarriedDrag &dragOf(void *data) { return *static_cast<DragTrip *>(data)->m_drag; }

    static void target(void * /*data*/, wl_data_source *, const char * /*type*/) { }
    static void send(void *data, wl_data_source *, const char *type, std::int32_t pipe)
    {
        dragOf(data).asked(QString::fromUtf8(type), FileDescriptor(pipe));
    }
    static void cancelled(void *data, wl_data_source *) { dragOf(data).cancelled(); }
    static void dropped(void *data, wl_data_source *) { dragOf(data).dropped(); }
    static void finished(void *data, wl_data_source *) { dragOf(data).finished(); }
    static void action(void * /*data*/, wl_data_source *, std::uint32_t /*action*/) { }
    static constexpr wl_data_source_listener source
        = {target, send, cancelled, dropped, finished, action};

    static void offered(void *data, wl_data_device *, wl_data_offer *offer)
    {
        static_cast<DragTrip *>(data)->m_offers.push_back(offer);
    }
    static constexpr wl_data_device_listener device
        = {.data_offer = offered,
           .enter = [](void *, wl_data_device *, std::uint32_t, wl_surface *, wl_fixed_t,
                       wl_fixed_t, wl_data_offer *) {},
           .leave = [](void *, wl_data_device *) {},
           .motion = [](void *, wl_data_device *, std::uint32_t, wl_fixed_t, wl_fixed_t) {},
           .drop = [](void *, wl_data_device *) {},
           .selection = [](void *, wl_data_device *, wl_data_offer *) {}};

    static void begun(void *data, wl_callback *callback, std::uint32_t)
    {
        wl_callback_destroy(callback);
        static_cast<DragTrip *>(data)->m_begun = nullptr;
    }
    static constexpr wl_callback_listener callback = {begun};
};

DragTrip::DragTrip(const Start &start, std::unique_ptr<CarriedDrag> drag,
                   std::unique_ptr<DragIcon> icon)
    : m_drag(std::move(drag))
    , m_icon(std::move(icon))
    , m_source(wl_data_device_manager_create_data_source(start.manager))
    , m_device(wl_data_device_manager_get_data_device(start.manager, start.seat))
{
    wl_data_source_add_listener(m_source, &Listeners::source, this);
    wl_data_device_add_listener(m_device, &Listeners::device, this);
    begin(start);
}

void DragTrip::begin(const Start &start)
{
    for (const QString &name : m_drag->names())
        wl_data_source_offer(m_source, name.toUtf8().constData());
    wl_data_source_set_actions(m_source, WL_DATA_DEVICE_MANAGER_DND_ACTION_COPY);
    wl_data_device_start_drag(m_device, m_source, start.origin, m_icon->surface(), start.serial);
    m_icon->show(start.hotSpot);
    // Answered after all that was asked for before.
    m_begun = wl_display_sync(start.display);
    wl_callback_add_listener(m_begun, &Listeners::callback, this);
}

DragTrip::~DragTrip()
{
    release();
    wl_data_source_destroy(m_source);
}

void DragTrip::pointerIsHere()
{
    if (!m_begun && m_drag->isCarried())
        m_drag->cancelled();
}

void DragTrip::release()
{
    m_icon.reset();
    if (m_begun)
        wl_callback_destroy(std::exchange(m_begun, nullptr));
    for (wl_data_offer *offer : std::exchange(m_offers, {}))
        wl_data_offer_destroy(offer);
    if (m_device)
        wl_data_device_release(std::exchange(m_device, nullptr));
}

} // namespace corvane
