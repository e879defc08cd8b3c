#pragma once

#include <functional>
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

    void add(Callback callback) { m_callbacks.push_back(std::move(callback)); }

    void notify(Arguments... arguments) const
    {
        // By index, and through a copy: a callback that adds another may move the whole list.
        const auto count = m_callbacks.size();
        for (std::size_t i = 0; i < count; ++i) {
            const Callback callback = m_callbacks[i];
            callback(arguments...);
        }
    }

private:
    std::vector<Callback> m_callbacks;
};

} // namespace corvane
