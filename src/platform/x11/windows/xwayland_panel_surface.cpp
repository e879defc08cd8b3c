#include "platform/x11/windows/xwayland_panel_surface.h"

#include <QMouseEvent>
#include <QWindow>

namespace corvane {

void XWaylandPanelSurface::adopt(QWindow &window)
{
    X11PanelSurface::adopt(window);
    window.installEventFilter(this);
}

bool XWaylandPanelSurface::eventFilter(QObject * /*watched*/, QEvent *event)
{
    if (event->type() != QEvent::MouseMove)
        return false;
    const auto *const move = dynamic_cast<const QMouseEvent *>(event);
    if (move && move->buttons() == Qt::NoButton && onPointer)
        onPointer();
    return false;
}

} // namespace corvane
