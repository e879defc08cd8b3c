#pragma once

#include "platform/base/lifetime.h"
#include "platform/base/main_queue.h"
#include "platform/desktop/drag_support.h"
#include "platform/x11/base/x11_connection.h"
#include "platform/x11/drags/incremental_transfers.h"
#include "platform/x11/drags/x11_drag.h"

#include <QAbstractNativeEventFilter>

#include <deque>
#include <map>
#include <memory>
#include <vector>

namespace corvane {

/// What Qt leaves out for a source of drags on X11. Listens to the events that Qt receives, and
/// must be made after the application object. The connection and the queue must outlive it.
///
/// Qt answers only requests that carry the time of the drag or come from the window that the drop
/// was sent to. GTK 4 asks from another window, without a time, and for the list of types first;
/// unanswered, it takes nothing while Qt reports a copy. And Qt's report is what the target said
/// while the drag was over it. So all requests for what we drag are answered here, and the end is
/// what the target says in XdndFinished, together with what it was given.
///
/// A target may be busy with a drop while the next drag has begun: requests are told apart by their
/// time, and where they have none by the program that asks. What it says at the end cannot be told
/// apart where several drops wait for one window, so nothing leaves before all of them went well.
class X11DragSupport : public DragSupport, public QAbstractNativeEventFilter {
public:
    /// Seconds without a sign of the target after which it has not taken what was dropped on it. A
    /// file manager may be asking the user meanwhile what to do.
    static constexpr double defaultPatience = 60;
    /// Seconds that targets wait at most for what is still being made.
    static constexpr double makingPatience = 300;
    /// Seconds in which a target that is gone by now may still be heard of.
    static constexpr double lastWords = 1;

    X11DragSupport(X11Connection &connection, MainQueue &queue, double patience = defaultPatience);
    ~X11DragSupport() override;
    X11DragSupport(const X11DragSupport &) = delete;
    X11DragSupport &operator=(const X11DragSupport &) = delete;

    DragId dragWillBegin(PasteboardForms forms, bool areFinal) override;
    void formsAreReady(DragId drag, std::optional<PasteboardForms> forms) override;
    void dragWasDropped(DragId drag, std::function<void(const DragOutEnd &)> ended) override;
    void dragCameToNothing(DragId drag) override;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    void noteTime(const xcb_generic_event_t &event);
    void readMessage(xcb_client_message_event_t &message);
    void finished(const xcb_client_message_event_t &message);
    void finishedOneOf(const std::vector<DragId> &drops, const xcb_client_message_event_t &message);
    /// Dropped on that window, which has not said yet how that ended; the oldest first.
    std::vector<DragId> dropsAwaiting(xcb_window_t window) const;
    void windowIsGone(xcb_window_t window);
    void lostSelection(xcb_timestamp_t time);
    bool answer(const xcb_selection_request_event_t &request);
    /// Null when nothing of ours is dragged.
    X11Drag *dragFor(const xcb_selection_request_event_t &request);
    X11Drag *latest() { return m_drags.empty() ? nullptr : m_drags.rbegin()->second.get(); }
    X11Drag *find(DragId drag);
    bool isCurrent(DragId drag) const { return drag == m_lastId; }
    void forget(DragId drag);
    void giveUp(X11Drag &drag);
    void watchTheClock();
    void lookAtTheClock();

    X11Connection &m_connection;
    MainQueue &m_queue;
    double m_patience;
    IncrementalTransfers m_transfers;
    /// The drags that somebody may still ask about, in the order in which they began. The last one
    /// stays until another begins, here or in another program.
    std::map<DragId, std::unique_ptr<X11Drag>> m_drags;
    DragId m_lastId = 0;
    bool m_hasSelection = false;
    /// What windows with several drops on them have said so far: it does not name the drop.
    std::map<xcb_window_t, std::vector<xcb_client_message_event_t>> m_words;
    /// Windows that were given up and may still say how it ended, once for each drop.
    std::deque<xcb_window_t> m_givenUp;
    static constexpr std::size_t maximumGivenUp = 32;
    /// Of the latest input that Qt was told of.
    xcb_timestamp_t m_time = XCB_CURRENT_TIME;
    std::unique_ptr<MainQueue::Timer> m_timer;
    Lifetime m_lifetime;
};

} // namespace corvane
