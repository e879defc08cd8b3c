#include "platform/qt/base/work_inbox.h"

#include <memory>
#include <utility>

namespace corvane {

WorkInbox::~WorkInbox()
{
    std::deque<Work> dropped;
    takeAll(dropped);
}

void WorkInbox::add(Work work)
{
    auto entry = std::make_unique<Entry>(Entry{std::move(work)});
    Entry *older = m_newest.load(std::memory_order_relaxed);
    // Whoever takes it sees what was written before.
    do
        entry->older = older;
    while (!m_newest.compare_exchange_weak(older, entry.get(), std::memory_order_release,
                                           std::memory_order_relaxed));
    [[maybe_unused]] const Entry *const handedOver = entry.release();
}

void WorkInbox::takeAll(std::deque<Work> &work)
{
    Entry *newest = m_newest.exchange(nullptr, std::memory_order_acquire);
    // They hang together from the newest to the oldest.
    Entry *oldest = nullptr;
    while (newest) {
        Entry *older = std::exchange(newest->older, oldest);
        oldest = std::exchange(newest, older);
    }
    while (oldest) {
        const std::unique_ptr<Entry> entry(std::exchange(oldest, oldest->older));
        work.push_back(std::move(entry->work));
    }
}

} // namespace corvane
