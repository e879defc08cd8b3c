#pragma once

#include <cstdint>

/// The ways to name a key, as different types, so that one cannot be used for another. The text
/// that a key types is a `QString`.
namespace corvane {

/// A key by its position on the keyboard, whatever the layout makes of it: the virtual key code of
/// the key in that position of an ANSI keyboard. Shortcuts are stored and registered by it.
enum class KeyPosition : std::uint32_t {
    A = 0,
    D = 2,
    Return = 36,
    Tab = 48,
    Space = 49,
    DeleteBackward = 51,
    Escape = 53,
    KeypadEnter = 76,
    F5 = 96,
    F6 = 97,
    F7 = 98,
    F3 = 99,
    F8 = 100,
    F9 = 101,
    F11 = 103,
    F10 = 109,
    F12 = 111,
    Home = 115,
    PageUp = 116,
    DeleteForward = 117,
    F4 = 118,
    End = 119,
    F2 = 120,
    PageDown = 121,
    F1 = 122,
    LeftArrow = 123,
    RightArrow = 124,
    DownArrow = 125,
    UpArrow = 126,
    /// A key that has no code.
    Unknown = 0xffff,
};

/// A key by what it types or is called in the user's layout, in whatever position: the virtual key
/// code of the key that types the same on an ANSI keyboard. Panels get keys by it.
enum class TypedKey : std::uint32_t {
    A = 0,
    C = 8,
    V = 9,
    Return = 36,
    Tab = 48,
    Space = 49,
    DeleteBackward = 51,
    Escape = 53,
    KeypadEnter = 76,
    Insert = 114,
    Home = 115,
    PageUp = 116,
    DeleteForward = 117,
    End = 119,
    PageDown = 121,
    LeftArrow = 123,
    RightArrow = 124,
    DownArrow = 125,
    UpArrow = 126,
    /// A key that has no code.
    Unknown = 0xffff,
};

/// What the key in a position types on an ANSI keyboard.
constexpr TypedKey typedOnAnsiKeyboard(KeyPosition position)
{
    return static_cast<TypedKey>(position);
}

/// A key by its position, as the window system numbers it and Qt passes it on as native scan code:
/// the kernel's code (evdev) plus 8.
enum class NativeKey : std::uint32_t {
    None = 0,
};

/// What a key types or does, as the window system names it and Qt passes it on as the native
/// virtual key: one of xkbcommon's key symbols.
enum class KeySymbol : std::uint32_t {};

} // namespace corvane
