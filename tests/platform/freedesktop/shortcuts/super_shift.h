#pragma once

#include "platform/desktop/stored_modifiers.h"

#include <cstdint>

namespace corvane::test {

/// The modifiers of the shelf's own combination.
inline constexpr std::uint32_t superShift = stored_modifiers::command | stored_modifiers::shift;

} // namespace corvane::test
