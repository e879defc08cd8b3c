#pragma once

#include <atomic>
#include <deque>
#include <functional>

namespace corvane {

/// A queue to which any thread adds work and from which one thread takes it. Without a lock, so
/// that a thread that is interrupted while it adds, for many frames on a busy machine, does not
/// block the others.
class WorkInbox {
public:
    using Work = std::function<void()>;

    WorkInbox() = default;
    WorkInbox(const WorkInbox &) = delete;
    WorkInbox &operator=(const WorkInbox &) = delete;
    ~WorkInbox();

    /// Any thread. The caller has to wake the taking thread afterwards, even if others have done
    /// so.
    void add(Work work);
    /// Appends all work to `work`; work of one thread comes in the order in which it was added.
    /// Only for the taking thread.
    void takeAll(std::deque<Work> &work);

private:
    struct Entry {
        Work work;
        Entry *older = nullptr;
    };

    std::atomic<Entry *> m_newest = nullptr;
};

} // namespace corvane
