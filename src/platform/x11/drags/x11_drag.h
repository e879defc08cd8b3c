#pragma once

#include "platform/base/main_queue.h"
#include "platform/desktop/panel_window.h"
#include "platform/x11/drags/drag_answers.h"
#include "platform/x11/drags/window_end_watch.h"

#include <list>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace corvane {

/// One drag of ours: what targets are given of it, and how its target says that it ended.
///
///     carried --dropped--> waiting --the target finished, nothing of ours under way--> ended
///                                  --it is gone, or silent for too long--------------> ended
///
/// What a target takes counts as taken by the program that it belongs to. Many take everything
/// while the pointer is still over them, and some ask from another window than that of the drop.
class X11Drag {
public:
    using Ended = std::function<void(const DragOutEnd &)>;

    X11Drag(X11Connection &connection, MainQueue &queue, IncrementalTransfers &transfers,
            PasteboardForms forms, bool areFinal, xcb_timestamp_t began);

    /// Called once after `wasDropped`. Must not destroy the drag.
    Ended onEnd;

    xcb_timestamp_t began() const { return m_began; }
    DragAnswers &answers() { return m_answers; }

    /// XdndStatus: what the window under the pointer would do.
    void targetAnswered(const xcb_client_message_event_t &status);
    enum class Target {
        /// No window has answered.
        Nobody,
        /// Nothing will be heard of it that is not on its way already.
        Gone,
        There,
    };
    /// Waits from now on for the one that accepted last.
    Target wasDropped();
    bool isWaiting() const { return m_isWaiting; }
    /// Whether it waits for that window, or for one of the same program.
    bool wasDroppedOn(xcb_window_t window) const;
    /// Whether that window's program is the one that answered last.
    bool isOverProgramOf(xcb_window_t window) const;
    /// Whether word from that window that it is over may be believed: it is of the target's
    /// program, or of one that has asked for something since the drop.
    bool mayBeFinishedBy(xcb_window_t window) const;
    /// Whether it waits for that window, which has not said yet that it is over.
    bool awaitsWordOf(xcb_window_t window) const { return wasDroppedOn(window) && !m_finish; }
    xcb_window_t target() const { return m_target; }
    /// Whether the target says that it went well.
    bool isSuccess(const xcb_client_message_event_t &finished) const;
    /// XdndFinished.
    void targetFinished(const xcb_client_message_event_t &finished);
    void windowIsGone(xcb_window_t window);
    /// Nobody has said anything for too long.
    void giveUp();

    /// When the target last gave a sign of life, on the main queue's clock.
    double lastSign() const { return m_lastSign; }
    void noteSign() { m_lastSign = m_queue.now(); }

private:
    /// The part of a window's number that its program has for itself.
    std::uint32_t programOf(xcb_window_t window) const;
    std::optional<std::uint32_t> cardinal(xcb_window_t window, const char *property);
    void delivered(xcb_window_t requestor, const QList<qsizetype> &holds);
    QList<qsizetype> taken() const;
    void endIfOver();
    void end(DragOperation operation);

    /// Programs that are remembered as having taken something on the way.
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
