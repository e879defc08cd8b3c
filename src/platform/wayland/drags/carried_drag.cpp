#include "platform/wayland/drags/carried_drag.h"

#include "platform/desktop/panel_window.h"

#include <utility>

namespace corvane {

CarriedDrag::CarriedDrag(MainQueue &queue, Deliver deliver, NamedForms forms, bool areFinal,
                         DragCarrier::Events events)
    : m_queue(queue)
    , m_deliver(std::move(deliver))
    , m_forms(std::move(forms))
    , m_isReady(areFinal)
    , m_events(std::move(events))
    , m_lastSign(queue.now())
{
}

CarriedDrag::~CarriedDrag() = default;

void CarriedDrag::asked(const QString &name, FileDescriptor pipe)
{
    // What is refused is closed: the reader gets nothing.
    if (m_stage == Stage::Ended || m_waiting.size() + m_underWay.size() >= maximumRequests)
        return;
    noteSign();
    if (m_isReady) {
        answer({name, std::move(pipe)});
        return;
    }
    m_waiting.push_back({name, std::move(pipe)});
    watchTheClock();
}

void CarriedDrag::answer(Request request)
{
    const auto answer = m_forms.answerTo(request.name);
    if (!answer)
        return;
    const auto place = m_underWay.insert(m_underWay.end(), {nullptr, answer->holds});
    place->delivery
        = m_deliver(std::move(request.pipe), answer->bytes,
                    {m_lifetime.guard([this] { noteSign(); }),
                     m_lifetime.guard([this, place](bool isWhole) { delivered(place, isWhole); })});
}

void CarriedDrag::delivered(Place place, bool isWhole)
{
    const UnderWay done = std::move(*place);
    m_underWay.erase(place);
    noteSign();
    for (const qsizetype writer : done.holds) {
        const auto index = static_cast<std::size_t>(writer);
        if (index >= m_taken.size())
            m_taken.resize(index + 1);
        m_taken[index] = m_taken[index] || isWhole;
    }
    endIfOver();
}

void CarriedDrag::formsAreReady(std::optional<PasteboardForms> forms)
{
    if (std::exchange(m_isReady, true) || m_stage == Stage::Ended)
        return;
    m_forms = forms ? NamedForms(std::move(*forms)) : NamedForms();
    noteSign();
    for (Request &request : std::exchange(m_waiting, {}))
        answer(std::move(request));
    endIfOver();
}

void CarriedDrag::letGo(DragOperation promised)
{
    if (const auto tell = std::exchange(m_events.released, {}))
        tell(promised);
}

void CarriedDrag::dropped()
{
    if (m_stage != Stage::Carried)
        return;
    m_stage = Stage::Awaited;
    noteSign();
    watchTheClock();
    letGo(DragOperation::Copy);
}

void CarriedDrag::finished()
{
    if (m_stage == Stage::Ended || m_hasFinished)
        return;
    const Lifetime::Token life = m_lifetime.token();
    dropped();
    if (life.isOver())
        return;
    noteSign();
    // Those that are over leave the list.
    for (auto next = m_underWay.begin(); next != m_underWay.end();)
        (next++)->delivery->look();
    m_hasFinished = true;
    m_queue.asyncAfter(lastLook, m_lifetime.guard([this] { dropUnread(); }));
    endIfOver();
}

/// Who has finished, and left part of something in its pipe, only wanted to see how it begins.
void CarriedDrag::dropUnread()
{
    std::erase_if(m_underWay, [](const UnderWay &one) { return one.delivery->isWritten(); });
    endIfOver();
}

void CarriedDrag::cancelled()
{
    if (m_stage != Stage::Ended && !m_hasFinished)
        end(DragOperation::None);
}

void CarriedDrag::endIfOver()
{
    if (m_stage == Stage::Awaited && m_hasFinished && !isBusy())
        end(DragOperation::Copy);
}

void CarriedDrag::end(DragOperation operation)
{
    DragOutEnd result{operation, {}, m_stage == Stage::Awaited};
    m_stage = Stage::Ended;
    m_timer.reset();
    m_waiting.clear();
    m_underWay.clear();
    for (std::size_t i = 0; operation != DragOperation::None && i < m_taken.size(); ++i) {
        if (m_taken[i])
            result.taken.append(static_cast<qsizetype>(i));
    }
    const Lifetime::Token life = m_lifetime.token();
    letGo(DragOperation::None);
    if (life.isOver())
        return;
    if (const auto tell = std::exchange(m_events.ended, {}))
        tell(result);
}

void CarriedDrag::watchTheClock()
{
    if (!m_timer)
        m_timer = m_queue.repeating(patience / 4, [this] { lookAtTheClock(); });
}

void CarriedDrag::lookAtTheClock()
{
    const double silence = m_queue.now() - m_lastSign;
    if (!m_isReady) {
        if (silence >= makingPatience)
            formsAreReady(std::nullopt);
        return;
    }
    if (m_stage == Stage::Awaited && silence >= patience)
        end(DragOperation::None);
}

} // namespace corvane
