#pragma once

#include <functional>
#include <type_traits>

namespace corvane {

/// A view's callback that nobody set is skipped.
template<typename... Arguments>
void call(const std::function<void(Arguments...)> &callback,
          std::type_identity_t<Arguments>... arguments)
{
    if (callback)
        callback(arguments...);
}

} // namespace corvane
