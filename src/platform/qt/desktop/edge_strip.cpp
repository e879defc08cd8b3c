#include "platform/qt/desktop/edge_strip.h"

#include <QDragEnterEvent>
#include <QWindow>

#include <utility>

namespace corvane {

EdgeStrip::EdgeStrip(std::unique_ptr<QWindow> window, Entering entering, Events events)
    : m_entering(entering)
    , m_events(std::move(events))
    , m_window(std::move(window))
{
    m_window->installEventFilter(this);
    m_sinceShown.start();
}

EdgeStrip::~EdgeStrip() = default;

void EdgeStrip::retire()
{
    m_events = {};
    m_isRetired = true;
    if (!m_hasDrag)
        end();
}

void EdgeStrip::end()
{
    m_window->hide();
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
    else if (const auto tell = m_events.dragWent)
        tell();
}

bool EdgeStrip::eventFilter(QObject * /*watched*/, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Expose:
        m_sinceShown.restart();
        return false;
    case QEvent::Enter:
        if (m_entering == Entering::Counts)
            pointerMoved(true);
        return true;
    case QEvent::MouseMove:
        pointerMoved(m_entering == Entering::Unreliable);
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
    case QEvent::DragLeave:
    case QEvent::Drop:
        event->ignore();
        dragIsGone();
        return true;
    case QEvent::DragMove:
    case QEvent::Close:
        event->ignore();
        return true;
    default:
        return false;
    }
}

} // namespace corvane
