#pragma once

#include "platform/base/main_queue.h"
#include "platform/desktop/panel_window.h"
#include "platform/x11/drags/drag_answers.h"
#include "platform/x11/drags/window_end_watch.h"

#include <list>
#include <map>
#include <optional>
#include <set>
#include <vector>

namespace corvane {

/// One drag of ours: which contents targets have got, and what its target said about the end.
///
///     carried --dropped--> waiting --the target finished, nothing of ours under way--> ended
///                                  --it is gone, or silent for too long--------------> ended
///
/// Contents count as taken by the program that a requestor's window belongs to: many targets fetch
/// everything while the pointer is still over them, and some ask from another window than the one
/// that was dropped on.
class X11Drag {
public:
    using Ended = std::function<void(const DragOutEnd &)>;

    X11Drag(X11Connection &connection, MainQueue &queue, IncrementalTransfers &transfers,
            PasteboardForms forms, bool areFinal, xcb_timestamp_t began);

    /// Called once after `wasDropped`, with the end. Must not destroy the drag.
    Ended onEnd;

    xcb_timestamp_t began() const { return m_began; }
    DragAnswers &answers() { return m_answers; }

    enum class Target {
        /// A window has accepted, and nobody knows which: it shows by what it does.
        Unseen,
        /// The window is gone; only messages that are already on their way can come.
        Gone,
        There,
    };
    /// XdndStatus of a window that would take the drop. Of several that have come Qt hands on the
    /// first one alone, and believes the last.
    Target targetAnswered(const xcb_client_message_event_t &status);
    /// The user let go where a window had accepted: waits from now on for the last one that did.
    Target wasDropped();
    bool isWaiting() const { return m_isWaiting; }
    /// Whether it was dropped on that window and has not ended.
    bool wasDroppedOn(xcb_window_t window) const;
    /// Whether the window belongs to the program of the target.
    bool isOverProgramOf(xcb_window_t window) const;
    /// Whether an XdndFinished from that window may be about this drop: the window belongs to the
    /// target's program, or to one that has fetched contents since the drop; if the target is
    /// unseen, to any that has fetched some.
    bool mayBeFinishedBy(xcb_window_t window) const;
    /// Whether it waits for an XdndFinished from that window.
    bool awaitsWordOf(xcb_window_t window) const { return wasDroppedOn(window) && !m_finish; }
    xcb_window_t target() const { return m_target; }
    /// Whether an XdndFinished reports success. Targets of old protocol versions cannot report a
    /// failure.
    bool isSuccess(const xcb_client_message_event_t &finished) const;
    /// XdndFinished that is about this drop.
    void targetFinished(const xcb_client_message_event_t &finished);
    void windowIsGone(xcb_window_t window);
    /// The target has given no sign for too long: ends without anything taken.
    void giveUp();

    /// When the target last sent or fetched something, on the main queue's clock.
    double lastSign() const { return m_lastSign; }
    void noteSign() { m_lastSign = m_queue.now(); }

private:
    /// The part of a window's number that all windows of a client share.
    std::uint32_t programOf(xcb_window_t window) const;
    std::optional<std::uint32_t> cardinal(xcb_window_t window, const char *property);
    Target watchTarget();
    void delivered(xcb_window_t requestor, const QList<qsizetype> &holds);
    QList<qsizetype> taken() const;
    void endIfOver();
    void end(DragOperation operation);

    /// Limit of programs that are remembered as having fetched something.
    static constexpr std::size_t maximumPrograms = 64;

    X11Connection &m_connection;
    MainQueue &m_queue;
    xcb_timestamp_t m_began;
    double m_lastSign;
    DragAnswers m_answers;
    using Places = std::vector<bool>;
    std::map<std::uint32_t, Places> m_takenByProgram;
    Places m_takenAfterDrop;
    std::set<std::uint32_t> m_askedAfterDrop;
    xcb_window_t m_target = XCB_NONE;
    bool m_isWaiting = false;
    bool m_saysHowItEnded = true;
    std::list<WindowEndWatch> m_watches;
    std::uint32_t m_finishedProgram = 0;
    std::optional<DragOperation> m_finish;
};

} // namespace corvane
