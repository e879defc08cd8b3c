#pragma once

#include "platform/x11/base/x11_connection.h"

#include <QAbstractNativeEventFilter>

namespace corvane {

/// Answers `_NET_WM_PING`, by which other programs ask whether ours is alive. Qt announces for all
/// our windows that they answer it.
///
/// Qt's own answer reaches only the window manager; other programs that ping, such as panels, would
/// think that we hang. Needs the application object.
class X11PingAnswers : public QAbstractNativeEventFilter {
public:
    /// The connection is used for atoms and the root window, and must outlive it.
    explicit X11PingAnswers(X11Connection &connection);
    ~X11PingAnswers() override;
    X11PingAnswers(const X11PingAnswers &) = delete;
    X11PingAnswers &operator=(const X11PingAnswers &) = delete;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    xcb_window_t m_root;
    xcb_atom_t m_protocols;
    xcb_atom_t m_ping;
};

} // namespace corvane
