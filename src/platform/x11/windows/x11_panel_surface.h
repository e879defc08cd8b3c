#pragma once

#include "platform/desktop/panel_surface.h"
#include "platform/x11/base/x11_connection.h"

namespace corvane {

/// Panels on X11: windows that no window manager manages, so that they are exactly where they are
/// placed, on every workspace. Requests are flushed at once, since they may come from timers. The
/// connection must outlive it.
class X11PanelSurface : public PanelSurface {
public:
    explicit X11PanelSurface(X11Connection &connection)
        : m_connection(connection)
    {
    }

    void adopt(QWindow &window) override;
    PanelSpace place(QWindow &window, const PanelPlacement &placement) override;
    QScreen *screenOf(const QWindow &window) const override;
    void willShow(QWindow &window) override;
    void didHide(QWindow &window) override;
    void setInputRegion(QWindow &window, const QRegion &region) override;
    void setBoundingRegion(QWindow &window, const QRegion &region) override;

private:
    X11Connection &m_connection;
};

} // namespace corvane
