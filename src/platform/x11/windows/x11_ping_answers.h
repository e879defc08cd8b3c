#pragma once

#include "platform/x11/base/x11_connection.h"

#include <QAbstractNativeEventFilter>

namespace corvane {

/// Answers those who ask our windows whether the program is alive, as the toolkit announces for all
/// of them.
///
/// The toolkit answers as well, but only so that the window manager hears it: whoever else watches
/// over windows, a panel for instance, would take us for hung. Needs the application object.
class X11PingAnswers : public QAbstractNativeEventFilter {
public:
    /// The connection is asked for names only, and must outlive it.
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
