#include "platform/wayland/windows/edge_strip.h"

#include <QDragEnterEvent>

#include <utility>

namespace corvane {

EdgeStrip::EdgeStrip(WaylandConnection &connection, QScreen &screen, const QRect &area,
                     Events events)
    : InvisibleWindow(connection, {&screen, LayerSurface::Layer::Top, area},
                      LayerSurface::Keyboard::Never)
    , m_events(std::move(events))
{
    m_sinceShown.start();
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
    takeAway();
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
    case QEvent::DragEnter: {
        // What is let go right here goes back to where it came from.
        event->ignore();
        const auto *const enter = dynamic_cast<const QDragEnterEvent *>(event);
        dragEntered(enter && enter->source());
        return true;
    }
    case QEvent::DragMove:
        event->ignore();
        return true;
    case QEvent::DragLeave:
    case QEvent::Drop:
        event->ignore();
        dragIsGone();
        return true;
    default:
        break;
    }
    return InvisibleWindow::event(event);
}

} // namespace corvane
