#include "platform/x11/drags/x11_drag_desktop.h"

#include "platform/base/checked_math.h"
#include "platform/x11/base/x11_qt.h"

#include <xcb/xinput.h>

#include <algorithm>
#include <numeric>
#include <utility>

namespace corvane {

namespace {

constexpr std::uint8_t disabledButton = 0;
constexpr std::uint8_t firstWheelButton = 4;
constexpr std::uint8_t lastWheelButton = 7;

std::uint32_t maskFor(bool hearsMotion)
{
    std::uint32_t mask
        = XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE;
    if (hearsMotion)
        mask |= XCB_INPUT_XI_EVENT_MASK_RAW_MOTION;
    return mask;
}

} // namespace

X11DragDesktop::X11DragDesktop(X11Connection &connection)
    : m_connection(connection)
    , m_selection(connection, [this] { m_changeCount = checkedAdd(m_changeCount, qint64{1}); })
    , m_listener(
          connection.addListener([this](const xcb_generic_event_t &event) { handle(event); }))
{
    std::iota(m_buttonMapping.begin(), m_buttonMapping.end(), std::uint8_t{1});
    if (!m_connection.isConnected())
        return;
    readButtonMapping();
}

X11DragDesktop::~X11DragDesktop()
{
    listenTo(Listening::Nothing);
}

Subscription X11DragDesktop::addGlobalMonitor(Handler onLeftMouseDragged)
{
    return add(What::LeftMouseDragged, std::move(onLeftMouseDragged));
}

Subscription X11DragDesktop::addLocalMonitor(Handler)
{
    return {};
}

Subscription X11DragDesktop::addLeftMouseDownMonitor(Handler onLeftMouseDown)
{
    return add(What::LeftMouseDown, std::move(onLeftMouseDown));
}

Subscription X11DragDesktop::addGlobalMouseDownMonitor(Handler onMouseDown)
{
    return add(What::MouseDownElsewhere, std::move(onMouseDown));
}

Subscription X11DragDesktop::add(What what, Handler handler)
{
    if (!canListen())
        return {};
    // Listening may begin in the middle of a drag.
    if (m_listening == Listening::Nothing)
        m_isLeftDown = (pressedMouseButtons() & left) != 0;
    const auto monitor = m_monitors.add({what, std::move(handler)});
    listen();
    return Subscription(m_lifetime.guard([this, monitor] { remove(monitor); }));
}

void X11DragDesktop::remove(ChangingList<Monitor>::Id monitor)
{
    m_monitors.remove(monitor);
    listen();
}

unsigned X11DragDesktop::pressedMouseButtons() const
{
    // A silent server ends no drag.
    if (!m_connection.isAnswering())
        return m_lastPressed;
    const auto reply = m_connection.reply<xcb_query_pointer_reply_t>(
        xcb_query_pointer(m_connection.get(), m_connection.root()));
    if (!reply)
        return m_connection.isConnected() ? m_lastPressed : 0;
    // X11 counts left, middle, right; the result has left, right, middle.
    const auto isDown = [&](unsigned mask) { return (reply->mask & mask) != 0 ? 1U : 0U; };
    m_lastPressed = isDown(XCB_BUTTON_MASK_1) * left | isDown(XCB_BUTTON_MASK_3) << 1
        | isDown(XCB_BUTTON_MASK_2) << 2;
    return m_lastPressed;
}

void X11DragDesktop::handle(const xcb_generic_event_t &event)
{
    const auto type = static_cast<std::uint8_t>(event.response_type & 0x7f);
    if (type == XCB_MAPPING_NOTIFY) {
        const auto &mapping = reinterpret_cast<const xcb_mapping_notify_event_t &>(event);
        if (mapping.request == XCB_MAPPING_POINTER)
            readButtonMapping();
    } else if (type == XCB_GE_GENERIC) {
        const auto &raw = reinterpret_cast<const xcb_input_raw_button_press_event_t &>(event);
        if (raw.extension != m_connection.xinputOpcode())
            return;
        // Motion events that were already on their way may come after the release.
        if (raw.event_type == XCB_INPUT_RAW_MOTION && m_isLeftDown)
            notify(What::LeftMouseDragged);
        else if (raw.event_type == XCB_INPUT_RAW_BUTTON_PRESS)
            handleRawButton(raw.detail, true);
        else if (raw.event_type == XCB_INPUT_RAW_BUTTON_RELEASE)
            handleRawButton(raw.detail, false);
    }
}

void X11DragDesktop::handleRawButton(std::uint32_t button, bool isPress)
{
    if (button == 0 || button > m_buttonMapping.size() || m_listening == Listening::Nothing)
        return;
    const std::uint8_t logical = m_buttonMapping[button - 1];
    if (logical >= firstWheelButton && logical <= lastWheelButton)
        return;
    noticeLeftButton(button, isPress);
    if (isPress && logical != disabledButton && hasMonitors(What::MouseDownElsewhere)
        && !isOverOwnWindow())
        notify(What::MouseDownElsewhere);
}

/// A button's number does not tell whether it is the left one, because each device may have its own
/// order. So the server is asked whether the left button is down now.
void X11DragDesktop::noticeLeftButton(std::uint32_t button, bool isPress)
{
    const bool wasDown = m_isLeftDown;
    // The release of the button that went down as the left one is believed without asking: it may
    // be down again by now.
    const bool isOwnRelease = !isPress && button == m_leftButton;
    m_isLeftDown = !isOwnRelease && (pressedMouseButtons() & left) != 0;
    if (!m_isLeftDown)
        m_leftButton = 0;
    listen();
    if (!isPress || !m_isLeftDown || wasDown)
        return;
    m_leftButton = button;
    notify(What::LeftMouseDown);
}

/// Raw events do not name a window, so the window under the pointer is asked for, from the root
/// down through the window manager's frames.
bool X11DragDesktop::isOverOwnWindow() const
{
    // More than any desktop has.
    constexpr int maximumDepth = 32;
    xcb_window_t window = m_connection.root();
    for (int depth = 0; depth < maximumDepth; ++depth) {
        const auto reply = m_connection.reply<xcb_query_pointer_reply_t>(
            xcb_query_pointer(m_connection.get(), window));
        if (!reply || reply->child == XCB_NONE)
            return false;
        if (x11_qt::isOwn(reply->child))
            return true;
        window = reply->child;
    }
    return false;
}

bool X11DragDesktop::canListen() const
{
    return m_connection.isConnected() && m_connection.hasXInput();
}

void X11DragDesktop::listen()
{
    if (hasMonitors(What::LeftMouseDragged))
        listenTo(m_isLeftDown ? Listening::ButtonsAndMotion : Listening::Buttons);
    else
        listenTo(m_monitors.isEmpty() ? Listening::Nothing : Listening::Buttons);
}

void X11DragDesktop::listenTo(Listening what)
{
    if (std::exchange(m_listening, what) == what)
        return;
    const std::uint32_t mask
        = what == Listening::Nothing ? 0 : maskFor(what == Listening::ButtonsAndMotion);
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } const request = {{XCB_INPUT_DEVICE_ALL_MASTER, 1}, mask};
    xcb_input_xi_select_events(m_connection.get(), m_connection.root(), 1, &request.head);
    m_connection.flush();
}

void X11DragDesktop::readButtonMapping()
{
    const auto reply = m_connection.reply<xcb_get_pointer_mapping_reply_t>(
        xcb_get_pointer_mapping(m_connection.get()));
    if (!reply)
        return;
    const std::uint8_t *map = xcb_get_pointer_mapping_map(reply.get());
    std::copy_n(map, xcb_get_pointer_mapping_map_length(reply.get()), m_buttonMapping.begin());
}

bool X11DragDesktop::hasMonitors(What what) const
{
    return m_monitors.anyOf([what](const Monitor &monitor) { return monitor.what == what; });
}

void X11DragDesktop::notify(What what) const
{
    m_monitors.forEach([what](const Monitor &monitor) {
        if (monitor.what == what)
            monitor.handler();
    });
}

} // namespace corvane
