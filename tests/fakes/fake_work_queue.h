#pragma once

#include "platform/base/work_queue.h"

#include <cstddef>
#include <deque>
#include <thread>
#include <utility>

namespace corvane::test {

/// Work that waits until a test runs it, on another thread.
class FakeWorkQueue : public WorkQueue {
public:
    void run(std::function<void()> work) override { m_waiting.push_back(std::move(work)); }

    std::size_t pendingCount() const { return m_waiting.size(); }

    /// Runs the oldest piece of work and waits for it.
    void runOne()
    {
        const std::function<void()> work = std::move(m_waiting.front());
        m_waiting.pop_front();
        std::thread(work).join();
    }
    /// Runs all waiting work, and the work that this adds.
    void runAll()
    {
        while (!m_waiting.empty())
            runOne();
    }

private:
    std::deque<std::function<void()>> m_waiting;
};

} // namespace corvane::test
