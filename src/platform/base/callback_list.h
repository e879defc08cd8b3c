#pragma once

#include "platform/base/changing_list.h"
#include "platform/base/subscription.h"

#include <functional>
#include <utility>

namespace corvane {

/// A list of callbacks.
///
/// `notify` calls them at once, on the caller's thread, in the order in which they were added.
/// `ChangingList` says what a callback may do to the list meanwhile.
template<typename... Arguments>
class CallbackList {
public:
    using Callback = std::function<void(Arguments...)>;

    /// Added for good. The callback must be guarded if it may outlive what it uses.
    void add(Callback callback) { m_callbacks.add(std::move(callback)); }
    /// Added until the subscription ends; it may outlive the list.
    Subscription subscribe(Callback callback) { return m_callbacks.subscribe(std::move(callback)); }

    void notify(Arguments... arguments) const
    {
        m_callbacks.forEach([&](const Callback &callback) { callback(arguments...); });
    }

private:
    ChangingList<Callback> m_callbacks;
};

} // namespace corvane
