#include "input/timed_drag_watch.h"

#include "platform/base/main_queue.h"

#include <utility>

namespace corvane {

TimedDragWatch::TimedDragWatch(MainQueue &queue)
    : m_queue(queue)
{
}

TimedDragWatch::~TimedDragWatch() = default;

void TimedDragWatch::start()
{
    m_isWatching = true;
}

void TimedDragWatch::stop()
{
    m_isWatching = false;
    m_state = State::Idle;
    m_waiting.restart();
    setUncertain(false);
}

void TimedDragWatch::noticed()
{
    if (!m_isWatching || m_isOwnDrag || m_state == State::Here)
        return;
    // Before the shelf opens: the end that is awaited is that of an earlier drag.
    endAfter(patience, DragEnd::Assumed);
    m_state = State::Expected;
    tellOfBeginning();
}

void TimedDragWatch::ownDrag(bool isUnderWay)
{
    m_isOwnDrag = isUnderWay;
}

void TimedDragWatch::overPanel(bool isOver)
{
    if (!m_isWatching || m_isOwnDrag)
        return;
    if (isOver) {
        m_waiting.restart();
        // One whose end was assumed goes on, and did not begin anew.
        const bool isKnown = m_isUncertain || m_state == State::Expected || m_state == State::Here;
        m_state = State::Here;
        if (isKnown)
            setUncertain(false);
        else
            tellOfBeginning();
    } else if (m_state == State::Here) {
        m_state = State::Expected;
        endAfter(grace, DragEnd::Assumed);
    }
}

void TimedDragWatch::droppedOnPanel()
{
    if (m_state != State::Here)
        return;
    m_state = State::Settling;
    endAfter(settleDelay, DragEnd::Seen);
}

void TimedDragWatch::pointerIsFree()
{
    setUncertain(false);
    if (m_state != State::Expected && m_state != State::Here)
        return;
    m_waiting.restart();
    end(DragEnd::Seen);
}

void TimedDragWatch::tellOfBeginning()
{
    setUncertain(false);
    // A copy: the callback may destroy the watch, and itself with it.
    if (const auto began = onDragBegan)
        began();
}

void TimedDragWatch::endAfter(double seconds, DragEnd how)
{
    m_waiting.restart();
    m_queue.asyncAfter(seconds, m_waiting.guard([this, how] { end(how); }));
}

void TimedDragWatch::end(DragEnd how)
{
    m_state = State::Idle;
    const auto life = m_lifetime.token();
    setUncertain(how == DragEnd::Assumed);
    if (life.isOver())
        return;
    if (const auto ended = onDragEnded)
        ended(how);
}

void TimedDragWatch::setUncertain(bool isUncertain)
{
    if (std::exchange(m_isUncertain, isUncertain) == isUncertain)
        return;
    if (const auto tell = onUncertain)
        tell(isUncertain);
}

} // namespace corvane
