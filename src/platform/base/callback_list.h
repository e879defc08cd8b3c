#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace corvane {

/// A list of callbacks that only grows.
///
/// `notify` calls them on the caller's thread, at once, in the order in which they were added. A
/// callback added during a notification is first called by the next one. A callback may notify
/// again: the inner notification then reaches everybody before the outer one goes on.
template<typename... Arguments>
class CallbackList {
public:
    using Callback = std::function<void(Arguments...)>;

    void add(Callback callback)
    {
        m_callbacks.push_back(std::make_shared<const Callback>(std::move(callback)));
    }

    void notify(Arguments... arguments) const
    {
        // By index, and held: a callback that adds another may move the whole list. Shared, because
        // a copy of what a callback has captured costs more than most calls do.
        const auto count = m_callbacks.size();
        for (std::size_t i = 0; i < count; ++i) {
            const std::shared_ptr<const Callback> callback = m_callbacks[i];
            (*callback)(arguments...);
        }
    }

private:
    std::vector<std::shared_ptr<const Callback>> m_callbacks;
};

} // namespace corvane
