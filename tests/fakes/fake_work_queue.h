#pragma once

#include "platform/base/work_queue.h"

#include <cstddef>
#include <deque>
#include <thread>
#include <utility>

namespace corvane::test {

/// Background work that waits until a test runs it, then really runs on another thread.
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
    /// Runs what waits, and what that gives rise to.
    void runAll()
    {
        while (!m_waiting.empty())
            runOne();
    }

private:
    std::deque<std::function<void()>> m_waiting;
};

} // namespace corvane::test
