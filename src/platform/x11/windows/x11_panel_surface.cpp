#include "platform/x11/windows/x11_panel_surface.h"

#include "platform/x11/base/x11_qt.h"
#include "platform/x11/base/x11_reply.h"

#include <QByteArray>
#include <QWindow>

#include <xcb/shape.h>
#include <xcb/xfixes.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace corvane {

namespace {

std::vector<xcb_rectangle_t> rectanglesOf(const QRegion &region)
{
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect &rect : region)
        rectangles.push_back(
            {static_cast<std::int16_t>(rect.x()), static_cast<std::int16_t>(rect.y()),
             static_cast<std::uint16_t>(rect.width()), static_cast<std::uint16_t>(rect.height())});
    return rectangles;
}

void setShape(const QWindow &window, xcb_shape_kind_t kind, const QRegion &region)
{
    auto *const qt = x11_qt::connection();
    const xcb_window_t native = x11_qt::nativeWindow(window);
    if (!qt || native == XCB_NONE)
        return;
    const auto rectangles = rectanglesOf(region);
    x11_qt::ignoreErrors(xcb_shape_rectangles_checked(
        qt, XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_UNSORTED, native, 0, 0,
        static_cast<std::uint32_t>(rectangles.size()), rectangles.data()));
    xcb_flush(qt);
}

void clearShape(const QWindow &window, xcb_shape_kind_t kind)
{
    auto *const qt = x11_qt::connection();
    const xcb_window_t native = x11_qt::nativeWindow(window);
    if (!qt || native == XCB_NONE)
        return;
    x11_qt::ignoreErrors(
        xcb_shape_mask_checked(qt, XCB_SHAPE_SO_SET, kind, native, 0, 0, XCB_PIXMAP_NONE));
    xcb_flush(qt);
}

void flushQt()
{
    if (auto *const qt = x11_qt::connection())
        xcb_flush(qt);
}

} // namespace

X11PanelSurface::X11PanelSurface(X11Connection &connection)
    : m_connection(connection)
    , m_windowManager(connection)
    , m_pointingDevices(connection)
    , m_keyShield(connection)
    , m_listener(
          connection.addListener([this](const xcb_generic_event_t &event) { handle(event); }))
{
    const QByteArray name = "_NET_WM_CM_S" + QByteArray::number(m_connection.screenNumber());
    m_compositorSelection = m_connection.atom(name.constData());
    if (m_connection.hasXFixes())
        xcb_xfixes_select_selection_input(
            m_connection.get(), m_connection.root(), m_compositorSelection,
            XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    const X11Reply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        m_connection.get(), xcb_get_selection_owner(m_connection.get(), m_compositorSelection),
        nullptr));
    m_isComposited = owner && owner->owner != XCB_NONE;
}

X11PanelSurface::~X11PanelSurface() = default;

void X11PanelSurface::adopt(QWindow &window)
{
    auto *const qt = x11_qt::connection();
    if (!qt)
        return;
    std::erase_if(m_panels, [](const QPointer<QWindow> &panel) { return panel.isNull(); });
    m_panels.emplace_back(&window);
    // Compositors would draw a shadow around the whole window, body or not.
    const std::uint32_t noShadow = 0;
    xcb_change_property(qt, XCB_PROP_MODE_REPLACE, x11_qt::nativeWindow(window),
                        m_connection.atom("_COMPTON_SHADOW"), XCB_ATOM_CARDINAL, 32, 1, &noShadow);
    xcb_flush(qt);
}

void X11PanelSurface::place(QWindow &window, const QRect &geometry)
{
    window.setGeometry(geometry);
    flushQt();
}

void X11PanelSurface::willShow(QWindow &)
{
    // It is already all that it should be.
}

void X11PanelSurface::didHide(QWindow &)
{
    flushQt();
}

void X11PanelSurface::setInputRegion(QWindow &window, const QRegion &region)
{
    setShape(window, XCB_SHAPE_SK_INPUT, region);
}

void X11PanelSurface::setBoundingRegion(QWindow &window, const QRegion &region)
{
    if (region.isEmpty())
        clearShape(window, XCB_SHAPE_SK_BOUNDING);
    else
        setShape(window, XCB_SHAPE_SK_BOUNDING, region);
}

