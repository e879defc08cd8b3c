#pragma once

#include <cstdint>

/// Modifier bits as shortcuts store them; the same as in `Shortcut`, which back ends may not
/// include.
namespace corvane::stored_modifiers {

inline constexpr std::uint32_t command = 256;
inline constexpr std::uint32_t shift = 512;
inline constexpr std::uint32_t option = 2048;
inline constexpr std::uint32_t control = 4096;

/// Without one of these a key types a character.
inline constexpr std::uint32_t moreThanTyping = command | option | control;
inline constexpr std::uint32_t all = moreThanTyping | shift;

} // namespace corvane::stored_modifiers
