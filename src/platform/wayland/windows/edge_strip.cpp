#include "platform/wayland/windows/edge_strip.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QPainter>
#include <QPlatformSurfaceEvent>
#include <QScreen>

#include <utility>

namespace corvane {

EdgeStrip::EdgeStrip(WaylandConnection &connection, QScreen &screen, const QRect &area,
                     Events events)
    : m_events(std::move(events))
    , m_store(this)
{
    setSurfaceType(QSurface::RasterSurface);
    QSurfaceFormat format;
    format.setAlphaBufferSize(8);
    setFormat(format);
    setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    setScreen(&screen);
    setGeometry(area.translated(screen.geometry().topLeft()));
    create();
    m_surface = std::make_unique<LayerSurface>(
        connection, *this, LayerSurface::Place{&screen, LayerSurface::Layer::Top, area});
    m_surface->onClosed = [this] { m_surface.reset(); };
    if (m_surface->announce())
        setVisible(true);
    m_sinceShown.start();
    // Nobody tells a window without a place of the toolkit's own that it is to be painted.
    QCoreApplication::postEvent(this, new QEvent(QEvent::UpdateRequest));
}

EdgeStrip::~EdgeStrip()
{
    // Before the window's own surface.
    m_surface.reset();
}

void EdgeStrip::retire()
{
    m_events = {};
    m_isRetired = true;
    if (!m_hasDrag)
        end();
}

void EdgeStrip::end()
{
    m_surface.reset();
    hide();
    deleteLater();
}

void EdgeStrip::pointerMoved(bool hasJustCome)
{
    const bool wasHereBefore = hasJustCome && m_sinceShown.elapsed() < settling;
    if (wasHereBefore || std::exchange(m_hasPointer, true))
        return;
    // A copy, as below: it may be the last thing that this does.
    if (const auto tell = m_events.pointerCame)
        tell();
}

void EdgeStrip::pointerLeft()
{
    if (!std::exchange(m_hasPointer, false))
        return;
    if (const auto tell = m_events.pointerWent)
        tell();
}

void EdgeStrip::dragEntered(bool isOwn)
{
    m_hasDrag = true;
    if (const auto tell = m_events.dragEntered)
        tell(isOwn);
}

void EdgeStrip::dragIsGone()
{
    m_hasDrag = false;
    if (m_isRetired)
        end();
}

bool EdgeStrip::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Enter:
        pointerMoved(true);
        return true;
    case QEvent::MouseMove:
        pointerMoved(false);
        return true;
    case QEvent::Leave:
        pointerLeft();
        return true;
    case QEvent::DragEnter:
        // What is let go right here goes back to where it came from.
        event->ignore();
        dragEntered(static_cast<QDragEnterEvent *>(event)->source() != nullptr);
        return true;
    case QEvent::DragMove:
        event->ignore();
        return true;
    case QEvent::DragLeave:
    case QEvent::Drop:
        event->ignore();
        dragIsGone();
        return true;
    case QEvent::PlatformSurface:
        if (static_cast<QPlatformSurfaceEvent *>(event)->surfaceEventType()
            == QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed)
            m_surface.reset();
        break;
    case QEvent::UpdateRequest:
    case QEvent::Paint:
        paint();
        return true;
    case QEvent::Close:
        event->ignore();
        return true;
    default:
        break;
    }
    return QWindow::event(event);
}

/// A surface is there only with a picture on it.
void EdgeStrip::paint()
{
    if (!isVisible() || !m_surface || size().isEmpty())
        return;
    const QRect all({}, size());
    m_store.resize(size());
    m_store.beginPaint(all);
    {
        QPainter painter(m_store.paintDevice());
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(all, Qt::transparent);
    }
    m_store.endPaint();
    m_store.flush(all);
}

} // namespace corvane
