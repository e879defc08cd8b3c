#include "platform/x11/windows/xwayland_keyboard_focus.h"

#include <array>
#include <utility>

namespace corvane {

namespace {

/// A compositor takes a change for its own until it has asked the server for something since, or,
/// with some versions, for two things. Each answer to us is one.
constexpr int answersUntilChangesCount = 2;

} // namespace

XWaylandKeyboardFocus::XWaylandKeyboardFocus(X11Connection &connection)
    : X11KeyboardFocus(connection)
    , m_connection(connection)
    , m_windowManager(connection)
    , m_listener(
          connection.addListener([this](const xcb_generic_event_t &event) { handle(event); }))
    , m_questions(xcb_generate_id(connection.get()))
    , m_goesAway(xcb_generate_id(connection.get()))
{
    const std::uint32_t propertyChanges = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_questions, m_connection.root(),
                      -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
                      XCB_CW_EVENT_MASK, &propertyChanges);
    const std::array<std::uint32_t, 2> backgroundAndNoManager = {0, 1};
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_goesAway, m_connection.root(), -1,
                      -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, backgroundAndNoManager.data());
    xcb_map_window(m_connection.get(), m_goesAway);
    m_connection.flush();
}

XWaylandKeyboardFocus::~XWaylandKeyboardFocus()
{
    xcb_destroy_window(m_connection.get(), m_goesAway);
    xcb_destroy_window(m_connection.get(), m_questions);
}

WindowNumber XWaylandKeyboardFocus::focusedWindow() const
{
    const WindowNumber window = X11KeyboardFocus::focusedWindow();
    return window == WindowNumber::None ? somebodyElse : window;
}

KeyboardFocus::Owner XWaylandKeyboardFocus::owner() const
{
    const Owner owner = X11KeyboardFocus::owner();
    const auto active = static_cast<xcb_window_t>(owner.active);
    const bool isSomebodyElse = active == XCB_NONE || m_windowManager.isItsOwn(active);
    return isSomebodyElse ? Owner{.focused = somebodyElse} : owner;
}

void XWaylandKeyboardFocus::giveTo(WindowNumber panel)
{
    X11KeyboardFocus::giveTo(panel);
    m_given = panel;
    for (int i = 0; i < answersUntilChangesCount; ++i)
        m_windowManager.askForSign(m_questions);
    m_awaitedAnswers += answersUntilChangesCount;
}

void XWaylandKeyboardFocus::handle(const xcb_generic_event_t &event)
{
    if (!m_windowManager.isSign(event, m_questions))
        return;
    --m_awaitedAnswers;
    if (m_awaitedAnswers > 0 || m_given == WindowNumber::None)
        return;
    const WindowNumber panel = std::exchange(m_given, WindowNumber::None);
    const bool isKnown = WindowNumber{m_windowManager.activeWindow()} == panel;
    if (isKnown || X11KeyboardFocus::focusedWindow() != panel)
        return;
    focus(m_goesAway);
    focus(static_cast<xcb_window_t>(panel));
}

/// On our own connection, so that one change follows the other.
void XWaylandKeyboardFocus::focus(xcb_window_t window)
{
    xcb_set_input_focus(m_connection.get(), XCB_INPUT_FOCUS_POINTER_ROOT, window,
                        m_connection.serverTime());
    m_connection.flush();
}

bool XWaylandKeyboardFocus::giveBackTo(const Owner &owner)
{
    m_given = WindowNumber::None;
    if (owner.active != WindowNumber::None)
        return X11KeyboardFocus::giveBackTo(owner);
    xcb_connection_t *const connection = m_connection.get();
    focus(m_goesAway);
    xcb_unmap_window(connection, m_goesAway);
    xcb_map_window(connection, m_goesAway);
    askForSign();
    return true;
}

} // namespace corvane
