#include "platform/x11/windows/x11_keyboard_focus.h"

#include "platform/x11/base/x11_qt.h"

#include <utility>

namespace corvane {

X11KeyboardFocus::X11KeyboardFocus(X11Connection &connection)
    : m_connection(connection)
    , m_windowManager(connection)
    , m_keyShield(connection)
    , m_listener(
          connection.addListener([this](const xcb_generic_event_t &event) { handle(event); }))
    , m_answers(xcb_generate_id(connection.get()))
{
    const std::uint32_t propertyChanges = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_answers, m_connection.root(), -1,
                      -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
                      XCB_CW_EVENT_MASK, &propertyChanges);
}

X11KeyboardFocus::~X11KeyboardFocus()
{
    xcb_destroy_window(m_connection.get(), m_answers);
}

/// Asked on Qt's connection, because panels are given the keyboard there: the answer then includes
/// requests that were sent before. While the server is silent the last answer stands.
xcb_window_t X11KeyboardFocus::focus() const
{
    using Reply = xcb_get_input_focus_reply_t;
    auto *const qt = x11_qt::connection();
    const auto reply = qt ? x11_qt::reply<Reply>(xcb_get_input_focus(qt))
                          : m_connection.reply<Reply>(xcb_get_input_focus(m_connection.get()));
    if (reply)
        m_lastFocus = reply->focus;
    return m_lastFocus;
}

WindowNumber X11KeyboardFocus::focusedWindow() const
{
    const xcb_window_t window = focus();
    const bool isNobody = window == XCB_INPUT_FOCUS_NONE || window == XCB_INPUT_FOCUS_POINTER_ROOT
        || window == m_connection.root();
    return isNobody ? WindowNumber::None : WindowNumber{window};
}

KeyboardFocus::Owner X11KeyboardFocus::owner() const
{
    return {WindowNumber{focus()}, WindowNumber{m_windowManager.activeWindow()}};
}

void X11KeyboardFocus::giveTo(WindowNumber panel)
{
    m_lastFocus = static_cast<xcb_window_t>(panel);
    x11_qt::giveKeyboard(m_lastFocus, m_connection.serverTime());
}

bool X11KeyboardFocus::giveBackTo(const Owner &owner)
{
    const auto active = static_cast<xcb_window_t>(owner.active);
    const auto focused = static_cast<xcb_window_t>(owner.focused);
    const xcb_timestamp_t now = m_connection.serverTime();
    if (active != XCB_NONE) {
        m_windowManager.activate(active, m_connection.get(), now);
        askForSign();
    }
    // The focus is set also if there is a window manager, after it was asked. Some do not notice
    // that a window loses the keyboard while a key is grabbed, as a hot key is; they think that the
    // window still has it, and do nothing.
    if (focused == XCB_NONE || !tryToFocus(focused, now))
        tryToFocus(XCB_INPUT_FOCUS_POINTER_ROOT, now);
    return active != XCB_NONE;
}

/// Sets the focus. False if the window is gone or hidden; the caller then takes the keyboard away
/// from the panel another way.
bool X11KeyboardFocus::tryToFocus(xcb_window_t window, xcb_timestamp_t time)
{
    m_lastFocus = window;
    const auto asked = xcb_set_input_focus_checked(m_connection.get(), XCB_INPUT_FOCUS_POINTER_ROOT,
                                                   window, time);
    return m_connection.outcomeOf({&asked, 1}) != X11Connection::Outcome::Refused;
}

bool X11KeyboardFocus::askForAnswer()
{
    if (!m_windowManager.isRunning())
        return false;
    // What Qt was told to do with its windows is asked for on its own connection: once the server
    // answers there it has told the window manager of that.
    focus();
    askForSign();
    return true;
}

void X11KeyboardFocus::observeAnswers(std::function<void()> callback)
{
    m_observers.add(std::move(callback));
}

bool X11KeyboardFocus::isLeftButtonDown() const
{
    const auto reply = m_connection.reply<xcb_query_pointer_reply_t>(
        xcb_query_pointer(m_connection.get(), m_connection.root()));
    return reply && (reply->mask & XCB_BUTTON_MASK_1) != 0;
}

void X11KeyboardFocus::handle(const xcb_generic_event_t &event)
{
    if (m_windowManager.isSign(event, m_answers))
        m_observers.notify();
}

} // namespace corvane
