// The shelf's keys and buttons: what each does, and to which item.

#include "platform/base/checked_math.h"
#include "shelf/optional_callback.h"
#include "shelf/shelf_view.h"

#include <algorithm>

namespace corvane {

/// The item that buttons and keys act on: only one that is in view. That is the focused item, or
/// the single item in view, which is then focused. With several in view and the focused one
/// elsewhere there is none: the carousel scrolls to the focused item instead.
std::optional<int> ShelfView::itemToActOn() const
{
    const auto &visible = m_look.snapshot.visible;
    const int focused = m_look.snapshot.focusedIndex;
    const bool isInView = std::any_of(visible.begin(), visible.end(),
                                      [&](const auto &entry) { return entry.first == focused; });
    if (isInView || visible.empty())
        return isInView ? std::optional(focused) : std::nullopt;
    // A copy: the callback replaces the snapshot.
    const auto shown = visible.size() == 1 ? std::optional(visible.front().first) : std::nullopt;
    call(onFocus, shown.value_or(focused));
    return shown;
}

void ShelfView::performAction(ShelfAction action) const
{
    const auto item = itemToActOn();
    if (!item)
        return;
    switch (action) {
    case ShelfAction::QuickLook:
        call(onQuickLook);
        break;
    case ShelfAction::Copy:
        call(onCopy);
        break;
    case ShelfAction::Clear:
        call(onRemove, *item);
        break;
    }
}

bool ShelfView::keyDown(const KeyEvent &event)
{
    // While the shelf closes it is still on screen, and keys typed before it gave the keyboard back
    // may arrive. They are passed on.
    if (m_look.snapshot.state == ShelfState::Idle)
        return false;
    call(onUsed);
    endTip();
    return keyForEverything(event) || (!m_look.snapshot.visible.empty() && keyForItems(event));
}

bool ShelfView::keyForItems(const KeyEvent &event)
{
    const int focused = m_look.snapshot.focusedIndex;
    const int rightward = m_look.layout.isMirrored ? -1 : 1;
    switch (event.key) {
    case TypedKey::C:
        if (!event.modifiers.testFlag(Modifier::Command))
            return false;
        break;
    case TypedKey::LeftArrow:
        returnToItem();
        call(onFocus, checkedAdd(focused, -rightward));
        return true;
    case TypedKey::RightArrow:
        returnToItem();
        call(onFocus, checkedAdd(focused, rightward));
        return true;
    case TypedKey::Space:
    case TypedKey::DeleteBackward:
    case TypedKey::DeleteForward:
    case TypedKey::Escape:
    case TypedKey::DownArrow:
        break;
    default:
        return false;
    }
    // Removing and toggling happen once for each press, not for a held key's repeats.
    if (!event.isRepeat)
        pressKey(event);
    return true;
}

void ShelfView::pressKey(const KeyEvent &event) const
{
    switch (event.key) {
    case TypedKey::C:
        performAction(ShelfAction::Copy);
        break;
    case TypedKey::Space:
        performAction(ShelfAction::QuickLook);
        break;
    case TypedKey::DownArrow:
        call(onViewAll);
        break;
    default:
        // Escape removes too, like Delete.
        performAction(ShelfAction::Clear);
    }
}

} // namespace corvane
