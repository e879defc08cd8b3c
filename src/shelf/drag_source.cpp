#include "shelf/drag_source.h"

#include "core/awaited_contents.h"
#include "core/drag_set.h"
#include "core/saved_pictures.h"
#include "platform/desktop/keyboard.h"
#include "shelf/optional_callback.h"

#include <QLineF>

#include <memory>
#include <utility>

namespace corvane {

namespace {

/// The message when `stayed` of `all` dragged items were not taken.
Message stayedMessage(qsizetype stayed, qsizetype all)
{
    if (stayed >= all)
        return {Message::Kind::NotTaken};
    return {Message::Kind::SomeNotTaken, stayed, all};
}

} // namespace

DragSource::DragSource(const Context &context)
    : m_context(context)
{
}

void DragSource::press(const QUuid &item, QPointF point)
{
    m_press = Press{item, point};
}

std::optional<DragSource::Press> DragSource::release()
{
    return std::exchange(m_press, std::nullopt);
}

std::optional<DragSource::Press> DragSource::pulled(QPointF to) const
{
    const bool isFar = m_press && QLineF(m_press->point, to).length() > dragDistance;
    return isFar && !isDragging() ? m_press : std::nullopt;
}

void DragSource::begin(const QList<DropItem> &items, const Painter &paint)
{
    m_press.reset();
    DragSet set = makeDragSet(items, m_context.dragWriter, m_context.pictures);
    if (set.items.isEmpty()) {
        call(onMessage, Message{Message::Kind::FileIsGone});
        return;
    }
    for (const DropItem &item : std::as_const(set.items))
        m_dragged << item.id();
    Drag begun{m_dragged, set.forms, items.size(), false, m_context.pictures.lend(set.forms)};
    call(onChanged, true);

    DragOut drag;
    drag.contents = std::move(set.contents);
    drag.whenReady = awaitedContents(drag.contents, set.forms, m_context.preparation);
    Picture picture = paint(set.items);
    drag.image = std::move(picture.image);
    drag.hotSpot = picture.hotSpot;
    m_context.panel.beginDraggingSession(std::move(drag), eventsOf(std::move(begun)));
}

DragOutEvents DragSource::eventsOf(Drag drag)
{
    const auto shared = std::make_shared<Drag>(std::move(drag));
    return {m_lifetime.guard([this, shared] { released(*shared); }),
            m_lifetime.guard([this, shared](const DragOutEnd &end) { ended(*shared, end); })};
}

void DragSource::released(Drag &drag)
{
    drag.keep = m_context.keyboard.currentModifiers().testFlag(Modifier::Shift);
    m_dragged.clear();
    m_leaving += drag.ids;
    m_press.reset();
    call(onChanged, false);
}

void DragSource::ended(Drag &drag, const DragOutEnd &end)
{
    for (const QUuid &id : drag.ids)
        m_leaving.removeOne(id);
    call(onEnded);
    QList<QUuid> leaving;
    QList<QUuid> kept;
    QList<DropItem> given;
    for (const qsizetype place : end.taken) {
        given << drag.forms[place];
        const bool keep = drag.keep || isOnlyLinkedTo(drag.forms[place], end.operation);
        (keep ? kept : leaving) << drag.ids[place];
    }
    m_context.pictures.giveAway(given);
    drag.loan.reset();
    if (!leaving.isEmpty())
        call(onEjected, leaving, false);
    if (!kept.isEmpty())
        call(onEjected, kept, true);
    const qsizetype stayed = drag.wanted - end.taken.size();
    if (end.wasDropped && stayed > 0)
        call(onMessage, stayedMessage(stayed, drag.wanted));
}

} // namespace corvane
