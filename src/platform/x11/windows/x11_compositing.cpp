#include "platform/x11/windows/x11_compositing.h"

#include <QByteArray>

#include <xcb/xfixes.h>

#include <utility>

namespace corvane {

X11Compositing::X11Compositing(X11Connection &connection)
    : m_connection(connection)
    , m_listener(
          connection.addListener([this](const xcb_generic_event_t &event) { handle(event); }))
{
    const QByteArray name = "_NET_WM_CM_S" + QByteArray::number(m_connection.screenNumber());
    m_selection = m_connection.atom(name.constData());
    if (m_connection.hasXFixes())
        xcb_xfixes_select_selection_input(
            m_connection.get(), m_connection.root(), m_selection,
            XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    const auto owner = m_connection.reply<xcb_get_selection_owner_reply_t>(
        xcb_get_selection_owner(m_connection.get(), m_selection));
    m_isComposited = owner && owner->owner != XCB_NONE;
}

X11Compositing::~X11Compositing() = default;

void X11Compositing::observeChanges(std::function<void()> callback)
{
    m_observers.add(std::move(callback));
}

void X11Compositing::handle(const xcb_generic_event_t &event)
{
    if (!m_connection.isSelectionNotify(event))
        return;
    const auto &news = reinterpret_cast<const xcb_xfixes_selection_notify_event_t &>(event);
    if (news.selection != m_selection)
        return;
    const bool isComposited
        = news.subtype == XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER && news.owner != XCB_NONE;
    if (std::exchange(m_isComposited, isComposited) != isComposited)
        m_observers.notify();
}

} // namespace corvane
