#pragma once

#include "platform/base/work_queue.h"

#include <QThreadPool>

#include <atomic>
#include <chrono>

namespace corvane {

/// A few threads of its own, which end when they have been idle for a while. Destroying it drops
/// the work that has not begun and waits for the work that has.
class QtWorkQueue : public WorkQueue {
public:
    /// Decoding is the heaviest work there is, and each thread may hold one decoded picture.
    static constexpr int maximumThreads = 2;
    /// Where a file's server may never answer, that many pieces of work may hang before the next
    /// one waits.
    static constexpr int maximumHangingThreads = 8;

    explicit QtWorkQueue(int threads = maximumThreads);
    ~QtWorkQueue() override;

    void run(std::function<void()> work) override;
    /// Drops the work that has not begun, now and from now on, and waits no longer than that for
    /// the work that has; whether none is left, so that destroying this waits for nothing.
    bool finish(std::chrono::milliseconds patience);

private:
    QThreadPool m_pool;
    std::atomic<bool> m_isFinishing = false;
};

} // namespace corvane
