#pragma once

#include "platform/work_queue.h"

#include <QThreadPool>

namespace corvane {

/// A few threads of its own, which end when they have been idle for a while. Destroying it drops
/// the work that has not begun and waits for the work that has.
class QtWorkQueue : public WorkQueue {
public:
    /// Decoding is the heaviest work there is, and each thread may hold one decoded picture.
    static constexpr int maximumThreads = 2;

    QtWorkQueue();
    ~QtWorkQueue() override;

    void run(std::function<void()> work) override;

private:
    QThreadPool m_pool;
};

} // namespace corvane
