#include "platform/x11/windows/x11_strip_surface.h"

#include "platform/desktop/screens.h"
#include "platform/x11/base/x11_qt.h"

#include <QSurfaceFormat>
#include <QVariant>
#include <QWindow>

namespace corvane {

std::unique_ptr<QWindow> X11StripSurface::show(const Screen &screen, const QRect &area)
{
    auto window = std::make_unique<QWindow>();
    window->setSurfaceType(QSurface::RasterSurface);
    QSurfaceFormat format;
    format.setAlphaBufferSize(8);
    window->setFormat(format);
    window->setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
                     | Qt::WindowDoesNotAcceptFocus | Qt::NoDropShadowWindowHint);
    window->setProperty("_q_showWithoutActivating", QVariant(true));
    // Qt has the corners of screens where the server has them, whatever the scale.
    window->setGeometry(area.translated(screen.nativeFrame.topLeft()));
    window->create();
    auto *const qt = x11_qt::connection();
    if (!qt)
        return nullptr;
    const xcb_window_t native = x11_qt::nativeWindow(*window);
    const xcb_atom_t dock = m_connection.atom("_NET_WM_WINDOW_TYPE_DOCK");
    xcb_change_property(qt, XCB_PROP_MODE_REPLACE, native, m_connection.atom("_NET_WM_WINDOW_TYPE"),
                        XCB_ATOM_ATOM, 32, 1, &dock);
    // The server itself paints it, with nothing.
    const std::uint32_t transparent = 0;
    xcb_change_window_attributes(qt, native, XCB_CW_BACK_PIXEL, &transparent);
    window->show();
    xcb_flush(qt);
    return window;
}

} // namespace corvane
