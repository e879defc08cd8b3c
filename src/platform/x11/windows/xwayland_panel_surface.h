#pragma once

#include "platform/x11/windows/x11_panel_surface.h"

#include <QObject>

#include <functional>

namespace corvane {

/// Panels on the X server of a Wayland compositor, which tells of the pointer only while it is over
/// one of our windows.
class XWaylandPanelSurface : public QObject, public X11PanelSurface {
public:
    using X11PanelSurface::X11PanelSurface;

    void adopt(QWindow &window) override;

    /// The pointer moves over a panel with no button held, so that nothing is dragged. May be
    /// empty.
    ///
    /// That it enters one counts for nothing: the X server says so of a panel that comes up where
    /// the pointer was when it was last over one of X11's windows.
    std::function<void()> onPointer;

    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace corvane
