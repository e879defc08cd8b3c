#pragma once

#include "platform/base/main_queue.h"

#include <cstdint>
#include <map>
#include <mutex>
#include <utility>
#include <vector>

namespace corvane::test {

/// A main queue whose time a test advances. `advance` runs due work in the order of its times (then
/// of its scheduling), with `now` at each of these times.
class TestClock : public MainQueue {
public:
    void async(Work work) override
    {
        const std::lock_guard lock(m_mutex);
        m_due.emplace(Key{m_now, m_order++}, std::move(work));
    }
    void asyncAfter(double seconds, Work work) override
    {
        const std::lock_guard lock(m_mutex);
        m_due.emplace(Key{m_now + seconds, m_order++}, std::move(work));
    }
    std::unique_ptr<Timer> repeating(double seconds, Work work) override
    {
        auto timer = std::make_unique<RepeatingTimer>();
        schedule(seconds, std::move(work), timer->alive);
        return timer;
    }
    double now() const override { return m_now; }

    /// Runs the work that is due now, and work due now that this adds.
    void runPending() { advance(0); }

    void advance(double seconds)
    {
        const double target = m_now + seconds;
        while (true) {
            Work work;
            {
                const std::lock_guard lock(m_mutex);
                // The sum of many periods may miss the target by a rounding error.
                if (m_due.empty() || m_due.begin()->first.first > target + 1e-9)
                    break;
                m_now = std::max(m_now, m_due.begin()->first.first);
                work = std::move(m_due.begin()->second);
                m_due.erase(m_due.begin());
            }
            work();
        }
        m_now = target;
    }

    /// The number of pieces of waiting work, repeating timers included.
    std::size_t pendingCount() const { return m_due.size(); }

private:
    /// The time when it is due, and how many were scheduled before it.
    using Key = std::pair<double, std::uint64_t>;
    struct RepeatingTimer : Timer {
        std::shared_ptr<bool> alive = std::make_shared<bool>(true);
        ~RepeatingTimer() override { *alive = false; }
    };

    void schedule(double seconds, Work work, std::shared_ptr<bool> alive)
    {
        asyncAfter(seconds, [this, seconds, work = std::move(work), alive = std::move(alive)] {
            if (!*alive)
                return;
            schedule(seconds, work, alive);
            work();
        });
    }

    std::mutex m_mutex;
    std::map<Key, Work> m_due;
    std::uint64_t m_order = 0;
    double m_now = 0;
};

} // namespace corvane::test
