#pragma once

#include "core/drop_item.h"

#include <QHash>
#include <QList>
#include <QUuid>

#include <optional>
#include <vector>

namespace corvane {

/// Finds an item's place in the store's list by its id. Built when it is first asked, and updated
/// as items are removed.
///
/// Thousands of thumbnails arrive by id, and thousands of items can leave one by one, so neither
/// may walk the list. A removal moves all items behind it: the index keeps each item's place from
/// when it was built, and a tree of counts tells how many before it have been removed since.
class ItemIndex {
public:
    /// To be called after any change of the list other than a removal; the next question builds the
    /// index anew.
    void invalidate() { m_isValid = false; }
    /// To be called when the item of that id was removed from the list.
    void removed(const QUuid &id);
    /// The place of the first item with that id; none where there is none. `items` is the list as
    /// it is now.
    std::optional<int> indexOf(const QUuid &id, const QList<DropItem> &items);

private:
    void build(const QList<DropItem> &items);
    int removedBefore(int place) const;

    bool m_isValid = false;
    bool m_hasRepeatedIds = false;
    QHash<QUuid, int> m_places;
    /// Binary indexed tree, counted from 1: each entry says how many of its range of places were
    /// removed.
    std::vector<int> m_removed;
};

} // namespace corvane
