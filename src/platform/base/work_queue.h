#pragma once

#include <functional>

namespace corvane {

/// Runs work on other threads, for what takes longer than a frame.
class WorkQueue {
public:
    virtual ~WorkQueue() = default;

    /// Runs `work` once, later, on another thread. Results come back through `MainQueue::async`.
    virtual void run(std::function<void()> work) = 0;
};

} // namespace corvane
