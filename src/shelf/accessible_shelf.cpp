#include "shelf/accessible_shelf.h"

#include "core/display_text.h"
#include "shelf/accessible_items.h"
#include "shelf/shelf_focus.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace corvane::accessible_shelf {

namespace {

const QLatin1String backKey("back");
const QLatin1String forwardKey("forward");
const QLatin1String allItemsKey("all items");
constexpr std::array<QLatin1String, 3> actionKeys{QLatin1String("preview"), QLatin1String("copy"),
                                                  QLatin1String("remove")};

struct Words {
    Q_DECLARE_TR_FUNCTIONS(AccessibleShelf)
};

AccessibleNode button(const QString &key, const QString &name, const QRectF &frame)
{
    AccessibleNode node;
    node.key = key;
    node.role = AccessibleNode::Role::Button;
    node.name = name;
    node.frame = frame;
    node.actions = {{AccessibleNode::press(), Words::tr("Press")}};
    return node;
}

AccessibleNode itemNode(const ShelfLook &look, int index, const DropItem &item)
{
    const ShelfSnapshot &snapshot = look.snapshot;
    AccessibleNode node = accessible_items::describe(item, {index, snapshot.totalCount});
    node.isSelectable = true;
    node.isFocusable = true;
    node.isSelected = index == snapshot.focusedIndex;
    node.isFocused = node.isSelected && look.keyboardFocus == ShelfHit();
    node.actions = {{AccessibleNode::press(), Words::tr("Focus")},
                    {preview(), Words::tr("Preview")},
                    {copy(), Words::tr("Copy")},
                    {remove(), Words::tr("Remove")},
                    {moveOut(), Words::tr("Copy and take off the shelf")}};
    for (const ShelfLayout::Cell &cell : look.layout.cells) {
        if (cell.itemIndex == index)
            node.frame = cell.root;
    }
    return node;
}

AccessibleNode itemList(const ShelfLook &look)
{
    AccessibleNode list;
    list.key = QStringLiteral("items");
    list.role = AccessibleNode::Role::List;
    // Only those in view are in it, and screen readers count what is in a list.
    list.name = Words::tr("Items on the shelf: %L1").arg(look.snapshot.totalCount);
    for (const auto &[index, item] : look.snapshot.visible) {
        list.children.push_back(itemNode(look, index, item));
        list.frame |= list.children.back().frame;
    }
    return list;
}

void addArrows(const ShelfLook &look, std::vector<AccessibleNode> &nodes)
{
    if (!look.layout.arrows)
        return;
    nodes.push_back(button(backKey, Words::tr("Earlier items"), look.layout.arrows->at(0)));
    nodes.back().isEnabled = look.snapshot.canScrollBack;
    nodes.push_back(button(forwardKey, Words::tr("Later items"), look.layout.arrows->at(1)));
    nodes.back().isEnabled = look.snapshot.canScrollForward;
}

void addButtons(const ShelfLook &look, std::vector<AccessibleNode> &nodes)
{
    if (look.layout.actionButtons) {
        const std::array<QString, 3> names{Words::tr("Preview"), Words::tr("Copy"),
                                           Words::tr("Remove")};
        for (std::size_t i = 0; i < names.size(); ++i)
            nodes.push_back(
                button(actionKeys.at(i), names.at(i), look.layout.actionButtons->at(i)));
    }
    if (look.layout.viewAllButton)
        nodes.push_back(button(allItemsKey, Words::tr("All items"), *look.layout.viewAllButton));
}

QString wayToFillIt()
{
    const QKeySequence paste(QKeyCombination(Qt::ControlModifier, Qt::Key_V));
    return Words::tr("The shelf is empty. %1 puts what is on the clipboard here.")
        .arg(paste.toString(QKeySequence::NativeText));
}

/// Says what is drawn there: that something may be dropped, or that it only has to be let go. On
/// the empty shelf it is all that the keyboard can be on.
AccessibleNode dropTarget(const ShelfLook &look)
{
    AccessibleNode node;
    node.key = QStringLiteral("drop target");
    node.name = look.isDragTargeted ? QCoreApplication::translate("ShelfView", "Release to hold")
                                    : QCoreApplication::translate("ShelfView", "Drop to hold");
    node.frame = look.layout.ring;
    if (look.snapshot.visible.empty()) {
        // In the name: screen readers do not say what a label is described by.
        node.name = wayToFillIt() + u' ' + node.name;
        node.isFocusable = node.isFocused = true;
    }
    return node;
}

/// Which of the controls Tab goes to, and on which the keyboard is.
void tellFocus(const ShelfLook &look, std::vector<AccessibleNode> &nodes)
{
    const auto stops = shelf_focus::stops(look.layout, look.snapshot);
    for (AccessibleNode &node : nodes) {
        const auto control = controlOf(node.key, look);
        if (!control || std::ranges::find(stops, *control) == stops.end())
            continue;
        node.isFocusable = true;
        node.isFocused = look.keyboardFocus == *control;
    }
}

QString newsOfRemoved(const QString &title, int left)
{
    if (left == 0)
        return Words::tr("%1 was removed; the shelf is empty").arg(title);
    if (left == 1)
        return Words::tr("%1 was removed; 1 item is left").arg(title);
    return Words::tr("%1 was removed; %n items are left", nullptr, left).arg(title);
}

void moveBy(QPointF distance, std::vector<AccessibleNode> &nodes)
{
    for (AccessibleNode &node : nodes) {
        node.frame.translate(distance);
        moveBy(distance, node.children);
    }
}

} // namespace

