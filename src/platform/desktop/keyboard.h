#pragma once

#include <QFlags>

#include <cstdint>

namespace corvane {

/// Modifier keys by the part they play. Inside our own windows Command is Control or Super, since
/// Linux users copy with Control; Option is Alt.
enum class Modifier : unsigned {
    Shift = 1,
    Control = 2,
    Option = 4,
    Command = 8,
};
Q_DECLARE_FLAGS(Modifiers, Modifier)
Q_DECLARE_OPERATORS_FOR_FLAGS(Modifiers)

/// Virtual key codes: they name a key by its position on an ANSI keyboard.
namespace key_code {
constexpr std::uint32_t a = 0;
constexpr std::uint32_t c = 8;
constexpr std::uint32_t space = 49;
constexpr std::uint32_t deleteBackward = 51;
constexpr std::uint32_t escape = 53;
constexpr std::uint32_t deleteForward = 117;
constexpr std::uint32_t leftArrow = 123;
constexpr std::uint32_t rightArrow = 124;
constexpr std::uint32_t downArrow = 125;
/// A key that has no code.
constexpr std::uint32_t unknown = 0xffff;
} // namespace key_code

/// The keyboard's state apart from any event.
class Keyboard {
public:
    virtual ~Keyboard() = default;

    virtual Modifiers currentModifiers() const = 0;
};

} // namespace corvane
