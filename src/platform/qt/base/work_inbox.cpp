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
    // Release order: the thread that takes the entry sees its contents.
    do
        entry->older = older;
    while (!m_newest.compare_exchange_weak(older, entry.get(), std::memory_order_release,
                                           std::memory_order_relaxed));
    [[maybe_unused]] const Entry *const handedOver = entry.release();
}

void WorkInbox::takeAll(std::deque<Work> &work)
{
    Entry *newest = m_newest.exchange(nullptr, std::memory_order_acquire);
    // The list is linked from the newest to the oldest; reverse it.
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
