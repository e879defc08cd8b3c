#include "platform/x11/base/x11_qt.h"

#include "platform/x11/base/x11_connection.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QWindow>

#include <poll.h>
#include <xcb/xcbext.h>

#include <ctime>
#include <optional>

namespace corvane::x11_qt {

namespace {

QNativeInterface::QX11Application *application()
{
    return qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
}

/// A request that the server has left unanswered.
struct Overdue {
    xcb_connection_t *connection = nullptr;
    unsigned int sequence = 0;
};
std::optional<Overdue> overdue;

constexpr timespec leaveToReader = {.tv_sec = 0, .tv_nsec = 50'000};

} // namespace

xcb_connection_t *connection()
{
    const auto *x11 = application();
    return x11 ? x11->connection() : nullptr;
}

bool isOwn(xcb_window_t window)
{
    auto *const qt = connection();
    if (!qt)
        return false;
    const xcb_setup_t *setup = xcb_get_setup(qt);
    return (window & ~setup->resource_id_mask) == setup->resource_id_base;
}

xcb_window_t nativeWindow(const QWindow &window)
{
    return window.handle() ? static_cast<xcb_window_t>(window.winId()) : XCB_NONE;
}

// Not by Qt: it would name the time of the latest event that it got. If the user's key or click
// went to another program, that time may be older than the last change of the focus, and the server
// ignores the request.
void giveKeyboard(xcb_window_t window, xcb_timestamp_t time)
{
    auto *const qt = connection();
    if (!qt || window == XCB_NONE)
        return;
    ignoreErrors(xcb_set_input_focus_checked(qt, XCB_INPUT_FOCUS_PARENT, window, time));
    xcb_flush(qt);
}

bool isAnswering()
{
    if (!overdue || overdue->connection != connection())
        return true;
    void *answer = nullptr;
    xcb_generic_error_t *error = nullptr;
    // A thread of Qt's reads what comes.
    if (xcb_poll_for_reply(overdue->connection, overdue->sequence, &answer, &error) == 0)
        return false;
    const X11Reply<void> ignored(answer);
    const X11Reply<xcb_generic_error_t> ignoredToo(error);
    overdue.reset();
    return true;
}

void *answerTo(unsigned int sequence)
{
    auto *const qt = connection();
    if (!isAnswering()) {
        xcb_discard_reply(qt, sequence);
        return nullptr;
    }
    xcb_flush(qt);
    const QDeadlineTimer deadline(X11Connection::answerPatience);
    void *answer = nullptr;
    xcb_generic_error_t *error = nullptr;
    while (xcb_poll_for_reply(qt, sequence, &answer, &error) == 0) {
        if (deadline.hasExpired()) {
            overdue = {qt, sequence};
            return nullptr;
        }
        // A thread of Qt's reads what comes, so that there may be no more to be seen of it here.
        pollfd waiting = {xcb_get_file_descriptor(qt), POLLIN, 0};
        // What has come stays readable until that thread runs: leave it the processor.
        if (::poll(&waiting, 1, 1) > 0)
            ::ppoll(nullptr, 0, &leaveToReader, nullptr);
    }
    const X11Reply<xcb_generic_error_t> ignored(error);
    return answer;
}

void ignoreErrors(xcb_void_cookie_t cookie)
{
    xcb_discard_reply(connection(), cookie.sequence);
}

} // namespace corvane::x11_qt
