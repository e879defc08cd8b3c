#pragma once

#include "platform/desktop/keys.h"

#include <optional>

/// Converts between virtual key codes, by which shortcuts are stored, and the window system's key
/// numbers.
namespace corvane::virtual_key_codes {

/// `KeyPosition::Unknown` for a key that has no virtual code.
KeyPosition fromNative(NativeKey key);
std::optional<NativeKey> toNative(KeyPosition position);

/// The key that types the letter; `TypedKey::Unknown` for anything but 'A' to 'Z'.
TypedKey forLatinLetter(char32_t letter);

} // namespace corvane::virtual_key_codes
