#include "core/item_index.h"

namespace corvane {

namespace {

/// The length of the range, ending with entry `i`, that the entry counts.
int range(int i)
{
    return i & -i;
}

} // namespace

void ItemIndex::build(const QList<DropItem> &items)
{
    const int count = static_cast<int>(items.size());
    m_places.clear();
    m_places.reserve(count);
    for (int place = 0; place < count; ++place) {
        const QUuid id = items[place].id();
        if (!m_places.contains(id))
            m_places.insert(id, place);
    }
    m_removed.assign(static_cast<std::size_t>(count) + 1, 0);
    m_hasRepeatedIds = m_places.size() != count;
    m_isValid = true;
}

int ItemIndex::removedBefore(int place) const
{
    int sum = 0;
    for (int i = place; i > 0; i -= range(i))
        sum += m_removed[static_cast<std::size_t>(i)];
    return sum;
}

void ItemIndex::removed(const QUuid &id)
{
    const auto found = m_places.constFind(id);
    // With one id in several places the tree cannot tell which of them went.
    if (!m_isValid || m_hasRepeatedIds || found == m_places.constEnd()) {
        invalidate();
        return;
    }
    const int size = static_cast<int>(m_removed.size());
    for (int i = *found + 1; i < size; i += range(i))
        ++m_removed[static_cast<std::size_t>(i)];
    m_places.erase(found);
}

std::optional<int> ItemIndex::indexOf(const QUuid &id, const QList<DropItem> &items)
{
    if (!m_isValid)
        build(items);
    const auto found = m_places.constFind(id);
    if (found == m_places.constEnd())
        return std::nullopt;
    return *found - removedBefore(*found);
}

} // namespace corvane
