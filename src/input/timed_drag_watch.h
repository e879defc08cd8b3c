#pragma once

#include "platform/base/lifetime.h"
#include "platform/desktop/drag_watch.h"

namespace corvane {

class MainQueue;

/// Notices drags on desktops that tell when one begins, and nothing more of it unless it comes to
/// a window of ours: neither where it is, nor that it is over.
///
///     Idle --noticed--> Expected --over a panel--> Here --let go there--> Settling --> Idle, ended
///      ^                  |  ^                      |
///      +--patience later,-+  +--left the panel------+
///         end assumed           (grace instead of patience from then on)
///
/// Main thread only; the queue must outlive it.
class TimedDragWatch : public DragWatch {
public:
    /// Seconds after which a drag that has not come to a panel is taken for ended: most are over by
    /// then, and whoever is still looking for a place finds the shelf again at the edge.
    static constexpr double patience = 4;
    /// Seconds after it has left the panels.
    static constexpr double grace = 1.5;
    /// Seconds that the contents of a drop are given to be taken.
    static constexpr double settleDelay = 0.12;

    explicit TimedDragWatch(MainQueue &queue);
    TimedDragWatch(const TimedDragWatch &) = delete;
    TimedDragWatch &operator=(const TimedDragWatch &) = delete;
    ~TimedDragWatch() override;

    void start() override;
    void stop() override;
    void ownDrag(bool isUnderWay) override;
    void overPanel(bool isOver) override;

    /// Somebody began to drag something, or has it at a screen's edge. Told as a beginning even if
    /// the end of an earlier drag is still awaited: this one may be on another screen.
    void noticed();
    /// What is over a panel was let go there. Told before it is no longer over it.
    void droppedOnPanel();
    /// The pointer is in a window of ours with nothing dragged: whatever was, is over.
    void pointerIsFree();

    /// The end of a drag was assumed, so that it may go on; or that is settled. May be left empty.
    std::function<void(bool mayGoOn)> onUncertain;

private:
    enum class State {
        Idle,
        Expected,
        Here,
        Settling,
    };

    void tellOfBeginning();
    void endAfter(double seconds, DragEnd how);
    void end(DragEnd how);
    void setUncertain(bool isUncertain);

    MainQueue &m_queue;
    State m_state = State::Idle;
    bool m_isWatching = false;
    bool m_isOwnDrag = false;
    bool m_isUncertain = false;
    /// Restarted where the end that is awaited is no longer right.
    Lifetime m_waiting;
    Lifetime m_lifetime;
};

} // namespace corvane
