#pragma once

#include "platform/reports/full_screen_windows.h"
#include "platform/x11/base/x11_connection.h"

#include <QRect>

#include <optional>

namespace corvane {

/// Finds full-screen windows: those that window managers mark as such, and unmanaged windows that
/// cover a whole screen. The server is asked at each call. The connection must outlive it.
class X11FullScreenWindows : public FullScreenWindows {
public:
    explicit X11FullScreenWindows(X11Connection &connection)
        : m_connection(connection)
    {
    }

    bool isCovered(const Screen &screen) const override;

private:
    bool isFullScreen(xcb_window_t window) const;
    bool coversUnmanaged(xcb_window_t window, const QRect &screen) const;
    bool hasAtom(xcb_window_t window, const char *property, const char *value) const;
    xcb_window_t childAt(xcb_window_t window, QPoint point) const;
    std::optional<QRect> frameOf(xcb_window_t window) const;

    X11Connection &m_connection;
};

} // namespace corvane
