// The pointer and the keys on the view-all bar, and the bar as a source of drags.

#include "core/awaited_contents.h"
#include "core/drag_set.h"
#include "core/drag_writer.h"
#include "core/saved_pictures.h"
#include "platform/desktop/keyboard.h"
#include "shelf/bar/view_all_view.h"
#include "shelf/drag_stack.h"
#include "shelf/optional_callback.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane {

/// False when what is under the pointer is what was. While it is on a control the tile that it came
/// from stays the hovered one.
bool ViewAllView::findHovered()
{
    std::optional<ViewAllControl> control;
    std::optional<QUuid> hovered;
    if (m_pointer) {
        control = view_all_layout::controlAt(m_layout, *m_pointer);
        const DropItem *item = itemAt(*m_pointer);
        hovered = control ? m_hovered : item ? std::optional(item->id()) : std::nullopt;
    }
    const bool isSame = control == m_hoveredControl && hovered == m_hovered;
    m_hoveredControl = control;
    m_hovered = hovered;
    return !isSame;
}

void ViewAllView::updateHover(QPointF point)
{
    m_pointer = point;
    if (findHovered())
        relayout();
}

void ViewAllView::mouseEntered(const MouseEvent &event)
{
    updateHover(event.location);
}

void ViewAllView::mouseMoved(const MouseEvent &event)
{
    updateHover(event.location);
}

void ViewAllView::mouseExited()
{
    m_pointer.reset();
    if (findHovered())
        relayout();
}

void ViewAllView::mouseDown(const MouseEvent &event)
{
    // Pressed before it was hidden, and told only now.
    if (!m_isShown)
        return;
    m_context.panel.makeKey();
    m_context.panel.orderFrontRegardless();
    if (const auto control = view_all_layout::controlAt(m_layout, event.location)) {
        press(*control);
    } else if (const DropItem *item = itemAt(event.location)) {
        m_mouseDownId = item->id();
        m_mouseDownPoint = event.location;
    }
}

void ViewAllView::press(ViewAllControl control) const
{
    switch (control) {
    case ViewAllControl::Back:
        call(onScroll, -1);
        break;
    case ViewAllControl::Forward:
        call(onScroll, 1);
        break;
    case ViewAllControl::SelectAll:
        call(onToggleSelectAll);
        break;
    case ViewAllControl::Copy:
        call(onCopySelected);
        break;
    case ViewAllControl::Trash:
        call(onRemoveSelected);
        break;
    }
}

void ViewAllView::mouseDragged(const MouseEvent &event)
{
    if (!m_draggingIds.isEmpty())
        return;
    updateHover(event.location);
    if (!m_mouseDownPoint || !m_mouseDownId
        || QLineF(*m_mouseDownPoint, event.location).length() <= dragDistance)
        return;
    const DropItem *grabbed = itemWithId(*m_mouseDownId);
    if (!grabbed)
        return;
    m_mouseDownId.reset();
    m_mouseDownPoint.reset();
    // A copy: the drag may run an event loop in which the items change.
    beginDrag(DropItem(*grabbed));
}

void ViewAllView::mouseUp(const MouseEvent & /*event*/)
{
    const auto pressed = std::exchange(m_mouseDownId, std::nullopt);
    m_mouseDownPoint.reset();
    const DropItem *item = pressed ? itemWithId(*pressed) : nullptr;
    if (item)
        call(onToggleItem, DropItem(*item));
}

Image ViewAllView::dragImage(const DropItem &grabbed, const QList<DropItem> &items) const
{
    const double side = view_all_layout::thumbSide;
    std::vector<Image> cards;
    const auto add = [&](const DropItem &item) {
        if (cards.size() < drag_stack::maximumCards)
            cards.push_back(m_context.dragWriter.dragImage(item, side, m_scale));
    };
    // What was grabbed lies on top, if it travels.
    const bool hasGrabbed = std::any_of(items.begin(), items.end(), [&](const DropItem &item) {
        return item.id() == grabbed.id();
    });
    if (hasGrabbed)
        add(grabbed);
    for (const DropItem &item : items) {
        if (cards.size() == drag_stack::maximumCards)
            break;
        if (item.id() != grabbed.id())
            add(item);
    }
    return items.size() == 1
        ? cards.front()
        : drag_stack::image(cards, items.size(), side, m_context.theme, m_scale);
}

