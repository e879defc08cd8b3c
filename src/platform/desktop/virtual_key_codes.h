#pragma once

#include <cstdint>
#include <optional>

/// Between virtual key codes, which shortcuts are stored as, and the kernel's key codes (evdev).
/// Both name a key by its position, whatever the layout makes of it. X11 counts 8 higher than
/// evdev.
namespace corvane::virtual_key_codes {

constexpr std::uint32_t x11Offset = 8;

/// `key_code::unknown` for a key that has no virtual code.
std::uint32_t fromEvdev(std::uint32_t evdevCode);
std::optional<std::uint32_t> toEvdev(std::uint32_t virtualKeyCode);

/// The code of the key that carries the letter on an ANSI keyboard; `key_code::unknown` for
/// anything but 'A' to 'Z'.
std::uint32_t forLatinLetter(char32_t letter);

} // namespace corvane::virtual_key_codes
