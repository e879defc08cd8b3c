#include "platform/qt/desktop/qt_tip_window.h"

#include "platform/desktop/compositing.h"
#include "platform/desktop/panel_surface.h"
#include "platform/qt/desktop/outline_region.h"

#include <QPainter>
#include <QTransform>

namespace corvane {

QtTipWindow::QtTipWindow(const PanelDesktop &desktop)
    : m_desktop(desktop)
    , m_canvas([this](QPainter &painter) { paint(painter); }, [](QEvent &) { return false; })
{
    m_desktop.surface.adopt(m_canvas);
    m_desktop.surface.setInputRegion(m_canvas, {});
}

QtTipWindow::~QtTipWindow()
{
    QtTipWindow::hide();
}

void QtTipWindow::show(const PanelPlacement &placement, const Content &content)
{
    m_content = content;
    place(placement);
    cutToOutline();
    if (!m_canvas.isVisible()) {
        m_desktop.surface.willShow(m_canvas);
        // Raised before it is mapped, or it would appear at its old place in the stack.
        m_canvas.raise();
        m_canvas.show();
    }
    raise();
}

void QtTipWindow::place(const PanelPlacement &placement)
{
    m_size = placement.size;
    m_contentScale = placement.scale;
    const PanelSpace space = m_desktop.surface.place(m_canvas, placement);
    m_origin = space.panel;
    m_canvas.setCanvasSize(space.window);
    m_canvas.repaintSoon(QRect({}, space.window));
}

void QtTipWindow::cutToOutline()
{
    QRegion region;
    if (!m_desktop.compositing.isComposited()) {
        const double pixels = m_canvas.devicePixelRatio();
        const double scale = pixels * m_contentScale;
        const QTransform toPixels(scale, 0, 0, -scale, m_origin.x() * pixels, bottom() * pixels);
        region = outlineRegion(toPixels.map(m_content.outline), (m_size * pixels).toSize());
    }
    m_desktop.surface.setBoundingRegion(m_canvas, region);
}

void QtTipWindow::raise()
{
    if (m_canvas.isVisible())
        m_canvas.raise();
}

void QtTipWindow::hide()
{
    if (!m_canvas.isVisible())
        return;
    m_canvas.hide();
    m_desktop.surface.didHide(m_canvas);
}

void QtTipWindow::paint(QPainter &painter) const
{
    if (!m_content.paint)
        return;
    painter.translate(m_origin.x(), bottom());
    painter.scale(m_contentScale, -m_contentScale);
    m_content.paint(painter, m_canvas.devicePixelRatio() * m_contentScale);
}

} // namespace corvane
