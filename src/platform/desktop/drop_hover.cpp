#include "platform/desktop/drop_hover.h"

#include "platform/base/main_queue.h"

#include <algorithm>
#include <utility>

namespace corvane {

DropHover::DropHover(MainQueue &queue, std::shared_ptr<IncomingDrag> drag, DropReceiver &receiver,
                     Panel panel, Answer answer)
    : m_queue(queue)
    , m_drag(std::move(drag))
    , m_receiver(receiver)
    , m_panel(std::move(panel))
    , m_answer(std::move(answer))
{
}

DropHover::~DropHover()
{
    if (m_isTold)
        m_panel.leave();
}

void DropHover::begin(QPointF at)
{
    m_at = at;
    if (m_drag->isFetchedEarly())
        fetchEarly();
    else
        m_contents = Contents::Settled;
    const QStringList types = m_drag->types();
    if (!m_receiver.needsAddresses(types)) {
        addressesAreKnown();
        return;
    }
    m_queue.asyncAfter(patience, m_lifetime.guard([this] { addressesAreKnown(); }));
    fetchAddresses(m_receiver.addressTypes(types));
}

void DropHover::fetchEarly()
{
    m_contents = Contents::Awaited;
    m_early = m_receiver.fetchEarly(m_drag, m_lifetime.guard([this] { earlyFetchEnded(); }));
}

void DropHover::earlyFetchEnded()
{
    const bool isAnyHere = std::ranges::any_of(
        m_drag->types(), [this](const QString &type) { return !m_drag->fetched(type).isEmpty(); });
    // A drop of what cannot be fetched says why.
    const bool isLast = ++m_earlyFetches >= maximumEarlyFetches;
    m_contents = isAnyHere || isLast ? Contents::Settled : Contents::Missing;
    decide();
}

void DropHover::fetchAddresses(QStringList types)
{
    if (types.isEmpty()) {
        addressesAreKnown();
        return;
    }
    const QString type = types.takeFirst();
    m_drag->fetch(type, maximumAddressBytes,
                  m_lifetime.guard([this, types = std::move(types)](IncomingDrag::Outcome outcome,
                                                                    const QByteArray &bytes) {
                      if (!bytes.isEmpty() || outcome == IncomingDrag::Outcome::Lost)
                          addressesAreKnown();
                      else
                          fetchAddresses(types);
                  }));
}

/// Or those that are not are no longer waited for.
void DropHover::addressesAreKnown()
{
    m_areAddressesKnown = true;
    decide();
}

/// The panel decides by the addresses known so far.
void DropHover::decide()
{
    if (!m_areAddressesKnown || m_contents != Contents::Settled)
        return;
    if (!std::exchange(m_isTold, true))
        tell(m_panel.enter(m_at));
}

void DropHover::moveTo(QPointF at)
{
    m_at = at;
    if (m_contents == Contents::Missing)
        fetchEarly();
    if (!m_isTold)
        return;
    const bool wouldBeTaken = m_panel.move(at);
    if (wouldBeTaken != m_wouldBeTaken)
        tell(wouldBeTaken);
}

void DropHover::answerAgain()
{
    if (m_isTold)
        m_answer(m_wouldBeTaken);
}

void DropHover::tell(bool wouldBeTaken)
{
    m_wouldBeTaken = wouldBeTaken;
    m_answer(wouldBeTaken);
}

bool DropHover::drop()
{
    return m_isTold && m_wouldBeTaken && m_receiver.takeDrop(m_drag);
}

} // namespace corvane