void ViewAllView::beginDrag(const DropItem &grabbed)
{
    const QList<DropItem> wanted
        = isSelected(grabbed) ? selectedInOrder() : QList<DropItem>{grabbed};
    DragSet set = makeDragSet(wanted, m_context.dragWriter, m_context.pictures);
    if (set.items.isEmpty()) {
        call(onNothingToDrag);
        return;
    }
    for (const DropItem &item : std::as_const(set.items))
        m_draggingIds << item.id();
    call(onDragOutChanged, true);

    DragOut drag;
    drag.contents = std::move(set.contents);
    drag.whenReady = awaitedContents(drag.contents, set.forms, m_context.preparation);
    drag.image = dragImage(grabbed, set.items);
    drag.hotSpot = {drag.image.size.width() / 2, drag.image.size.height() / 2};
    m_context.panel.beginDraggingSession(std::move(drag),
                                         dragOutEvents({m_draggingIds, set.forms, wanted.size()}));
}

DragOutEvents ViewAllView::dragOutEvents(DraggedOut dragged)
{
    const auto out = std::make_shared<DraggedOut>(std::move(dragged));
    const auto released = m_lifetime.guard([this, out] {
        m_draggingIds.clear();
        out->keep = m_context.keyboard.currentModifiers().testFlag(Modifier::Shift);
        call(onDragOutChanged, false);
    });
    const auto ended
        = m_lifetime.guard([this, out](const DragOutEnd &end) { dragEnded(*out, end); });
    return {released, ended};
}

void ViewAllView::dragEnded(const DraggedOut &dragged, const DragOutEnd &end) const
{
    QList<QUuid> leaving;
    QList<QUuid> kept;
    for (const qsizetype place : end.taken) {
        const bool keep = dragged.keep || isOnlyLinkedTo(dragged.forms[place], end.operation);
        (keep ? kept : leaving) << dragged.ids[place];
    }
    if (!leaving.isEmpty())
        call(onEjected, leaving, false);
    if (!kept.isEmpty())
        call(onEjected, kept, true);
    if (end.wasDropped && end.taken.size() < dragged.wanted)
        call(onStayed, dragged.wanted - end.taken.size(), dragged.wanted);
}

void ViewAllView::scrollWheel(const ScrollEvent &event)
{
    if (itemCount() <= itemsPerPage())
        return;
    const double step = event.hasPreciseDeltas ? preciseScrollStep : wheelScrollStep;
    if (std::abs(event.deltaX) >= step)
        call(onScroll, event.deltaX > 0 ? -1 : 1);
}

bool ViewAllView::keyDown(const KeyEvent &event)
{
    if (!m_isShown)
        return false;
    const bool isCommand = event.modifiers.testFlag(Modifier::Command);
    switch (event.keyCode) {
    case key_code::a:
    case key_code::c:
        if (!isCommand)
            return false;
        break;
    case key_code::deleteBackward:
    case key_code::deleteForward:
    case key_code::escape:
        break;
    default:
        return false;
    }
    // All of them remove or toggle: once for each press.
    if (!event.isRepeat)
        pressKey(event.keyCode);
    return true;
}

void ViewAllView::pressKey(std::uint32_t keyCode) const
{
    switch (keyCode) {
    case key_code::a:
        call(onToggleSelectAll);
        break;
    case key_code::c:
        call(onCopySelected);
        break;
    case key_code::escape:
        call(onClose);
        break;
    default:
        call(onRemoveSelected);
    }
}

DragOperation ViewAllView::draggingEntered(const DraggingInfo & /*info*/)
{
    return DragOperation::None;
}

DragOperation ViewAllView::draggingUpdated(const DraggingInfo & /*info*/)
{
    return DragOperation::None;
}

bool ViewAllView::performDragOperation(const DraggingInfo & /*info*/)
{
    return false;
}

} // namespace corvane
