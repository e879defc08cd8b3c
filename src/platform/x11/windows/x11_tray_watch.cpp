#include "platform/x11/windows/x11_tray_watch.h"

#include <xcb/xfixes.h>

#include <utility>

namespace corvane {

X11TrayWatch::X11TrayWatch(X11Connection &connection)
    : m_connection(connection)
    , m_listener(
          connection.addListener([this](const xcb_generic_event_t &event) { handle(event); }))
{
}

X11TrayWatch::~X11TrayWatch()
{
    X11TrayWatch::stop();
}

void X11TrayWatch::start(std::function<void()> onTray)
{
    m_onTray = std::move(onTray);
    if (!m_connection.isConnected() || !m_connection.hasXFixes())
        return;
    const std::string name = "_NET_SYSTEM_TRAY_S" + std::to_string(m_connection.screenNumber());
    m_selection = m_connection.atom(name.c_str());
    select(XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER);
    const auto owner = m_connection.reply<xcb_get_selection_owner_reply_t>(
        xcb_get_selection_owner(m_connection.get(), m_selection));
    if (owner && owner->owner != XCB_NONE)
        m_onTray();
}

void X11TrayWatch::stop()
{
    if (m_selection != XCB_NONE)
        select(0);
    m_selection = XCB_NONE;
}

void X11TrayWatch::select(std::uint32_t mask)
{
    xcb_xfixes_select_selection_input(m_connection.get(), m_connection.root(), m_selection, mask);
    m_connection.flush();
}

void X11TrayWatch::handle(const xcb_generic_event_t &event) const
{
    if (!m_connection.isSelectionNotify(event))
        return;
    const auto &news = reinterpret_cast<const xcb_xfixes_selection_notify_event_t &>(event);
    if (m_selection != XCB_NONE && news.selection == m_selection && news.owner != XCB_NONE)
        m_onTray();
}

} // namespace corvane
