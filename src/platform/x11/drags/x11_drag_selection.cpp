#include "platform/x11/drags/x11_drag_selection.h"

#include "platform/x11/base/x11_qt.h"

#include <xcb/xfixes.h>

#include <utility>

namespace corvane {

X11DragSelection::X11DragSelection(X11Connection &connection, std::function<void()> onTaken)
    : m_connection(connection)
    , m_onTaken(std::move(onTaken))
    , m_listener(
          connection.addListener([this](const xcb_generic_event_t &event) { handle(event); }))
{
    if (!m_connection.isConnected() || !m_connection.hasXFixes())
        return;
    xcb_xfixes_select_selection_input(m_connection.get(), m_connection.root(),
                                      m_connection.atom("XdndSelection"),
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER);
    m_connection.flush();
}

void X11DragSelection::handle(const xcb_generic_event_t &event)
{
    if (!m_connection.isSelectionNotify(event))
        return;
    const auto &news = reinterpret_cast<const xcb_xfixes_selection_notify_event_t &>(event);
    if (news.selection != m_connection.atom("XdndSelection"))
        return;
    // Some programs give the selection up after a drag, which starts nothing.
    if (news.owner == XCB_NONE || x11_qt::isOwn(news.owner))
        return;
    // A copy: it may be destroyed by it.
    const auto taken = m_onTaken;
    taken();
}

} // namespace corvane