void X11PanelSurface::takeKeyboard(QWindow &window)
{
    const xcb_window_t focus = focusedWindow();
    if (focus == x11_qt::nativeWindow(window))
        return;
    if (!isPanel(focus)) {
        m_previousFocus = focus;
        m_previousActive = m_windowManager.activeWindow();
    }
    x11_qt::giveKeyboard(window, m_connection.serverTime());
}

void X11PanelSurface::giveKeyboardBack(QWindow &window)
{
    // Somebody else has it by now: the user went on, or to another panel.
    if (focusedWindow() == x11_qt::nativeWindow(window))
        giveToPrevious();
}

void X11PanelSurface::giveKeyboardBack()
{
    if (isPanel(focusedWindow()))
        giveToPrevious();
}

void X11PanelSurface::giveUnclaimedKeyboardBack()
{
    if (keyboardHolder() == KeyboardHolder::Nobody)
        giveToPrevious();
}

KeyboardHolder X11PanelSurface::keyboardHolder() const
{
    const xcb_window_t focus = focusedWindow();
    if (focus == XCB_INPUT_FOCUS_NONE || focus == XCB_INPUT_FOCUS_POINTER_ROOT
        || focus == m_connection.root())
        return KeyboardHolder::Nobody;
    return isPanel(focus) ? KeyboardHolder::Panel : KeyboardHolder::Other;
}

void X11PanelSurface::giveToPrevious()
{
    const xcb_window_t active = std::exchange(m_previousActive, XCB_NONE);
    const xcb_window_t focus = std::exchange(m_previousFocus, XCB_NONE);
    const xcb_timestamp_t now = m_connection.serverTime();
    if (active != XCB_NONE)
        m_windowManager.activate(active, m_connection.get(), now);
    // Also where there is a window manager, and after it was asked, so that it expects this. Some
    // do not see that a window loses the keyboard while a key is grabbed, as a hot key is: they
    // think that it has it still, and do nothing.
    if (focus == XCB_NONE || !tryToFocus(focus, now))
        tryToFocus(XCB_INPUT_FOCUS_POINTER_ROOT, now);
}

/// False where the window is gone or hidden: a panel must not keep the keyboard for that.
bool X11PanelSurface::tryToFocus(xcb_window_t window, xcb_timestamp_t time)
{
    const X11Reply<xcb_generic_error_t> error(
        xcb_request_check(m_connection.get(),
                          xcb_set_input_focus_checked(m_connection.get(),
                                                      XCB_INPUT_FOCUS_POINTER_ROOT, window, time)));
    return !error;
}

bool X11PanelSurface::isLeftButtonDown() const
{
    const X11Reply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
        m_connection.get(), xcb_query_pointer(m_connection.get(), m_connection.root()), nullptr));
    return reply && (reply->mask & XCB_BUTTON_MASK_1) != 0;
}

void X11PanelSurface::observeComposited(std::function<void()> callback)
{
    m_observers.add(std::move(callback));
}

void X11PanelSurface::handle(const xcb_generic_event_t &event)
{
    if (!m_connection.isSelectionNotify(event))
        return;
    const auto &news = reinterpret_cast<const xcb_xfixes_selection_notify_event_t &>(event);
    if (news.selection != m_compositorSelection)
        return;
    const bool isComposited
        = news.subtype == XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER && news.owner != XCB_NONE;
    if (std::exchange(m_isComposited, isComposited) != isComposited)
        m_observers.notify();
}

/// Asked for on Qt's connection, on which panels are given the keyboard: behind what was asked for
/// there.
xcb_window_t X11PanelSurface::focusedWindow() const
{
    auto *const qt = x11_qt::connection();
    auto *const connection = qt ? qt : m_connection.get();
    const X11Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    return reply ? reply->focus : XCB_NONE;
}

bool X11PanelSurface::isPanel(xcb_window_t window) const
{
    // A window that is gone has given its number back, and another program may have it by now.
    return std::ranges::any_of(m_panels, [=](const QPointer<QWindow> &panel) {
        return panel && x11_qt::nativeWindow(*panel) == window;
    });
}

} // namespace corvane
