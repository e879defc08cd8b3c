#include "e2e/desktop/nested_compositor.h"

#include "e2e/desktop/eventually.h"

#include <algorithm>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

void NestedCompositor::addTo(QProcessEnvironment &environment) const
{
    environment.insert(u"WAYLAND_DISPLAY"_s, socket());
    environment.insert(u"QT_QPA_PLATFORM"_s, u"wayland"_s);
    environment.insert(u"GDK_BACKEND"_s, u"wayland"_s);
    environment.insert(u"XDG_SESSION_TYPE"_s, u"wayland"_s);
    environment.insert(u"XDG_CURRENT_DESKTOP"_s, desktopName());
    if (m_display.isEmpty())
        environment.remove(u"DISPLAY"_s);
    else
        environment.insert(u"DISPLAY"_s, m_display);
    addOwnTo(environment);
}

namespace {

void askToClose(const XServer &screen, xcb_window_t window)
{
    xcb_client_message_event_t close{};
    close.response_type = XCB_CLIENT_MESSAGE;
    close.format = 32;
    close.window = window;
    close.type = screen.atom("WM_PROTOCOLS");
    close.data.data32[0] = screen.atom("WM_DELETE_WINDOW");
    xcb_send_event(screen.connection(), 0, window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&close));
    xcb_flush(screen.connection());
}

} // namespace

bool NestedCompositor::unplug(XServer &screen, const QRect &output)
{
    const auto before = screen.windows();
    const auto found = std::ranges::find(before, output, &WindowFacts::frame);
    if (found == before.end())
        return false;
    askToClose(screen, found->id);
    if (!eventually([&] { return !screen.facts(found->id); }))
        return false;
    for (const WindowFacts &window : screen.windows()) {
        if (window.frame.left() < output.left())
            continue;
        const auto x = static_cast<uint32_t>(window.frame.left() - output.width());
        xcb_configure_window(screen.connection(), window.id, XCB_CONFIG_WINDOW_X, &x);
    }
    // Done once an answer to a later question has come.
    screen.focusedWindow();
    return true;
}

QRect scaled(const QRect &rect, double scale)
{
    return QRectF(rect.x() * scale, rect.y() * scale, rect.width() * scale, rect.height() * scale)
        .toRect();
}

bool NestedCompositor::showsWallpaper(XServer &screen, const QRect &area)
{
    return eventually([&] {
        const QImage picture = screen.picture(area);
        return (picture.pixel(0, 0) | 0xff000000U) == wallpaper
            && (picture.pixel(picture.width() - 1, picture.height() - 1) | 0xff000000U)
            == wallpaper;
    });
}

} // namespace corvane::e2e
