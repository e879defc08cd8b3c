#pragma once

#include "platform/base/changing_list.h"
#include "platform/base/subscription.h"

#include <functional>
#include <utility>

namespace corvane {

/// Callbacks that hear of something.
///
/// `notify` calls them on the caller's thread, at once, in the order in which they were added. What
/// a callback may do to the list meanwhile is said in `ChangingList`.
template<typename... Arguments>
class CallbackList {
public:
    using Callback = std::function<void(Arguments...)>;

    /// For good: it does nothing by itself once its owner is gone.
    void add(Callback callback) { m_callbacks.add(std::move(callback)); }
    /// Until the subscription ends, which may outlive the list.
    Subscription subscribe(Callback callback) { return m_callbacks.subscribe(std::move(callback)); }

    void notify(Arguments... arguments) const
    {
        m_callbacks.forEach([&](const Callback &callback) { callback(arguments...); });
    }

private:
    ChangingList<Callback> m_callbacks;
};

} // namespace corvane
