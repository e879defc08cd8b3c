#include "platform/wayland/windows/pointer_elsewhere.h"

#include "platform/base/main_queue.h"

#include <QMouseEvent>

namespace corvane {

PointerElsewhere::PointerElsewhere(WaylandConnection &connection, MainQueue &queue)
    : m_queue(queue)
    , m_covered(connection)
{
}

void PointerElsewhere::watch()
{
    if (m_covered.areCovered())
        return;
    m_first.reset();
    m_covered.cover(LayerSurface::Layer::Top,
                    [this](QScreen & /*screen*/, const QEvent &event) { happened(event); });
}

void PointerElsewhere::stop()
{
    m_watch.restart();
    m_covered.uncover();
}

void PointerElsewhere::happened(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::MouseMove: {
        const QPointF to = dynamic_cast<const QMouseEvent &>(event).globalPosition();
        // The first place may be where the pointer was all the time.
        if (!m_first)
            m_first = to;
        else if ((to - *m_first).manhattanLength() > farEnough)
            used();
        break;
    }
    case QEvent::Leave:
        m_first.reset();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
    case QEvent::DragEnter:
        used();
        break;
    default:
        break;
    }
}

/// Later: a window is just being told of it, and goes away then.
void PointerElsewhere::used()
{
    m_watch.restart();
    m_queue.async(m_watch.guard([this] {
        stop();
        if (onMoved)
            onMoved();
    }));
}

} // namespace corvane
