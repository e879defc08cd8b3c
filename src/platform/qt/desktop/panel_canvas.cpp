#include "platform/qt/desktop/panel_canvas.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>

#include <utility>

namespace corvane {

PanelCanvas::PanelCanvas(Paint paint, Handle handle)
    : m_paint(std::move(paint))
    , m_handle(std::move(handle))
    , m_store(this)
{
    setSurfaceType(QSurface::RasterSurface);
    QSurfaceFormat format;
    format.setAlphaBufferSize(8);
    setFormat(format);
}

void PanelCanvas::setCanvasSize(QSize size)
{
    if (std::exchange(m_size, size) != size)
        repaintSoon(QRect({}, size));
}

void PanelCanvas::forgetOwner()
{
    m_hasOwner = false;
}

QAccessibleInterface *PanelCanvas::accessibleRoot() const
{
    return isVisible() && makeAccessible
        ? QAccessible::queryAccessibleInterface(const_cast<PanelCanvas *>(this))
        : nullptr;
}

void PanelCanvas::repaintSoon(const QRegion &region)
{
    m_dirty |= region;
    if (m_dirty.isEmpty() || !isVisible() || std::exchange(m_isRepaintDue, true))
        return;
    QCoreApplication::postEvent(this, new QEvent(QEvent::UpdateRequest), Qt::HighEventPriority);
}

bool PanelCanvas::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::UpdateRequest:
        m_isRepaintDue = false;
        repaint();
        return true;
    case QEvent::Paint:
        exposed(static_cast<QPaintEvent *>(event)->region());
        return true;
    case QEvent::Show:
        repaintSoon(QRect({}, m_size));
        break;
    case QEvent::Close:
        // Only its owner hides a panel, so requests to close it are ignored.
        event->ignore();
        return true;
    default:
        break;
    }
    return (m_hasOwner && m_handle(*event)) || QWindow::event(event);
}

void PanelCanvas::exposed(const QRegion &region)
{
    if (!isExposed())
        return;
    // The window may be on a screen with another scale now.
    if (m_storeScale != devicePixelRatio())
        m_dirty = QRect({}, m_size);
    if (m_dirty.isEmpty())
        m_store.flush(region & QRect({}, m_size));
    else
        repaint();
}

bool PanelCanvas::prepareStore()
{
    if (m_size.isEmpty())
        return false;
    if (m_store.size() != m_size || m_storeScale != devicePixelRatio()) {
        m_storeScale = devicePixelRatio();
        m_store.resize(m_size);
        m_dirty = QRect({}, m_size);
    }
    return true;
}

void PanelCanvas::repaint()
{
    // Not `isExposed`: a window that has just been mapped accepts pixels before Qt reports that it
    // is exposed.
    if (!m_hasOwner || !isVisible() || !prepareStore())
        return;
    const QRegion region = std::exchange(m_dirty, {}) & QRect({}, m_size);
    if (region.isEmpty())
        return;
    m_store.beginPaint(region);
    {
        QPainter painter(m_store.paintDevice());
        painter.setClipRegion(region);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        for (const QRect &rect : region)
            painter.fillRect(rect, Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        m_paint(painter);
    }
    m_store.endPaint();
    m_store.flush(region);
}

} // namespace corvane
