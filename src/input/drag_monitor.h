#pragma once

#include "platform/base/lifetime.h"
#include "platform/base/main_queue.h"
#include "platform/desktop/drag_watch.h"
#include "platform/reports/event_monitors.h"

#include <QtGlobal>

#include <memory>

namespace corvane {

class DragPasteboard;
class MouseButtons;

/// Notices drags on desktops that report the pointer, its buttons and changes of the drag
/// pasteboard for all programs.
///
/// No window system announces a drag between two other programs. What can be seen is the pointer
/// moving with its left button held and, when contents are carried, the drag pasteboard changing.
/// Both together are a drag; the first alone is a text selection or a window being moved. The
/// release over another program's window is not reported either, so the button is polled.
///
/// The pasteboard may also change without a drag that we should notice: for a drag with the right
/// button, or for one that was let go before its source was ready. So only changes after the left
/// button went down count.
///
///     Watching --dragged event, pasteboard changed--> Dragging --button seen up--> Settling
///        ^                                               ^                            |  |
///        |                                               +--dragged, changed again----+  |
///        +--settleDelay later: onDragEnded-----------------------------------------------+
///
/// A drag that begins while the last one settles is reported before the old one's end, which still
/// comes. Main thread only; the references must outlive the monitor.
class DragMonitor : public DragWatch {
public:
    /// In seconds, between two polls of the button.
    static constexpr double pollInterval = 0.05;
    /// In seconds, from the release to the report of the end: a drop needs that time to reach its
    /// target, which may be us.
    static constexpr double settleDelay = 0.12;

    DragMonitor(DragPasteboard &pasteboard, EventMonitors &events, MouseButtons &buttons,
                MainQueue &queue);
    DragMonitor(const DragMonitor &) = delete;
    DragMonitor &operator=(const DragMonitor &) = delete;

    void start() override;
    void stop() override;
    // Neither is needed: it sees every button, and who carries contents.
    void ownDrag(bool /*isUnderWay*/) override { }
    void overPanel(bool /*isOver*/) override { }

    /// From the moment a drag was noticed until its release was seen.
    bool isDragging() const { return m_isDragging; }

private:
    void leftMouseDown();
    void mouseDragged();
    void beginPolling();
    void pollButton();
    void finishDrag();
    void settle();

    DragPasteboard &m_pasteboard;
    EventMonitors &m_events;
    MouseButtons &m_buttons;
    MainQueue &m_queue;

    Subscription m_globalMonitor;
    Subscription m_localMonitor;
    Subscription m_pressMonitor;
    std::unique_ptr<MainQueue::Timer> m_releasePoll;
    qint64 m_pasteboardBaseline = 0;
    bool m_isDragging = false;
    Lifetime m_lifetime;
};

} // namespace corvane
