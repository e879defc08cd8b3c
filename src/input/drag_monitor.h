#pragma once

#include "platform/base/lifetime.h"
#include "platform/base/main_queue.h"
#include "platform/desktop/drag_watch.h"
#include "platform/desktop/event_monitors.h"

#include <QtGlobal>

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

class DragPasteboard;
class MouseButtons;

/// Notices drags on desktops that tell everything: pointer, buttons and who carries contents.
///
/// No window system announces a drag between two other programs. What can be seen is the pointer
/// moving with its left button held and, when contents are carried, the drag pasteboard changing.
/// Both together are a drag; the first alone is a text selection or a window being moved. Nor does
/// anybody tell of the release over another program's window, so the button is asked for.
///
/// Contents may also change with no drag to follow: one with the right button, or one that was let
/// go of before its source was ready. So what changed before the left button went down counts for
/// nothing.
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
    /// Seconds between two looks at the button.
    static constexpr double pollInterval = 0.05;
    /// Seconds that a drop is given to reach its target, which may be us, after the release.
    static constexpr double settleDelay = 0.12;

    DragMonitor(DragPasteboard &pasteboard, EventMonitors &events, MouseButtons &buttons,
                MainQueue &queue);
    DragMonitor(const DragMonitor &) = delete;
    DragMonitor &operator=(const DragMonitor &) = delete;
    ~DragMonitor() override;

    void start() override;
    void stop() override;

    /// From a drag's recognition until its release was seen.
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

    std::optional<EventMonitors::Handle> m_globalMonitor;
    std::optional<EventMonitors::Handle> m_localMonitor;
    std::optional<EventMonitors::Handle> m_pressMonitor;
    std::unique_ptr<MainQueue::Timer> m_releasePoll;
    qint64 m_pasteboardBaseline = 0;
    bool m_isDragging = false;
    Lifetime m_lifetime;
};

} // namespace corvane
