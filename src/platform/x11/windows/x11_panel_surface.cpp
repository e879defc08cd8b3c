#include "platform/x11/windows/x11_panel_surface.h"

#include "platform/base/geometry.h"
#include "platform/base/whole_points.h"
#include "platform/x11/base/x11_qt.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <xcb/shape.h>

#include <vector>

namespace corvane {

namespace {

std::vector<xcb_rectangle_t> rectanglesOf(const QRegion &region)
{
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect &rect : region)
        rectangles.push_back(
            {static_cast<std::int16_t>(rect.x()), static_cast<std::int16_t>(rect.y()),
             static_cast<std::uint16_t>(rect.width()), static_cast<std::uint16_t>(rect.height())});
    return rectangles;
}

void setShape(const QWindow &window, xcb_shape_kind_t kind, const QRegion &region)
{
    auto *const qt = x11_qt::connection();
    const xcb_window_t native = x11_qt::nativeWindow(window);
    if (!qt || native == XCB_NONE)
        return;
    const auto rectangles = rectanglesOf(region);
    x11_qt::ignoreErrors(xcb_shape_rectangles_checked(
        qt, XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_UNSORTED, native, 0, 0,
        static_cast<std::uint32_t>(rectangles.size()), rectangles.data()));
    xcb_flush(qt);
}

void clearShape(const QWindow &window, xcb_shape_kind_t kind)
{
    auto *const qt = x11_qt::connection();
    const xcb_window_t native = x11_qt::nativeWindow(window);
    if (!qt || native == XCB_NONE)
        return;
    x11_qt::ignoreErrors(
        xcb_shape_mask_checked(qt, XCB_SHAPE_SO_SET, kind, native, 0, 0, XCB_PIXMAP_NONE));
    xcb_flush(qt);
}

/// A screen's upper edge in Qt's coordinates, y downward. Of the primary screen for none, because
/// here no window manager chooses; empty if there is no screen at all.
QRectF upperEdge(const Screen *screen)
{
    // Qt has the corners of screens where the server has them, whatever the scale.
    if (screen)
        return {screen->nativeFrame.topLeft(), QSizeF(screen->frame.width(), 0)};
    const QScreen *const primary = QGuiApplication::primaryScreen();
    return primary ? QRectF(primary->geometry().topLeft(), QSizeF(primary->geometry().width(), 0))
                   : QRectF();
}

void flushQt()
{
    if (auto *const qt = x11_qt::connection())
        xcb_flush(qt);
}

} // namespace

void X11PanelSurface::adopt(QWindow &window)
{
    window.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint
                    | Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint);
    // Qt then shows the window without activating it. `QWidget` has an attribute for that; a bare
    // window has only this property.
    window.setProperty("_q_showWithoutActivating", true);
    window.create();
    auto *const qt = x11_qt::connection();
    if (!qt)
        return;
    // Otherwise compositors draw a shadow around the whole window, also where the panel is
    // transparent.
    const std::uint32_t noShadow = 0;
    xcb_change_property(qt, XCB_PROP_MODE_REPLACE, x11_qt::nativeWindow(window),
                        m_connection.atom("_COMPTON_SHADOW"), XCB_ATOM_CARDINAL, 32, 1, &noShadow);
    xcb_flush(qt);
}

PanelSpace X11PanelSurface::place(QWindow &window, const PanelPlacement &placement)
{
    const QRectF edge = upperEdge(placement.screen.get());
    const QPointF corner(midX(edge) + placement.fromMiddle - 0.5 * placement.size.width(),
                         edge.y() + placement.fromTop);
    window.setGeometry(inWholePoints(QRectF(corner, placement.size)));
    flushQt();
    return {inWholePoints(placement.size), {}};
}

QScreen *X11PanelSurface::screenOf(const QWindow &window) const
{
    return QGuiApplication::screenAt(window.geometry().center());
}

void X11PanelSurface::willShow(QWindow &)
{
    // Nothing to prepare on X11.
}

void X11PanelSurface::didHide(QWindow &)
{
    flushQt();
}

void X11PanelSurface::setInputRegion(QWindow &window, const QRegion &region)
{
    setShape(window, XCB_SHAPE_SK_INPUT, region);
}

void X11PanelSurface::setBoundingRegion(QWindow &window, const QRegion &region)
{
    if (region.isEmpty())
        clearShape(window, XCB_SHAPE_SK_BOUNDING);
    else
        setShape(window, XCB_SHAPE_SK_BOUNDING, region);
}

} // namespace corvane
