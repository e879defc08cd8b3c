#include "platform/x11/windows/x11_user_whereabouts.h"

#include <xcb/shape.h>

#include <algorithm>
#include <array>
#include <utility>

namespace corvane {

namespace {

/// Outside of all screens: wherever it is put, it is moved.
constexpr QPoint nowhere(-10, -10);

/// The first words of WM_HINTS: what is said there, and whether the window takes the keyboard.
constexpr std::array<std::uint32_t, 9> takesNoKeyboard = {1, 0};
/// Of _MOTIF_WM_HINTS: that decorations are said, and that there are none.
constexpr std::array<std::uint32_t, 5> hasNoDecorations = {2, 0, 0};

} // namespace

X11UserWhereabouts::X11UserWhereabouts(X11Connection &connection, MainQueue &queue,
                                       const Screens &screens)
    : ScreenSearch(queue, screens)
    , m_connection(connection)
    , m_listener(
          connection.addListener([this](const xcb_generic_event_t &event) { handle(event); }))
{
}

X11UserWhereabouts::~X11UserWhereabouts()
{
    if (m_window != XCB_NONE)
        xcb_destroy_window(m_connection.get(), m_window);
    m_connection.flush();
}

bool X11UserWhereabouts::begin()
{
    showWindow();
    giveUpAfter(patience);
    return true;
}

void X11UserWhereabouts::end()
{
    xcb_destroy_window(m_connection.get(), std::exchange(m_window, XCB_NONE));
    m_connection.flush();
}

void X11UserWhereabouts::showWindow()
{
    xcb_connection_t *const xcb = m_connection.get();
    m_window = xcb_generate_id(xcb);
    m_place = nowhere;
    const std::uint32_t itsChanges = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_create_window(xcb, XCB_COPY_FROM_PARENT, m_window, m_connection.root(), nowhere.x(),
                      nowhere.y(), 1, 1, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_EVENT_MASK, &itsChanges);
    xcb_shape_rectangles(xcb, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, XCB_CLIP_ORDERING_UNSORTED,
                         m_window, 0, 0, 0, nullptr);
    const auto say = [&](xcb_atom_t property, xcb_atom_t type, const auto &words) {
        xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, m_window, property, type, 32,
                            static_cast<std::uint32_t>(words.size()), words.data());
    };
    say(XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, takesNoKeyboard);
    const xcb_atom_t decorations = m_connection.atom("_MOTIF_WM_HINTS");
    say(decorations, decorations, hasNoDecorations);
    // It is in no list of windows, and nobody asked for it.
    say(m_connection.atom("_NET_WM_STATE"), XCB_ATOM_ATOM,
        std::array{m_connection.atom("_NET_WM_STATE_SKIP_TASKBAR"),
                   m_connection.atom("_NET_WM_STATE_SKIP_PAGER")});
    say(m_connection.atom("_NET_WM_USER_TIME"), XCB_ATOM_CARDINAL, std::array<std::uint32_t, 1>{});
    xcb_map_window(xcb, m_window);
    m_connection.flush();
}

void X11UserWhereabouts::handle(const xcb_generic_event_t &event)
{
    constexpr std::uint8_t withoutSender = 0x7f;
    const int type = event.response_type & withoutSender;
    if (m_window == XCB_NONE)
        return;
    if (type == XCB_CONFIGURE_NOTIFY) {
        const auto &change = reinterpret_cast<const xcb_configure_notify_event_t &>(event);
        if (change.window == m_window)
            m_place = {change.x, change.y};
    } else if (type == XCB_MAP_NOTIFY) {
        const auto &shown = reinterpret_cast<const xcb_map_notify_event_t &>(event);
        if (shown.window == m_window)
            wasPut();
    }
}

/// Before it is shown a window may be moved more than once.
void X11UserWhereabouts::wasPut()
{
    const auto attached = screens().screens();
    const auto at = std::ranges::find_if(attached, [this](const ScreenPointer &screen) {
        return screen->nativeFrame.contains(m_place);
    });
    if (at != attached.end())
        found(*at);
}

} // namespace corvane
