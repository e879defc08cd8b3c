#pragma once

#include "platform/base/checked_math.h"
#include "platform/base/lifetime.h"
#include "platform/base/subscription.h"

#include <map>
#include <memory>
#include <utility>

namespace corvane {

/// Entries that are visited in the order of adding, by calls that may change the list.
///
/// A call may add entries; they are first visited the next time. It may remove any entry, its own
/// too: a removed entry is not visited any more, but is not destroyed before its own call returns.
/// It may visit the list again; that visit ends before the outer one goes on. It may destroy the
/// list; then no more entries are visited.
template<typename Entry>
class ChangingList {
public:
    /// Each is given once only.
    using Id = int;

    Id add(Entry entry)
    {
        const Id id = std::exchange(m_nextId, checkedAdd(m_nextId, 1));
        m_entries.emplace(id, std::make_shared<const Entry>(std::move(entry)));
        return id;
    }
    /// Added until the subscription ends; it may outlive the list.
    Subscription subscribe(Entry entry)
    {
        return Subscription(m_lifetime.guard([this, id = add(std::move(entry))] { remove(id); }));
    }
    /// Does nothing for an id that is not in the list.
    void remove(Id id) { m_entries.erase(id); }
    bool isEmpty() const { return m_entries.empty(); }

    template<typename Visit>
    void forEach(const Visit &visit) const
    {
        anyOf([&visit](const Entry &entry) {
            visit(entry);
            return false;
        });
    }
    /// Whether `test` holds for an entry; those behind it are not tested.
    template<typename Test>
    bool anyOf(const Test &test) const
    {
        const Lifetime::Token life = m_lifetime.token();
        const Id end = m_nextId;
        auto next = m_entries.begin();
        while (next != m_entries.end() && next->first < end) {
            const Id id = next->first;
            // Shared, so that the entry stays during its call; a copy of its captures would cost
            // more than most calls.
            const std::shared_ptr<const Entry> entry = next->second;
            if (test(*entry))
                return true;
            if (life.isOver())
                return false;
            next = m_entries.upper_bound(id);
        }
        return false;
    }

private:
    std::map<Id, std::shared_ptr<const Entry>> m_entries;
    Id m_nextId = 1;
    Lifetime m_lifetime;
};

} // namespace corvane
