#include "platform/x11/pointer/x11_pointer_barriers.h"

#include <xcb/xinput.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane {

namespace {

using Line = X11PointerBarriers::Line;

Line lineOf(const EdgeStretch &stretch)
{
    const QRect &native = stretch.screen->nativeFrame;
    const double scale = stretch.screen->backingScaleFactor;
    const auto first = static_cast<int>(std::floor(stretch.left * scale));
    const auto end = static_cast<int>(std::ceil((stretch.left + stretch.width) * scale));
    return {native.left() + std::max(first, 0), native.left() + std::min(end, native.width()) - 1,
            native.top()};
}

/// The parts of the line that are not below `screen`; the whole line if the screen is not directly
/// above.
std::vector<Line> without(const Line &line, const QRect &screen)
{
    // At a fractional scale the screen's height may be rounded down; a barrier between two screens
    // would hold the pointer up.
    constexpr int rounding = 2;
    const int above = line.y - 1;
    const bool liesAbove = screen.top() <= above && screen.bottom() + rounding >= above;
    if (!liesAbove || screen.right() < line.left || screen.left() > line.right)
        return {line};
    std::vector<Line> rest;
    if (line.left < screen.left())
        rest.push_back({line.left, screen.left() - 1, line.y});
    if (line.right > screen.right())
        rest.push_back({screen.right() + 1, line.right, line.y});
    return rest;
}

} // namespace

X11PointerBarriers::X11PointerBarriers(X11Connection &connection, const Screens &screens)
    : m_connection(connection)
    , m_screens(screens)
    , m_listener(
          connection.addListener([this](const xcb_generic_event_t &event) { handle(event); }))
{
}

X11PointerBarriers::~X11PointerBarriers()
{
    X11PointerBarriers::watch({});
    if (m_ear != XCB_NONE)
        xcb_destroy_window(m_connection.get(), m_ear);
    m_connection.flush();
}

void X11PointerBarriers::watch(const std::vector<EdgeStretch> &stretches)
{
    m_visited = XCB_NONE;
    for (const xcb_xfixes_barrier_t barrier : std::exchange(m_barriers, {}))
        xcb_xfixes_delete_pointer_barrier(m_connection.get(), barrier);
    if (!stretches.empty() && m_connection.isConnected() && m_connection.hasPointerBarriers()) {
        listen();
        for (const Line &line : outerLines(stretches, m_screens.screens()))
            raise(line);
    }
    m_connection.flush();
}

std::vector<Line> X11PointerBarriers::outerLines(const std::vector<EdgeStretch> &stretches,
                                                 const std::vector<ScreenPointer> &screens)
{
    std::vector<Line> lines;
    for (const EdgeStretch &stretch : stretches) {
        std::vector<Line> parts = {lineOf(stretch)};
        for (const ScreenPointer &screen : screens) {
            std::vector<Line> rest;
            for (const Line &part : parts) {
                const auto pieces = without(part, screen->nativeFrame);
                rest.insert(rest.end(), pieces.begin(), pieces.end());
            }
            parts = std::move(rest);
        }
        // The server does not accept a line of a single pixel.
        std::erase_if(parts, [](const Line &part) { return part.left >= part.right; });
        lines.insert(lines.end(), parts.begin(), parts.end());
    }
    return lines;
}

void X11PointerBarriers::listen()
{
    if (m_ear != XCB_NONE)
        return;
    m_ear = xcb_generate_id(m_connection.get());
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_ear, m_connection.root(), -1, -1,
                      1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } const request = {{XCB_INPUT_DEVICE_ALL_MASTER, 1},
                       XCB_INPUT_XI_EVENT_MASK_BARRIER_HIT | XCB_INPUT_XI_EVENT_MASK_BARRIER_LEAVE};
    xcb_input_xi_select_events(m_connection.get(), m_ear, 1, &request.head);
}

void X11PointerBarriers::raise(const Line &line)
{
    const xcb_xfixes_barrier_t barrier = xcb_generate_id(m_connection.get());
    const auto y = static_cast<std::uint16_t>(line.y);
    xcb_xfixes_create_pointer_barrier(m_connection.get(), barrier, m_ear,
                                      static_cast<std::uint16_t>(line.left), y,
                                      static_cast<std::uint16_t>(line.right), y,
                                      XCB_XFIXES_BARRIER_DIRECTIONS_POSITIVE_Y, 0, nullptr);
    m_barriers.push_back(barrier);
}

void X11PointerBarriers::handle(const xcb_generic_event_t &event)
{
    if ((event.response_type & 0x7f) != XCB_GE_GENERIC)
        return;
    const auto &news = reinterpret_cast<const xcb_input_barrier_hit_event_t &>(event);
    const bool isHit = news.event_type == XCB_INPUT_BARRIER_HIT;
    if (news.extension != m_connection.xinputOpcode()
        || (!isHit && news.event_type != XCB_INPUT_BARRIER_LEAVE))
        return;
    if (!isHit)
        left(news.barrier);
    // While the pointer is grabbed (a button is held, a menu is open, a drag is going on) it does
    // not count as at the edge.
    else if ((news.flags & XCB_INPUT_BARRIER_FLAGS_DEVICE_IS_GRABBED) == 0)
        hit(news.barrier);
}

void X11PointerBarriers::hit(xcb_xfixes_barrier_t barrier)
{
    // Events of a destroyed barrier may still arrive.
    if (!isOurs(barrier) || m_visited == barrier)
        return;
    // The pointer may have come from another barrier without leaving it.
    left(m_visited);
    if (!isOurs(barrier))
        return;
    m_visited = barrier;
    if (const auto entered = onEntered)
        entered();
}

void X11PointerBarriers::left(xcb_xfixes_barrier_t barrier)
{
    if (barrier == XCB_NONE || m_visited != barrier)
        return;
    m_visited = XCB_NONE;
    if (const auto told = onLeft)
        told();
}

bool X11PointerBarriers::isOurs(xcb_xfixes_barrier_t barrier) const
{
    return std::find(m_barriers.begin(), m_barriers.end(), barrier) != m_barriers.end();
}

} // namespace corvane