QString preview()
{
    return QStringLiteral("Preview");
}

QString copy()
{
    return QStringLiteral("Copy");
}

QString remove()
{
    return QStringLiteral("Remove");
}

QString moveOut()
{
    return QStringLiteral("Move out");
}

AccessibleNode describe(const ShelfLook &look, QPointF body)
{
    AccessibleNode shelf;
    shelf.key = QStringLiteral("shelf");
    shelf.role = AccessibleNode::Role::Window;
    shelf.name = Words::tr("Shelf");
    shelf.frame = QRectF(body, look.layout.size);
    if (look.snapshot.state == ShelfState::Idle)
        return shelf;
    std::vector<AccessibleNode> nodes;
    if (!look.snapshot.visible.empty())
        nodes.push_back(itemList(look));
    if (look.snapshot.looksLikeDropTarget())
        nodes.push_back(dropTarget(look));
    addArrows(look, nodes);
    addButtons(look, nodes);
    tellFocus(look, nodes);
    moveBy(body, nodes);
    shelf.children = std::move(nodes);
    return shelf;
}

std::optional<ShelfHit> controlOf(const QString &key, const ShelfLook &look)
{
    const ShelfLayout &layout = look.layout;
    if (key == backKey && layout.arrows)
        return shelf_hit::Arrow{ArrowSide::Left};
    if (key == forwardKey && layout.arrows)
        return shelf_hit::Arrow{ArrowSide::Right};
    if (key == allItemsKey && layout.viewAllButton)
        return shelf_hit::ViewAll{};
    const auto action = std::ranges::find(actionKeys, key);
    if (action != actionKeys.end() && layout.actionButtons)
        return shelf_hit::Button{
            allShelfActions.at(static_cast<std::size_t>(action - actionKeys.begin()))};
    const auto id = accessible_items::itemOf(key);
    for (const auto &[index, item] : look.snapshot.visible) {
        if (id == item.id())
            return shelf_hit::Cell{index};
    }
    return std::nullopt;
}

QString newsOf(const ShelfSnapshot &before, const ShelfSnapshot &now)
{
    const int more = now.totalCount - before.totalCount;
    if (more == 0)
        return {};
    if (more == -1 && !now.lastThatLeft.isEmpty())
        return newsOfRemoved(displayText(now.lastThatLeft), now.totalCount);
    if (now.totalCount == 0)
        return Words::tr("The shelf is empty");
    if (more < 0)
        return now.totalCount == 1
            ? Words::tr("Removed; 1 item is left")
            : Words::tr("Removed; %n items are left", nullptr, now.totalCount);
    const auto last
        = std::ranges::find(now.visible, now.totalCount - 1, &std::pair<int, DropItem>::first);
    if (more == 1 && last != now.visible.end())
        return Words::tr("%1 was added").arg(displayText(last->second.title()));
    return more == 1 ? Words::tr("1 item was added")
                     : Words::tr("%n items were added", nullptr, more);
}

QString newsOfPage(const ShelfSnapshot &before, const ShelfSnapshot &now)
{
    QStringList came;
    for (const auto &[index, item] : now.visible) {
        const bool wasThere
            = std::ranges::any_of(before.visible, [&shown = item](const auto &entry) {
                  return entry.second.id() == shown.id();
              });
        if (!wasThere)
            came << accessible_items::spoken(item, {index, now.totalCount});
    }
    return came.join(QLatin1String("; "));
}

QString hiddenNews()
{
    return Words::tr("The shelf is hidden");
}

} // namespace corvane::accessible_shelf
