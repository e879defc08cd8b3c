#include "platform/x11/windows/x11_full_screen_windows.h"

#include "platform/desktop/screens.h"
#include "platform/x11/windows/x11_window_manager.h"

#include <algorithm>

namespace corvane {

bool X11FullScreenWindows::isCovered(const Screen &screen) const
{
    const QPoint place(screen.nativeFrame.center().x(), screen.nativeFrame.top());
    // Something small such as a notification may be in front, and the full-screen film below it
    // have the keyboard.
    const xcb_window_t active = X11WindowManager(m_connection).activeWindow();
    if (active != XCB_NONE && isFullScreen(active)) {
        const auto frame = frameOf(active);
        if (frame && frame->contains(place))
            return true;
    }
    const xcb_window_t front = childAt(m_connection.root(), place);
    if (front != XCB_NONE && coversUnmanaged(front, screen.nativeFrame))
        return true;
    // Through the window manager's frames, which are nested only a few levels deep.
    constexpr int maximumDepth = 8;
    xcb_window_t window = front;
    for (int depth = 0; window != XCB_NONE && depth < maximumDepth; ++depth) {
        if (isFullScreen(window))
            return true;
        window = childAt(window, place);
    }
    return false;
}

bool X11FullScreenWindows::isFullScreen(xcb_window_t window) const
{
    return hasAtom(window, "_NET_WM_STATE", "_NET_WM_STATE_FULLSCREEN");
}

bool X11FullScreenWindows::coversUnmanaged(xcb_window_t window, const QRect &screen) const
{
    const auto attributes = m_connection.reply<xcb_get_window_attributes_reply_t>(
        xcb_get_window_attributes(m_connection.get(), window));
    // Window managers have empty (input-only) windows of their own below all others.
    if (!attributes || attributes->override_redirect == 0
        || attributes->_class == XCB_WINDOW_CLASS_INPUT_ONLY)
        return false;
    const auto frame = frameOf(window);
    // The screen's size in pixels may be rounded up by one.
    const bool covers = frame && frame->adjusted(0, 0, 1, 1).contains(screen);
    return covers && !hasAtom(window, "_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DESKTOP");
}

bool X11FullScreenWindows::hasAtom(xcb_window_t window, const char *property,
                                   const char *value) const
{
    // More than there are window states or types.
    constexpr std::uint32_t maximumCount = 64;
    const auto reply = m_connection.reply<xcb_get_property_reply_t>(
        xcb_get_property(m_connection.get(), 0, window, m_connection.atom(property), XCB_ATOM_ATOM,
                         0, maximumCount));
    if (!reply || reply->format != 32)
        return false;
    const auto *const atoms = static_cast<const xcb_atom_t *>(xcb_get_property_value(reply.get()));
    const auto *const end = atoms + reply->value_len;
    return std::find(atoms, end, m_connection.atom(value)) != end;
}

/// The visible child that takes clicks at a point of the root window.
xcb_window_t X11FullScreenWindows::childAt(xcb_window_t window, QPoint point) const
{
    const auto reply
        = m_connection.reply<xcb_translate_coordinates_reply_t>(xcb_translate_coordinates(
            m_connection.get(), m_connection.root(), window, static_cast<std::int16_t>(point.x()),
            static_cast<std::int16_t>(point.y())));
    return reply ? reply->child : XCB_NONE;
}

std::optional<QRect> X11FullScreenWindows::frameOf(xcb_window_t window) const
{
    const auto geometry = m_connection.reply<xcb_get_geometry_reply_t>(
        xcb_get_geometry(m_connection.get(), window));
    const auto place = m_connection.reply<xcb_translate_coordinates_reply_t>(
        xcb_translate_coordinates(m_connection.get(), window, m_connection.root(), 0, 0));
    if (!geometry || !place)
        return std::nullopt;
    return QRect(place->dst_x, place->dst_y, geometry->width, geometry->height);
}

} // namespace corvane
