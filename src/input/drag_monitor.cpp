#include "input/drag_monitor.h"

#include "platform/reports/drag_pasteboard.h"
#include "platform/reports/mouse_buttons.h"

namespace corvane {

DragMonitor::DragMonitor(DragPasteboard &pasteboard, EventMonitors &events, MouseButtons &buttons,
                         MainQueue &queue)
    : m_pasteboard(pasteboard)
    , m_events(events)
    , m_buttons(buttons)
    , m_queue(queue)
{
}

void DragMonitor::start()
{
    m_pasteboardBaseline = m_pasteboard.changeCount();
    m_globalMonitor = m_events.addGlobalMonitor(m_lifetime.guard([this] { mouseDragged(); }));
    m_localMonitor = m_events.addLocalMonitor(m_lifetime.guard([this] { mouseDragged(); }));
    m_pressMonitor
        = m_events.addLeftMouseDownMonitor(m_lifetime.guard([this] { leftMouseDown(); }));
}

void DragMonitor::stop()
{
    for (Subscription *monitor : {&m_globalMonitor, &m_localMonitor, &m_pressMonitor})
        monitor->end();
    m_releasePoll.reset();
}

void DragMonitor::leftMouseDown()
{
    m_pasteboardBaseline = m_pasteboard.changeCount();
}

void DragMonitor::mouseDragged()
{
    if (m_isDragging)
        return;
    const qint64 count = m_pasteboard.changeCount();
    if (count == m_pasteboardBaseline)
        return;
    m_pasteboardBaseline = count;
    m_isDragging = true;
    beginPolling();
    // A copy: the callback may destroy the monitor, and with it the function that is running.
    if (const auto began = onDragBegan)
        began();
}

void DragMonitor::beginPolling()
{
    m_releasePoll = m_queue.repeating(pollInterval, m_lifetime.guard([this] { pollButton(); }));
}

void DragMonitor::pollButton()
{
    if ((m_buttons.pressedMouseButtons() & MouseButtons::left) == 0)
        finishDrag();
}

void DragMonitor::finishDrag()
{
    if (!m_isDragging)
        return;
    m_isDragging = false;
    m_releasePoll.reset();
    m_queue.asyncAfter(settleDelay, m_lifetime.guard([this] { settle(); }));
}

void DragMonitor::settle()
{
    // Not before now: sources may change the pasteboard while a drop is delivered, which is no new
    // drag.
    m_pasteboardBaseline = m_pasteboard.changeCount();
    if (const auto ended = onDragEnded)
        ended(DragEnd::Seen);
}

} // namespace corvane
