#pragma once

#include <chrono>
#include <deque>
#include <optional>

namespace corvane {

/// Remembers when decoders died, and for how long no new one is to be started after several deaths:
/// each start costs, and something may be wrong with all of them.
class DeathRecord {
public:
    using Clock = std::chrono::steady_clock;

    static constexpr std::size_t tooMany = 3;
    static constexpr std::chrono::seconds span{60};
    static constexpr std::chrono::milliseconds pause{1'000};

    void died(Clock::time_point when)
    {
        m_deaths.push_back(when);
        if (m_deaths.size() > tooMany)
            m_deaths.pop_front();
    }
    /// Until when no decoder is to be started.
    std::optional<Clock::time_point> pausedUntil() const
    {
        if (m_deaths.size() < tooMany || m_deaths.back() - m_deaths.front() > span)
            return std::nullopt;
        return m_deaths.back() + pause;
    }

private:
    /// The last of them, in order.
    std::deque<Clock::time_point> m_deaths;
};

} // namespace corvane
