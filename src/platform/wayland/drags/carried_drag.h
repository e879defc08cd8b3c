#pragma once

#include "platform/base/lifetime.h"
#include "platform/base/main_queue.h"
#include "platform/desktop/drag_carrier.h"
#include "platform/pasteboard/named_forms.h"
#include "platform/wayland/drags/delivery.h"

#include <list>
#include <memory>
#include <optional>
#include <vector>

namespace corvane {

/// What becomes of one drag of ours, by what the compositor tells of it and what targets fetch.
///
///     carried --let go over a target--> awaited --finished, nothing under way--> ended
///        |                                 +--cancelled, or silent too long----> ended, all stays
///        +--cancelled--> ended, all stays
///
/// Contents count as taken once somebody has read all of them out of the pipe that was given to us,
/// while the drag was hovering or later: many targets fetch everything before the drop and nothing
/// at it. Who reads a pipe is not known. The queue must outlive it.
class CarriedDrag {
public:
    /// In seconds: a target that gives no sign for so long counts as not having taken the drop. It
    /// is long because a file manager may be asking its user something.
    static constexpr double patience = 60;
    /// In seconds: how long targets wait at most for contents that are still being made.
    static constexpr double makingPatience = 300;
    /// In seconds: what lies unread in a pipe so long after the target has finished is not wanted.
    static constexpr double lastLook = 1;
    /// Requests that wait or are answered at once; more are refused.
    static constexpr std::size_t maximumRequests = 64;

    CarriedDrag(MainQueue &queue, Deliver deliver, NamedForms forms, bool areFinal,
                DragCarrier::Events events);
    ~CarriedDrag();
    CarriedDrag(const CarriedDrag &) = delete;
    CarriedDrag &operator=(const CarriedDrag &) = delete;

    const QStringList &names() const { return m_forms.names(); }
    bool isCarried() const { return m_stage == Stage::Carried; }

    /// A target asks for a name, and waits at the other end of the pipe.
    void asked(const QString &name, FileDescriptor pipe);
    void formsAreReady(std::optional<PasteboardForms> forms);
    /// The user let go over a target that would take it. This and the following may destroy this.
    void dropped();
    /// The target says that it has what it wants.
    void finished();
    /// The user gave up or let go where nobody takes it, or the target did not finish.
    void cancelled();

private:
    enum class Stage {
        Carried,
        Awaited,
        Ended,
    };
    struct Request {
        QString name;
        FileDescriptor pipe;
    };
    struct UnderWay {
        std::unique_ptr<Delivery> delivery;
        QList<qsizetype> holds;
    };
    using Place = std::list<UnderWay>::iterator;

    void answer(Request request);
    void delivered(Place place, bool isWhole);
    bool isBusy() const { return !m_waiting.empty() || !m_underWay.empty(); }
    void noteSign() { m_lastSign = m_queue.now(); }
    void watchTheClock();
    void lookAtTheClock();
    void dropUnread();
    void endIfOver();
    void end(DragOperation operation);
    void letGo(DragOperation promised);

    MainQueue &m_queue;
    Deliver m_deliver;
    NamedForms m_forms;
    bool m_isReady;
    DragCarrier::Events m_events;
    Stage m_stage = Stage::Carried;
    bool m_hasFinished = false;
    double m_lastSign;
    std::vector<Request> m_waiting;
    std::list<UnderWay> m_underWay;
    /// By the writers' places.
    std::vector<bool> m_taken;
    std::unique_ptr<MainQueue::Timer> m_timer;
    Lifetime m_lifetime;
};

} // namespace corvane
