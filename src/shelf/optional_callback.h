#pragma once

#include <functional>
#include <type_traits>

namespace corvane {

/// Calls a view's callback; does nothing if it is not set.
template<typename... Arguments>
void call(const std::function<void(Arguments...)> &callback,
          std::type_identity_t<Arguments>... arguments)
{
    if (callback)
        callback(arguments...);
}

} // namespace corvane
