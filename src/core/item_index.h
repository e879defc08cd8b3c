#pragma once

#include "core/drop_item.h"

#include <QHash>
#include <QList>
#include <QUuid>

#include <optional>
#include <vector>

namespace corvane {

/// Finds items by id, made only when it is first asked and kept while items are removed.
///
/// Thousands of thumbnails come back by id, and thousands of items can leave one by one, so neither
/// may walk the list. A removal moves all that follow: each item keeps the place that it had when
/// the index was made, and a tree of counts tells how many before it have gone since.
class ItemIndex {
public:
    /// The list changed in a way that was not told.
    void invalidate() { m_isValid = false; }
    /// The item at `index` of the list was removed.
    void removed(const QUuid &id);
    /// The first item with that id. `items` is the list that all this is about.
    std::optional<int> indexOf(const QUuid &id, const QList<DropItem> &items);

private:
    void build(const QList<DropItem> &items);
    int removedBefore(int place) const;

    bool m_isValid = false;
    bool m_hasRepeatedIds = false;
    QHash<QUuid, int> m_places;
    /// Binary indexed tree, counted from 1: how many of a range of places were removed.
    std::vector<int> m_removed;
};

} // namespace corvane
