#pragma once

#include <QtGlobal>

#include <xcb/xcb.h>

#include <cstdint>

class QWindow;

/// Qt's own connection to the X server.
namespace corvane::x11_qt {

/// Null where Qt does not run on X11.
xcb_connection_t *connection();
/// Whether a window of any client is one of Qt's in this process.
bool isOwn(xcb_window_t window);
xcb_window_t nativeWindow(const QWindow &window);
/// Gives the keyboard to a window of Qt's that the window manager does not know, as of a time of
/// the server. What Qt was told to do with the window before is done by then.
void giveKeyboard(xcb_window_t window, xcb_timestamp_t time);
/// The answers to such requests interest nobody: the window may be gone by now.
void ignoreErrors(xcb_void_cookie_t cookie);

} // namespace corvane::x11_qt
