#pragma once

#include <concepts>

namespace corvane {

/// Ends the process with `message` on standard error. For states that no caller could handle.
[[noreturn]] void fatal(const char *message);

/// The sum; ends the process where it does not fit, because a counter that wrapped would make stale
/// work look current.
template<std::integral Number>
Number checkedAdd(Number left, Number right)
{
    Number sum{};
    if (__builtin_add_overflow(left, right, &sum))
        fatal("corvane: a counter or an index overflowed");
    return sum;
}

} // namespace corvane
