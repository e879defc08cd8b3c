// The pointer and the keys on the view-all bar, and the bar as a source of drags.

#include "core/drag_writer.h"
#include "shelf/accessible_items.h"
#include "shelf/bar/view_all_view.h"
#include "shelf/drag_stack.h"
#include "shelf/optional_callback.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane {

/// Updates what is under the pointer; false when that did not change. On a control the tile that
/// the pointer was on before counts as hovered still.
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
    mouseMoved(event);
}

void ViewAllView::mouseMoved(const MouseEvent &event)
{
    updateHover(event.location);
    showTip(TitleTip::Pointer::Moved);
}

void ViewAllView::mouseExited()
{
    m_pointer.reset();
    if (findHovered())
        relayout();
    showTip(TitleTip::Pointer::Moved);
}

std::optional<TitleTip::Title> ViewAllView::titleUnderPointer() const
{
    if (!m_isShown || !m_pointer || m_hoveredControl || m_dragSource.isDragging())
        return std::nullopt;
    const DropItem *item = itemAt(*m_pointer);
    const auto tile = view_all_layout::tileAt(m_layout, *m_pointer);
    if (!item || !tile)
        return std::nullopt;
    const ViewAllLayout::Tile &place = m_layout.tiles[*tile];
    return TitleTip::Title{.item = item->id(),
                           .text = item->title(),
                           .font = captionFont(m_context.theme),
                           .width = place.caption.width(),
                           .cell = place.root};
}

void ViewAllView::showTip(TitleTip::Pointer pointer) const
{
    if (m_context.tip)
        m_context.tip->follow(m_context.panel, titleUnderPointer(), pointer);
}

void ViewAllView::endTip() const
{
    if (m_context.tip)
        m_context.tip->dismiss();
}

void ViewAllView::mouseDown(const MouseEvent &event)
{
    // The press was made before the bar was hidden, and arrives only now.
    if (!m_isShown)
        return;
    endTip();
    m_context.panel.makeKey();
    m_context.panel.orderFrontRegardless();
    m_focus.isVisible = false;
    if (const auto control = view_all_layout::controlAt(m_layout, event.location)) {
        press(*control);
    } else if (const DropItem *item = itemAt(event.location)) {
        m_dragSource.press(item->id(), event.location);
    }
}

void ViewAllView::press(ViewAllControl control)
{
    switch (control) {
    case ViewAllControl::Back:
        pageBy(-1);
        break;
    case ViewAllControl::Forward:
        pageBy(1);
        break;
    case ViewAllControl::SelectAll:
        toggleSelectAll();
        break;
    case ViewAllControl::Copy:
        call(onCopySelected);
        break;
    case ViewAllControl::Trash:
        call(onRemoveSelected);
        break;
    }
}

/// The keyboard stays on the arrow, so that screen readers say nothing by themselves.
void ViewAllView::pageBy(int step)
{
    const QList<QUuid> before = itemsInView();
    call(onScroll, step);
    QStringList came;
    int index = m_offset;
    for (const DropItem &item : page()) {
        if (!before.contains(item.id()))
            came << accessible_items::spoken(item, {index, itemCount()});
        ++index;
    }
    if (!came.isEmpty())
        m_context.panel.announce(came.join(QLatin1String("; ")));
}

void ViewAllView::wireDragSource()
{
    // No guard is needed: the drag source is a member and is destroyed with the view.
    m_dragSource.onChanged = [this](bool isDraggingOut) { call(onDragOutChanged, isDraggingOut); };
    m_dragSource.onEjected
        = [this](const QList<QUuid> &ids, bool keep) { call(onEjected, ids, keep); };
    m_dragSource.onMessage = [this](const Message &message) { call(onMessage, message); };
}

void ViewAllView::mouseDragged(const MouseEvent &event)
{
    if (m_dragSource.isDragging())
        return;
    updateHover(event.location);
    const auto press = m_dragSource.pulled(event.location);
    const DropItem *found = press ? itemWithId(press->item) : nullptr;
    if (!found)
        return;
    // A copy: the drag may run an event loop in which the items change.
    const DropItem grabbed = *found;
    m_dragSource.begin(isSelected(grabbed) ? selectedInOrder() : QList<DropItem>{grabbed},
                       [&](const QList<DropItem> &items) {
                           Image image = dragImage(grabbed, items);
                           const QPointF middle(image.size.width() / 2, image.size.height() / 2);
                           return DragSource::Picture{std::move(image), middle};
                       });
}

void ViewAllView::mouseUp(const MouseEvent & /*event*/)
{
    const auto press = m_dragSource.release();
    const DropItem *item = press ? itemWithId(press->item) : nullptr;
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
    // The item that was grabbed lies on top, unless it cannot be dragged.
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
        ? drag_stack::onGround(cards.front())
        : drag_stack::image(cards, items.size(), side, m_context.theme, m_scale);
}

void ViewAllView::scrollWheel(const ScrollEvent &event)
{
    if (itemCount() <= itemsPerPage())
        return;
    endTip();
    const double step = event.hasPreciseDeltas ? preciseScrollStep : wheelScrollStep;
    // What lies to the right is earlier where the bar is mirrored.
    if (std::abs(event.deltaX) >= step)
        call(onScroll, (event.deltaX > 0) != m_layout.isMirrored ? -1 : 1);
}

bool ViewAllView::keyDown(const KeyEvent &event)
{
    if (!m_isShown)
        return false;
    endTip();
    if (keyForFocus(event))
        return true;
    const bool isCommand = event.modifiers.testFlag(Modifier::Command);
    switch (event.key) {
    case TypedKey::A:
    case TypedKey::C:
    case TypedKey::V:
        if (!isCommand)
            return false;
        break;
    case TypedKey::DeleteBackward:
    case TypedKey::DeleteForward:
    case TypedKey::Escape:
        break;
    default:
        return false;
    }
    // All of these keys add, remove or toggle something: not again for a held key's repeats.
    if (!event.isRepeat)
        pressKey(event.key);
    return true;
}

/// The focus may be on another control, so that screen readers say nothing of it by themselves.
void ViewAllView::toggleSelectAll()
{
    m_awaitsSelection = true;
    call(onToggleSelectAll);
}

void ViewAllView::pressKey(TypedKey key)
{
    switch (key) {
    case TypedKey::A:
        toggleSelectAll();
        break;
    case TypedKey::C:
        call(onCopySelected);
        break;
    case TypedKey::V:
        call(onPaste);
        break;
    case TypedKey::Escape:
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
