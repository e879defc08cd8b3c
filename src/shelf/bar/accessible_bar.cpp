#include "shelf/bar/accessible_bar.h"

#include "shelf/accessible_items.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace corvane::accessible_bar {

namespace {

struct BarWords {
    Q_DECLARE_TR_FUNCTIONS(AccessibleBar)
};

/// In the order of `allViewAllControls`.
constexpr std::array<QLatin1String, 5> keys{QLatin1String("back"), QLatin1String("forward"),
                                            QLatin1String("select all"), QLatin1String("copy"),
                                            QLatin1String("remove")};

AccessibleNode controlNode(ViewAllControl control, const QString &name, const QRectF &frame)
{
    AccessibleNode node;
    node.key = keys.at(static_cast<std::size_t>(control));
    node.role = AccessibleNode::Role::Button;
    node.name = name;
    node.frame = frame;
    node.actions = {{AccessibleNode::press(), BarWords::tr("Press")}};
    return node;
}

AccessibleNode tileNode(const State &state, std::size_t tile)
{
    const ViewAllLayout::Tile &place = state.layout.tiles[tile];
    const int index = state.offset + static_cast<int>(tile);
    AccessibleNode node = accessible_items::describe(state.page[tile], {index, state.itemCount});
    // Of items in lists screen readers do not say whether they are ticked.
    node.role = AccessibleNode::Role::CheckBox;
    node.frame = place.root;
    node.isSelectable = node.isCheckable = true;
    node.isSelected = node.isChecked = place.isChecked;
    node.isFocusable = true;
    node.isFocused = !state.focus.control && state.focus.index == index;
    node.actions = {{AccessibleNode::press(), BarWords::tr("Select or deselect")}};
    return node;
}

AccessibleNode tileList(const State &state)
{
    AccessibleNode list;
    list.key = QStringLiteral("items");
    list.role = AccessibleNode::Role::List;
    // Only this page is in it, and of check boxes screen readers count none.
    list.name = BarWords::tr("All items: %L1").arg(state.itemCount);
    for (std::size_t tile = 0; tile < std::min(state.layout.tiles.size(), state.page.size());
         ++tile) {
        list.children.push_back(tileNode(state, tile));
        list.frame |= list.children.back().frame;
    }
    return list;
}

AccessibleNode selectAllNode(const State &state)
{
    const ViewAllLayout &layout = state.layout;
    AccessibleNode node = controlNode(ViewAllControl::SelectAll, BarWords::tr("Select all"),
                                      layout.selectAllBox.frame | layout.selectAllLabel);
    node.role = AccessibleNode::Role::CheckBox;
    node.description = layout.selectionText;
    node.isCheckable = true;
    node.isChecked = layout.isEverythingSelected;
    return node;
}

} // namespace

AccessibleNode describe(const State &state)
{
    const ViewAllLayout &layout = state.layout;
    AccessibleNode bar;
    bar.key = QStringLiteral("bar");
    bar.role = AccessibleNode::Role::Window;
    bar.name = BarWords::tr("All items on the shelf");
    bar.frame = QRectF({0, 0}, layout.size);
    if (!state.isShown)
        return bar;
    AccessibleNode back
        = controlNode(ViewAllControl::Back, BarWords::tr("Earlier items"), layout.leftArrow.frame);
    back.isEnabled = state.offset > 0;
    AccessibleNode forward = controlNode(ViewAllControl::Forward, BarWords::tr("Later items"),
                                         layout.rightArrow.frame);
    forward.isEnabled = state.offset + static_cast<int>(state.page.size()) < state.itemCount;
    AccessibleNode copy = controlNode(ViewAllControl::Copy, BarWords::tr("Copy the selected items"),
                                      layout.copyButton.frame);
    AccessibleNode trash = controlNode(
        ViewAllControl::Trash, BarWords::tr("Remove the selected items"), layout.trashButton.frame);
    copy.isEnabled = trash.isEnabled = state.selectedCount > 0;
    bar.children = {tileList(state), back, forward, selectAllNode(state), copy, trash};
    for (AccessibleNode &node : bar.children) {
        const auto control = controlOf(node.key);
        node.isFocusable = control && node.isEnabled;
        node.isFocused = node.isFocusable && state.focus.control == control;
    }
    return bar;
}

std::optional<ViewAllControl> controlOf(const QString &key)
{
    const auto found = std::ranges::find(keys, key);
    if (found == keys.end())
        return std::nullopt;
    return allViewAllControls.at(static_cast<std::size_t>(found - keys.begin()));
}

} // namespace corvane::accessible_bar
