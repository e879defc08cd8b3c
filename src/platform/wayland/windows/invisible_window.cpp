#include "platform/wayland/windows/invisible_window.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPlatformSurfaceEvent>
#include <QScreen>

namespace corvane {

InvisibleWindow::InvisibleWindow(WaylandConnection &connection, const LayerSurface::Place &place,
                                 LayerSurface::Keyboard keyboard)
    : m_store(this)
{
    setSurfaceType(QSurface::RasterSurface);
    QSurfaceFormat format;
    format.setAlphaBufferSize(8);
    setFormat(format);
    setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    if (place.screen) {
        setScreen(place.screen);
        setGeometry(place.area.translated(place.screen->geometry().topLeft()));
    }
    create();
    m_surface = std::make_unique<LayerSurface>(connection, *this, place);
    m_surface->onClosed = [this] { m_surface.reset(); };
    m_surface->setKeyboard(keyboard);
    if (m_surface->announce())
        setVisible(true);
    // Nobody tells a window without a place of the toolkit's own that it is to be painted.
    QCoreApplication::postEvent(this, new QEvent(QEvent::UpdateRequest));
}

InvisibleWindow::~InvisibleWindow()
{
    // Before the window's own surface.
    m_surface.reset();
}

void InvisibleWindow::takeAway()
{
    m_surface.reset();
    hide();
}

bool InvisibleWindow::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::PlatformSurface: {
        const auto *const change = dynamic_cast<const QPlatformSurfaceEvent *>(event);
        if (change
            && change->surfaceEventType() == QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed)
            m_surface.reset();
        break;
    }
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
void InvisibleWindow::paint()
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
