// The bar by keyboard alone: what its keys move, and what they act on.

#include "platform/base/checked_math.h"
#include "shelf/bar/view_all_view.h"
#include "shelf/optional_callback.h"

#include <algorithm>
#include <utility>

namespace corvane {

bool ViewAllView::keyForFocus(const KeyEvent &event)
{
    const int rightward = m_layout.isMirrored ? -1 : 1;
    switch (event.key) {
    case TypedKey::LeftArrow:
        moveToTile(m_focus.control ? m_focus.index : checkedAdd(m_focus.index, -rightward));
        return true;
    case TypedKey::RightArrow:
        moveToTile(m_focus.control ? m_focus.index : checkedAdd(m_focus.index, rightward));
        return true;
    case TypedKey::Home:
        moveToTile(0);
        return true;
    case TypedKey::End:
        moveToTile(checkedAdd(itemCount(), -1));
        return true;
    case TypedKey::Tab:
        if (event.modifiers & (Modifier::Command | Modifier::Option))
            return false;
        moveToNextControl(event.modifiers.testFlag(Modifier::Shift));
        return true;
    case TypedKey::Space:
    case TypedKey::Return:
    case TypedKey::KeypadEnter:
        if (!event.isRepeat)
            pressFocused();
        return true;
    default:
        return false;
    }
}

/// Pages if the tile is on another page.
void ViewAllView::moveToTile(int index)
{
    if (itemCount() == 0)
        return;
    m_focus.index = std::clamp(index, 0, checkedAdd(itemCount(), -1));
    m_focus.item = m_items->at(m_focus.index).id();
    m_focus.control.reset();
    m_focus.isVisible = true;
    const view_all_layout::Range shown = visible();
    if (m_focus.index < shown.first)
        call(onScroll, m_focus.index - shown.first);
    else if (m_focus.index >= shown.end)
        call(onScroll, m_focus.index - shown.end + 1);
    else
        relayout();
}

void ViewAllView::moveToNextControl(bool isBackward)
{
    moveToControl(
        view_all_focus::neighbour(view_all_focus::stops(state()), m_focus.control, isBackward));
}

void ViewAllView::moveToControl(std::optional<ViewAllControl> control)
{
    m_focus.control = control;
    m_focus.isVisible = true;
    relayout();
}

/// Does what a click there would do.
void ViewAllView::pressFocused()
{
    m_focus.isVisible = true;
    relayout();
    if (m_focus.control)
        press(*m_focus.control);
    else if (m_focus.index < itemCount())
        call(onToggleItem, DropItem(m_items->at(m_focus.index)));
}

/// The focus stays on its item as long as that is there, and on the page that is shown.
void ViewAllView::followItems()
{
    if (itemCount() == 0) {
        m_focus = {};
        return;
    }
    const bool isThere
        = m_focus.index < itemCount() && m_items->at(m_focus.index).id() == m_focus.item;
    if (const DropItem *item = isThere ? nullptr : itemWithId(m_focus.item))
        m_focus.index = static_cast<int>(item - m_items->constData());
    const view_all_layout::Range shown = visible();
    m_focus.index = std::clamp(m_focus.index, shown.first, std::max(shown.first, shown.end - 1));
    m_focus.item = m_items->at(m_focus.index).id();
}

void ViewAllView::keyboardLost()
{
    if (std::exchange(m_focus.isVisible, false))
        relayout();
}

} // namespace corvane
