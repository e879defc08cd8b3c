// The shelf by keyboard alone: what Tab goes through, and what is pasted.

#include "shelf/optional_callback.h"
#include "shelf/shelf_focus.h"
#include "shelf/shelf_view.h"

#include <utility>

namespace corvane {

/// Keys that do the same whatever is on the shelf, or whichever item is focused.
bool ShelfView::keyForEverything(const KeyEvent &event)
{
    const ShelfSnapshot &snapshot = m_look.snapshot;
    const bool isCommand = event.modifiers.testFlag(Modifier::Command);
    switch (event.key) {
    case TypedKey::V:
        if (isCommand && !event.isRepeat)
            m_context.panel.paste();
        return isCommand;
    case TypedKey::Escape:
        // With items it has another meaning, and a drag wants the empty shelf.
        if (!snapshot.visible.empty() || snapshot.receptive)
            return false;
        if (!event.isRepeat)
            call(onClose);
        return true;
    case TypedKey::Tab:
        if (snapshot.visible.empty() || isCommand || event.modifiers.testFlag(Modifier::Option))
            return false;
        moveKeyboard(event.modifiers.testFlag(Modifier::Shift));
        return true;
    case TypedKey::Return:
    case TypedKey::KeypadEnter:
        if (snapshot.visible.empty())
            return false;
        if (!event.isRepeat)
            pressFocused();
        return true;
    default:
        return false;
    }
}

void ShelfView::moveKeyboard(bool isBackward)
{
    const bool isOnControl = m_look.keyboardFocus != ShelfHit();
    const ShelfHit current = isOnControl ? m_look.keyboardFocus
                                         : ShelfHit(shelf_hit::Cell{m_look.snapshot.focusedIndex});
    const auto next = shelf_focus::neighbour(shelf_focus::stops(m_look.layout, m_look.snapshot),
                                             current, isBackward);
    if (next)
        moveKeyboardTo(*next);
}

void ShelfView::moveKeyboardTo(const ShelfHit &stop)
{
    if (const auto *cell = std::get_if<shelf_hit::Cell>(&stop)) {
        const int index = cell->itemIndex;
        returnToItem();
        call(onFocus, index);
        return;
    }
    m_look.keyboardFocus = stop;
    relayout();
}

/// The keyboard is on the focused item again.
void ShelfView::returnToItem()
{
    if (std::exchange(m_look.keyboardFocus, {}) != ShelfHit())
        relayout();
}

/// Does what a click on the control would do. A click on the focused item does nothing.
void ShelfView::pressFocused()
{
    // A copy: what it does replaces the look.
    const ShelfHit focused = m_look.keyboardFocus;
    press(focused, {});
}

bool ShelfView::takesPaste() const
{
    return m_look.snapshot.state != ShelfState::Idle;
}

void ShelfView::keyboardLost()
{
    returnToItem();
}

} // namespace corvane
