#include "platform/x11/pointer/x11_pointer.h"

#include "platform/base/geometry.h"

#include <algorithm>

namespace corvane {

namespace {

/// At fractional scales a screen's size in pixels may be one too small; its place is exact. So if
/// several screens may show the pixel, it is the one with fewer uncertain rows or columns at that
/// place.
ScreenPointer screenAt(QPoint pixel, const std::vector<ScreenPointer> &screens)
{
    constexpr int beyond = 1;
    const auto doubt = [&](const QRect &frame) {
        return std::max(pixel.x() - frame.right() + beyond, 0)
            + std::max(pixel.y() - frame.bottom() + beyond, 0);
    };
    ScreenPointer found;
    for (const ScreenPointer &screen : screens) {
        const QRect &frame = screen->nativeFrame;
        const bool mayShow = frame.adjusted(0, 0, beyond, beyond).contains(pixel);
        if (mayShow && (!found || doubt(frame) < doubt(found->nativeFrame)))
            found = screen;
    }
    return found;
}

} // namespace

X11Pointer::X11Pointer(X11Connection &connection, const Screens &screens)
    : m_connection(connection)
    , m_screens(screens)
{
}

std::optional<QPointF> X11Pointer::location() const
{
    const auto reply = m_connection.reply<xcb_query_pointer_reply_t>(
        xcb_query_pointer(m_connection.get(), m_connection.root()));
    if (!reply)
        return std::nullopt;
    return locationOf({reply->root_x, reply->root_y}, m_screens.screens());
}

std::optional<QPointF> X11Pointer::locationOf(QPoint pixel,
                                              const std::vector<ScreenPointer> &screens)
{
    if (screens.empty())
        return std::nullopt;
    const ScreenPointer found = screenAt(pixel, screens);
    const Screen &screen = found ? *found : *screens.front();
    const double half = 0.5 / screen.backingScaleFactor;
    QPointF way = QPointF(pixel - screen.nativeFrame.topLeft()) / screen.backingScaleFactor
        + QPointF(half, half);
    if (found) {
        way.setX(std::clamp(way.x(), half, screen.frame.width() - half));
        way.setY(std::clamp(way.y(), half, screen.frame.height() - half));
    }
    return QPointF(minX(screen.frame) + way.x(), maxY(screen.frame) - way.y());
}

} // namespace corvane
