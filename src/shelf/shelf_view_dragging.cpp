// The shelf as a source and as a destination of drags.

#include "core/awaited_contents.h"
#include "core/drag_set.h"
#include "core/drag_writer.h"
#include "core/pasteboard_ingest.h"
#include "platform/base/geometry.h"
#include "platform/desktop/keyboard.h"
#include "shelf/shelf_view.h"

#include <QCoreApplication>
#include <QLineF>
#include <QScopeGuard>

#include <algorithm>
#include <utility>

namespace corvane {

void ShelfView::mouseDragged(const MouseEvent &event)
{
    if (!m_mouseDownItem || !m_mouseDownPoint || m_look.draggedItem)
        return;
    const auto &visible = m_look.snapshot.visible;
    const auto entry = std::find_if(visible.begin(), visible.end(), [&](const auto &pair) {
        return pair.second.id() == *m_mouseDownItem;
    });
    if (entry == visible.end())
        return;
    if (QLineF(*m_mouseDownPoint, event.location).length() <= dragDistance)
        return;
    const QPointF from = *m_mouseDownPoint;
    m_mouseDownPoint.reset();
    // A copy: the drag may run an event loop in which the snapshot is replaced.
    beginDragOut(DropItem(entry->second), entry->first, from);
}

QRectF ShelfView::thumbFrame(int index) const
{
    for (const ShelfLayout::Cell &cell : m_look.layout.cells) {
        if (cell.itemIndex == index)
            return cell.thumb.translated(cell.root.topLeft());
    }
    return {0, 0, 1, 1};
}

void ShelfView::beginDragOut(const DropItem &item, int index, QPointF from)
{
    if (m_context.dragWriter.available({item}).isEmpty()) {
        flash(QCoreApplication::translate("ShelfView", "The file is no longer there"));
        return;
    }
    m_look.draggedItem = item.id();
    if (onDragOutChanged)
        onDragOutChanged(true);
    relayout();

    // Picked up by its picture, the picture stays where it was under the pointer.
    const QRectF thumb = thumbFrame(index);
    const bool isOnThumb = contains(thumb, inBody(from));
    DragOut drag;
    drag.contents.writers.push_back(DragWriter::pasteboardWriter(item));
    drag.whenReady = awaitedContents(drag.contents, {item}, m_context.preparation);
    drag.image = m_context.dragWriter.dragImage(item, thumb.width(), m_scale);
    drag.hotSpot = isOnThumb ? inBody(from) - thumb.topLeft()
                             : QPointF(thumb.width() / 2, thumb.height() / 2);
    m_context.panel.beginDraggingSession(std::move(drag), dragOutEvents(item));
}

DragOutEvents ShelfView::dragOutEvents(const DropItem &item)
{
    const QUuid id = item.id();
    const auto keep = std::make_shared<bool>(false);
    const auto released = m_lifetime.guard([this, id, keep] {
        *keep = m_context.keyboard.currentModifiers().testFlag(Modifier::Shift);
        m_look.draggedItem.reset();
        m_look.leavingItems.append(id);
        m_mouseDownItem.reset();
        if (onDragOutChanged)
            onDragOutChanged(false);
    });
    const auto ended = m_lifetime.guard([this, item, keep](const DragOutEnd &end) {
        dragOutEnded(item.id(), end, *keep || isOnlyLinkedTo(item, end.operation));
    });
    return {released, ended};
}

void ShelfView::dragOutEnded(const QUuid &id, const DragOutEnd &end, bool keep)
{
    m_look.leavingItems.removeOne(id);
    relayout();
    if (!end.taken.isEmpty()) {
        if (onEjected)
            onEjected(id, keep);
    } else if (end.wasDropped) {
        flash(stayedMessage(1, 1));
    }
}

/// What was let go here counts as held over the shelf until it is here: that shows that it comes.
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

DragOperation ShelfView::draggingEntered(const DraggingInfo &info)
{
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
    m_isDragOver = false;
    updateDragTargeted();
}

void ShelfView::dropIsAwaited()
{
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
    // Whoever waits for it is told in any case.
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
    m_isDragOver = false;
    updateDragTargeted();
}

} // namespace corvane
