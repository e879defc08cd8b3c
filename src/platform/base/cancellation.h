#pragma once

#include <functional>
#include <mutex>
#include <utility>

namespace corvane {

/// Tells work on another thread that its result is not wanted any more. Any thread.
class Cancellation {
public:
    /// While this exists, `cancel` calls `handler` on the thread that cancels. If it was cancelled
    /// before, the constructor calls it. After destruction the handler does not run any more, and
    /// none is still running. At most one handler at a time.
    class Handler {
    public:
        Handler(Cancellation &cancellation, std::function<void()> handler)
            : m_cancellation(cancellation)
        {
            const std::lock_guard lock(m_cancellation.m_mutex);
            if (m_cancellation.m_isCancelled)
                handler();
            else
                m_cancellation.m_handler = std::move(handler);
        }
        Handler(const Handler &) = delete;
        Handler &operator=(const Handler &) = delete;
        ~Handler()
        {
            const std::lock_guard lock(m_cancellation.m_mutex);
            m_cancellation.m_handler = nullptr;
        }

    private:
        Cancellation &m_cancellation;
    };

    void cancel()
    {
        const std::lock_guard lock(m_mutex);
        if (!std::exchange(m_isCancelled, true) && m_handler)
            m_handler();
    }
    bool isCancelled() const
    {
        const std::lock_guard lock(m_mutex);
        return m_isCancelled;
    }

private:
    mutable std::mutex m_mutex;
    bool m_isCancelled = false;
    std::function<void()> m_handler;
};

} // namespace corvane
