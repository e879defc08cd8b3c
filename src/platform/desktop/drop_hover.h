#pragma once

#include "platform/base/lifetime.h"
#include "platform/desktop/drop_support.h"

#include <QPointF>

#include <functional>
#include <memory>

namespace corvane {

class MainQueue;

/// One drag of another program over one panel: what is told of it to the panel and to the source.
///
/// What is best fetched early is fetched from the beginning on, anew with the next move if nothing
/// came, and is not welcome before it is here: who lets go of it earlier keeps it.
///
///     Unknown --addresses are here, or not needed--> told to the panel: Accepted or Refused
///               (and contents that are fetched early)
///
/// Until the panel has been told, the source hears nothing: it counts as not welcome. Everything
/// that it is given must outlive it.
class DropHover {
public:
    /// In seconds: how long the panel is not told of a drag whose addresses are awaited.
    static constexpr double patience = 5;
    /// After so many that brought nothing the panel is told all the same.
    static constexpr int maximumEarlyFetches = 3;
    /// Larger address lists are not read.
    static constexpr qsizetype maximumAddressBytes = 64LL * 1024 * 1024;

    /// How the panel is told, in its window's coordinates, and what it answers.
    struct Panel {
        std::function<bool(QPointF)> enter;
        std::function<bool(QPointF)> move;
        std::function<void()> leave;
    };
    /// Called whenever the answer for the source has changed.
    using Answer = std::function<void(bool wouldBeTaken)>;

    DropHover(MainQueue &queue, std::shared_ptr<IncomingDrag> drag, DropReceiver &receiver,
              Panel panel, Answer answer);
    ~DropHover();
    DropHover(const DropHover &) = delete;
    DropHover &operator=(const DropHover &) = delete;

    /// Once it is where it can be found: may ask the panel at once.
    void begin(QPointF at);
    void moveTo(QPointF at);
    /// What the source hears depends on more than the panel, and that has changed.
    void answerAgain();
    /// It was let go. Whether the receiver has taken it.
    bool drop();

private:
    /// Of a drag that is fetched early; all others are settled.
    enum class Contents {
        Awaited,
        Missing,
        Settled,
    };

    void fetchEarly();
    void earlyFetchEnded();
    void addressesAreKnown();
    void fetchAddresses(QStringList types);
    void decide();
    void tell(bool wouldBeTaken);

    MainQueue &m_queue;
    std::shared_ptr<IncomingDrag> m_drag;
    DropReceiver &m_receiver;
    Panel m_panel;
    Answer m_answer;
    QPointF m_at;
    Contents m_contents = Contents::Awaited;
    int m_earlyFetches = 0;
    bool m_areAddressesKnown = false;
    bool m_isTold = false;
    bool m_wouldBeTaken = false;
    Subscription m_early;
    Lifetime m_lifetime;
};

} // namespace corvane
