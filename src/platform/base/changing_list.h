#pragma once

#include "platform/base/checked_math.h"
#include "platform/base/lifetime.h"
#include "platform/base/subscription.h"

#include <map>
#include <memory>
#include <utility>

namespace corvane {

/// What is called one after the other, in the order of adding, by calls that may change the list.
///
/// A call may add entries, which are first visited the next time, and remove any, its own too: what
/// was removed is not visited any more, and an entry stays as long as its own call lasts. A call
/// may visit the list again; that visit comes to its end before the outer one goes on. A call may
/// destroy the list; then nobody else is visited.
template<typename Entry>
class ChangingList {
public:
    /// Never given twice.
    using Id = int;

    Id add(Entry entry)
    {
        const Id id = std::exchange(m_nextId, checkedAdd(m_nextId, 1));
        m_entries.emplace(id, std::make_shared<const Entry>(std::move(entry)));
        return id;
    }
    /// Until the subscription ends, which may outlive the list.
    Subscription subscribe(Entry entry)
    {
        return Subscription(m_lifetime.guard([this, id = add(std::move(entry))] { remove(id); }));
    }
    /// One that is not there is ignored.
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
    /// Whether `test` holds for one; those after it are not asked.
    template<typename Test>
    bool anyOf(const Test &test) const
    {
        const Lifetime::Token life = m_lifetime.token();
        const Id end = m_nextId;
        auto next = m_entries.begin();
        while (next != m_entries.end() && next->first < end) {
            const Id id = next->first;
            // Held, and shared: a copy of what it has captured costs more than most calls do.
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
