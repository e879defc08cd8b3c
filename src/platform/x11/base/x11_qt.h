#pragma once

#include "platform/x11/base/x11_reply.h"

#include <QtGlobal>

#include <xcb/xcb.h>

#include <cstdint>

class QWindow;

/// Helpers for Qt's own connection to the X server and the windows on it.
namespace corvane::x11_qt {

/// Null where Qt does not run on X11.
xcb_connection_t *connection();
/// Whether the window was made on Qt's connection, that is, by this process.
bool isOwn(xcb_window_t window);
/// The X window; `XCB_NONE` where it has not been created.
xcb_window_t nativeWindow(const QWindow &window);
/// Gives the keyboard to a window of Qt's that the window manager does not manage. `time` is a time
/// of the server. Uses Qt's connection, so that Qt's earlier requests for the window come first.
void giveKeyboard(xcb_window_t window, xcb_timestamp_t time);
/// False while the server leaves a request of `reply` unanswered.
bool isAnswering();
/// Waits for an answer as `reply` does; the caller frees it.
void *answerTo(unsigned int sequence);
/// The answer to a request on Qt's connection, as `X11Connection::reply` gives it. Always bounded.
template<typename Reply, typename Cookie>
X11Reply<Reply> reply(Cookie cookie)
{
    return X11Reply<Reply>(static_cast<Reply *>(answerTo(cookie.sequence)));
}
/// Ignores an error of a request on Qt's connection: the window that it names may be gone.
void ignoreErrors(xcb_void_cookie_t cookie);

} // namespace corvane::x11_qt
