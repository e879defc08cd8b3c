#pragma once

#include "core/drop_item.h"
#include "platform/desktop/accessible_node.h"

#include <QString>

#include <optional>

namespace corvane::accessible_items {

/// An item's place among all of them.
struct Place {
    /// From 0.
    int index = 0;
    int count = 0;
};

/// What assistive technologies are told of an item: its title, and in the description its kind,
/// what is shown below the title, its place ("2 of 5"), and whether it is still being made.
AccessibleNode describe(const DropItem &item, Place place);

/// The same in one line, for what is announced.
QString spoken(const DropItem &item, Place place);

/// The toolkit's name for the action of everything that can be focused: the keyboard goes there,
/// and nothing else is done.
QString focus();

/// The key of an item's node.
QString keyOf(const QUuid &item);
/// The item whose node has that key; none for other keys.
std::optional<QUuid> itemOf(const QString &key);

} // namespace corvane::accessible_items
