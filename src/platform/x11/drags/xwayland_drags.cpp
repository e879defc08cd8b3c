#include "platform/x11/drags/xwayland_drags.h"

#include "platform/base/main_queue.h"

#include <array>

namespace corvane {

XWaylandDrags::XWaylandDrags(MainQueue &queue)
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return;
    m_connection = std::make_unique<X11Connection>([this] {
        if (onLost)
            onLost();
    });
    if (!isWatching())
        return;
    m_selection = std::make_unique<X11DragSelection>(*m_connection, [this] {
        if (onBegan)
            onBegan();
    });
    prime(queue);
}

XWaylandDrags::~XWaylandDrags() = default;

bool XWaylandDrags::isWatching() const
{
    return m_connection && m_connection->isConnected() && m_connection->hasXFixes();
}

/// One pixel, out of sight.
void XWaylandDrags::prime(MainQueue &queue)
{
    xcb_connection_t *const connection = m_connection->get();
    const xcb_window_t window = xcb_generate_id(connection);
    const std::array<std::uint32_t, 2> backgroundAndNoManager = {0, 1};
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, m_connection->root(), -1, -1, 1, 1,
                      0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, backgroundAndNoManager.data());
    xcb_map_window(connection, window);
    m_connection->flush();
    queue.asyncAfter(primingTime, m_lifetime.guard([this, window] {
        xcb_destroy_window(m_connection->get(), window);
        m_connection->flush();
    }));
}

} // namespace corvane
