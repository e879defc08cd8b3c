#pragma once

#include <functional>

namespace corvane {

/// Threads beside the main one, for work that takes longer than a frame.
class WorkQueue {
public:
    virtual ~WorkQueue() = default;

    /// Runs `work` on some other thread. Results come back through `MainQueue::async`.
    virtual void run(std::function<void()> work) = 0;
};

} // namespace corvane
