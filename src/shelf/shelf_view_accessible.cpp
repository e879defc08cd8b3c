// The shelf for assistive technologies: what it tells them, and what it does for them.

#include "shelf/accessible_items.h"
#include "shelf/accessible_shelf.h"
#include "shelf/optional_callback.h"
#include "shelf/shelf_view.h"

namespace corvane {

AccessibleNode ShelfView::accessible() const
{
    return accessible_shelf::describe(m_look, bodyRect().topLeft());
}

void ShelfView::perform(const QString &key, const QString &action)
{
    const auto control = accessible_shelf::controlOf(key, m_look);
    if (!control || m_look.snapshot.state == ShelfState::Idle)
        return;
    call(onUsed);
    const auto *cell = std::get_if<shelf_hit::Cell>(&*control);
    const auto item = accessible_items::itemOf(key);
    if (action == accessible_items::focus()) {
        m_context.panel.makeKey();
        moveKeyboardTo(*control);
        return;
    }
    if (cell && item && action != AccessibleNode::press()) {
        performOnItem(*item, cell->itemIndex, action);
        return;
    }
    if (action != AccessibleNode::press())
        return;
    m_context.panel.makeKey();
    press(*control, {});
    // Nothing is dragged from there.
    m_dragSource.release();
    call(onPressed);
}

void ShelfView::performOnItem(const QUuid &id, int index, const QString &action)
{
    if (action == accessible_shelf::remove()) {
        call(onRemove, index);
        return;
    }
    const bool movesOut = action == accessible_shelf::moveOut();
    if (!movesOut && action != accessible_shelf::copy() && action != accessible_shelf::preview())
        return;
    // Both act on the focused item.
    call(onFocus, index);
    if (action == accessible_shelf::preview()) {
        call(onQuickLook);
        return;
    }
    call(onCopy);
    if (movesOut)
        call(onEjected, id, false);
}

} // namespace corvane
