#pragma once

#include "core/drop_item.h"
#include "platform/desktop/accessible_node.h"
#include "shelf/bar/view_all_focus.h"

#include <QString>

#include <optional>
#include <span>

/// The bar with all items as assistive technologies are told of it.
namespace corvane::accessible_bar {

struct State {
    const ViewAllLayout &layout;
    /// The items shown, the first of which is number `offset` of `itemCount`.
    std::span<const DropItem> page;
    int offset = 0;
    int itemCount = 0;
    int selectedCount = 0;
    ViewAllFocus focus = {};
    /// Off the screen there is nothing in it.
    bool isShown = false;
};

AccessibleNode describe(const State &state);

/// The control whose node has that key; none for other keys.
std::optional<ViewAllControl> controlOf(const QString &key);

} // namespace corvane::accessible_bar
