// What keys and buttons do, and to which item.

#include "platform/base/checked_math.h"
#include "shelf/optional_callback.h"
#include "shelf/shelf_view.h"

#include <algorithm>

namespace corvane {

/// Buttons and keys act on what is seen. A single item in view is the one that is meant, and is
/// focused for that. Among several none is meant while the focused one is elsewhere: it is shown,
/// and that is all.
std::optional<int> ShelfView::itemToActOn() const
{
    const auto &visible = m_look.snapshot.visible;
    const int focused = m_look.snapshot.focusedIndex;
    const bool isInView = std::any_of(visible.begin(), visible.end(),
                                      [&](const auto &entry) { return entry.first == focused; });
    if (isInView || visible.empty())
        return isInView ? std::optional(focused) : std::nullopt;
    // Copies: the callback brings another snapshot.
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
    // A shelf that closes is still on screen for a moment, and what was typed before it gave the
    // keyboard back may come only now.
    if (m_look.snapshot.state == ShelfState::Idle)
        return false;
    call(onUsed);
    if (m_look.snapshot.visible.empty())
        return false;
    const int focused = m_look.snapshot.focusedIndex;
    switch (event.key) {
    case TypedKey::C:
        if (!event.modifiers.testFlag(Modifier::Command))
            return false;
        break;
    case TypedKey::LeftArrow:
        call(onFocus, checkedAdd(focused, -1));
        return true;
    case TypedKey::RightArrow:
        call(onFocus, checkedAdd(focused, 1));
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
    // What removes or toggles does so once for each press.
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
