// The shelf as a source and as a destination of drags.

#include "core/drag_writer.h"
#include "core/pasteboard_ingest.h"
#include "platform/base/geometry.h"
#include "shelf/drag_stack.h"
#include "shelf/optional_callback.h"
#include "shelf/shelf_view.h"

#include <QScopeGuard>

#include <algorithm>
#include <utility>

namespace corvane {

void ShelfView::wireDragSource()
{
    // No guard is needed: the drag source is a member and is destroyed with the view.
    m_dragSource.onChanged = [this](bool isDraggingOut) {
        m_look.draggedItem.reset();
        if (isDraggingOut)
            m_look.draggedItem = m_dragSource.dragged().constFirst();
        m_look.leavingItems = m_dragSource.leaving();
        call(onDragOutChanged, isDraggingOut);
        if (isDraggingOut)
            relayout();
    };
    m_dragSource.onEnded = [this] {
        m_look.leavingItems = m_dragSource.leaving();
        relayout();
    };
    m_dragSource.onEjected = [this](const QList<QUuid> &ids, bool keep) {
        for (const QUuid &id : ids)
            call(onEjected, id, keep);
    };
    m_dragSource.onMessage = [this](const Message &message) { flash(message.text()); };
}

void ShelfView::mouseDragged(const MouseEvent &event)
{
    const auto press = m_dragSource.pulled(event.location);
    if (!press)
        return;
    const auto &visible = m_look.snapshot.visible;
    const auto entry = std::find_if(visible.begin(), visible.end(), [&](const auto &pair) {
        return pair.second.id() == press->item;
    });
    if (entry == visible.end())
        return;
    // The drag gets copies: it may run an event loop in which the snapshot is replaced.
    m_dragSource.begin(
        {entry->second},
        [this, index = entry->first, from = press->point](const QList<DropItem> &items) {
            return dragPicture(items.constFirst(), index, from);
        });
}

QRectF ShelfView::thumbFrame(int index) const
{
    for (const ShelfLayout::Cell &cell : m_look.layout.cells) {
        if (cell.itemIndex == index)
            return cell.thumb.translated(cell.root.topLeft());
    }
    return {0, 0, 1, 1};
}

/// The drag's picture. If the user pressed on the thumbnail, the pointer holds it at the same
/// point.
DragSource::Picture ShelfView::dragPicture(const DropItem &item, int index, QPointF from) const
{
    const QRectF thumb = thumbFrame(index);
    const QPointF middle(thumb.width() / 2, thumb.height() / 2);
    const bool isOnThumb = contains(thumb, inBody(from));
    return {drag_stack::onGround(m_context.dragWriter.dragImage(item, thumb.width(), m_scale)),
            isOnThumb ? inBody(from) - thumb.topLeft() : middle};
}

/// The shelf looks as if a drag were over it also while the contents of a drop are on their way, so
/// that the user sees that they will come.
void ShelfView::updateDragTargeted()
{
    const bool isTargeted = m_isDragOver || m_awaitedDrops > 0;
    if (std::exchange(m_look.isDragTargeted, isTargeted) != isTargeted)
        relayout();
}

bool ShelfView::needsAddresses(const QStringList &types) const
{
    return PasteboardIngest::needsAddresses(types);
}

void ShelfView::tellDragOver(bool isOver)
{
    if (std::exchange(m_isForeignDragOver, isOver) != isOver)
        call(onDragOver, isOver);
}

DragOperation ShelfView::draggingEntered(const DraggingInfo &info)
{
    // The shelf may be opened for it.
    tellDragOver(!info.isOwn);
    m_refusesDrag = m_look.snapshot.state == ShelfState::Idle || info.isOwn
        || !PasteboardIngest::canRead(info.pasteboard);
    if (m_refusesDrag)
        return DragOperation::None;
    if (onUsed)
        onUsed();
    m_isDragOver = true;
    updateDragTargeted();
    return DragOperation::Copy;
}

DragOperation ShelfView::draggingUpdated(const DraggingInfo & /*info*/)
{
    return m_look.snapshot.state == ShelfState::Idle || m_refusesDrag ? DragOperation::None
                                                                      : DragOperation::Copy;
}

void ShelfView::draggingExited()
{
    tellDragOver(false);
    m_isDragOver = false;
    updateDragTargeted();
}

void ShelfView::dropIsAwaited()
{
    tellDragOver(false);
    m_isDragOver = false;
    if (++m_awaitedDrops == 1 && onAwaitsDrop)
        onAwaitsDrop(true);
}

std::optional<QUrl> ShelfView::placeForPromisedFile(const QString &name)
{
    return m_context.ingest.placeForPromisedFile(name);
}

bool ShelfView::performDragOperation(const DraggingInfo &info)
{
    const bool wasAwaited = m_awaitedDrops > 0;
    if (wasAwaited)
        --m_awaitedDrops;
    else
        m_isDragOver = false;
    const Lifetime::Token life = m_lifetime.token();
    // Called at the end also when the drop brings no items.
    const auto isHere = qScopeGuard([&] {
        if (!life.isOver() && wasAwaited && onAwaitsDrop)
            onAwaitsDrop(m_awaitedDrops > 0);
    });
    m_look.isDragTargeted = m_isDragOver || m_awaitedDrops > 0;
    const QList<DropItem> items
        = info.isOwn ? QList<DropItem>() : m_context.ingest.readAll(info.pasteboard);
    if (items.isEmpty()) {
        relayout();
        return false;
    }
    if (onDropAccepted)
        onDropAccepted(items);
    return true;
}

void ShelfView::draggingEnded()
{
    tellDragOver(false);
    m_isDragOver = false;
    updateDragTargeted();
}

} // namespace corvane
