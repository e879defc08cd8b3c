#pragma once

#include "app/updates/update_report.h"
#include "platform/base/callback_list.h"

#include <functional>
#include <optional>
#include <utility>

namespace corvane {

/// What is wrong with updates as far as checks found that nobody asked for. The menu and the
/// preferences show it. Main thread only.
class UpdateNotices {
public:
    /// None where nothing is wrong.
    const std::optional<UpdateReport> &now() const { return m_now; }
    /// Tells the observers, if it is another one.
    void set(std::optional<UpdateReport> notice)
    {
        if (m_now == notice)
            return;
        m_now = std::move(notice);
        m_observers.notify();
    }
    /// Until the subscription ends.
    Subscription observe(std::function<void()> callback)
    {
        return m_observers.subscribe(std::move(callback));
    }

private:
    std::optional<UpdateReport> m_now;
    CallbackList<> m_observers;
};

} // namespace corvane
