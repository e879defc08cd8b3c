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

/// Does what Qt does not do for a source of drags on X11. It filters the events that Qt receives,
/// so it must be made after the application object. The connection and the queue must outlive it.
///
/// Qt answers only requests that carry the time of the drag or come from the window that the drop
/// was sent to. GTK 4 asks from another window, without a time, and for the list of types first;
/// without an answer it takes nothing, and yet Qt reports a copy, because it reports what the
/// target said while the drag was over it. So all requests about our drags are answered here. How a
/// drag ended is decided by the target's XdndFinished and by what it has fetched.
///
/// A target may still be busy with a drop when the next drag has begun. Requests are assigned to
/// drags by their time, and those without a time by the program that asks. XdndFinished does not
/// name its drop: if several drops wait for one window, their items leave the shelf only after as
/// many messages have come, and all of them report success.
class X11DragSupport : public DragSupport, public QAbstractNativeEventFilter {
public:
    /// In seconds: a target that gives no sign for so long counts as not having taken the drop. It
    /// is long because a file manager may be asking its user something.
    static constexpr double defaultPatience = 60;
    /// In seconds: how long targets wait at most for contents that are still being made.
    static constexpr double makingPatience = 300;
    /// In seconds: how long messages are awaited of a target that was already gone at the drop.
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
    /// The drags that were dropped on that window and wait for its XdndFinished; the oldest first.
    std::vector<DragId> dropsAwaiting(xcb_window_t window) const;
    void windowIsGone(xcb_window_t window);
    void awaitLastWords(DragId drag);
    void lostSelection(xcb_timestamp_t time);
    bool answer(const xcb_selection_request_event_t &request);
    /// The drag that a request is about; null when there is none.
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
    /// The drags that targets may still ask about, in the order in which they began. The last one
    /// stays until another drag begins, here or in another program.
    std::map<DragId, std::unique_ptr<X11Drag>> m_drags;
    DragId m_lastId = 0;
    bool m_hasSelection = false;
    /// The XdndFinished messages so far from windows with several waiting drops.
    std::map<xcb_window_t, std::vector<xcb_client_message_event_t>> m_words;
    /// Windows that were given up, once for each late XdndFinished that they may still send. Such a
    /// message is ignored.
    std::deque<xcb_window_t> m_givenUp;
    static constexpr std::size_t maximumGivenUp = 32;
    /// The time of the latest input event that Qt got.
    xcb_timestamp_t m_time = XCB_CURRENT_TIME;
    std::unique_ptr<MainQueue::Timer> m_timer;
    Lifetime m_lifetime;
};

} // namespace corvane
