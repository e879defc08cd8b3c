#pragma once

#include <atomic>
#include <deque>
#include <functional>

namespace corvane {

/// Where every thread leaves work for one. Without a lock: a thread that loses its processor while
/// it leaves something, which on a busy machine may be for many frames, keeps nobody else waiting.
class WorkInbox {
public:
    using Work = std::function<void()>;

    WorkInbox() = default;
    WorkInbox(const WorkInbox &) = delete;
    WorkInbox &operator=(const WorkInbox &) = delete;
    ~WorkInbox();

    /// From any thread, which has to wake the taker afterwards, whatever others do.
    void add(Work work);
    /// Appends all there is to `work`, what one thread gave in the order in which it did. For the
    /// taking thread alone.
    void takeAll(std::deque<Work> &work);

private:
    struct Entry {
        Work work;
        Entry *older = nullptr;
    };

    std::atomic<Entry *> m_newest = nullptr;
};

} // namespace corvane
