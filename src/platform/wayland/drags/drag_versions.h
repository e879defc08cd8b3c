#pragma once

#include <cstdint>

/// The first versions of what drags take that tell everything; more of the pointer is not asked
/// for.
namespace corvane::drag_versions {

inline constexpr std::uint32_t manager = 3;
inline constexpr std::uint32_t seat = 3;
inline constexpr std::uint32_t compositor = 4;

} // namespace corvane::drag_versions
