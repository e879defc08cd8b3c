#pragma once

#include "platform/base/work_queue.h"

#include <QThreadPool>

#include <atomic>
#include <chrono>

namespace corvane {

/// A work queue with a few threads of its own, which end when they have been idle for a while. The
/// destructor drops work that has not begun and waits for the work that has.
class QtWorkQueue : public WorkQueue {
public:
    /// Two, because decoding is the heaviest work, and each thread may hold a decoded picture of up
    /// to 256 MB.
    static constexpr int maximumThreads = 2;
    /// For queues whose work reads files of servers that may never answer: so much work may hang
    /// before other work has to wait.
    static constexpr int maximumHangingThreads = 8;

    explicit QtWorkQueue(int threads = maximumThreads);
    ~QtWorkQueue() override;

    void run(std::function<void()> work) override;
    /// Drops work that has not begun, now and later, and waits for at most `patience` for the work
    /// that has. True if none is left, so that the destructor does not wait.
    bool finish(std::chrono::milliseconds patience);

private:
    QThreadPool m_pool;
    std::atomic<bool> m_isFinishing = false;
};

} // namespace corvane
