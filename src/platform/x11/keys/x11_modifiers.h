#pragma once

#include <bitset>
#include <cstdint>
#include <optional>
#include <vector>

namespace corvane {

class X11Connection;

/// Which modifier bit each modifier key sets in the user's keyboard mapping; 0 where no key does.
struct X11Modifiers {
    std::uint16_t super = 0;
    std::uint16_t alt = 0;
    std::uint16_t numLock = 0;
    std::uint16_t scrollLock = 0;
    /// The keys that set a bit, by their key codes.
    std::bitset<256> keys = {};

    /// Asks the server; none if it does not answer.
    static std::optional<X11Modifiers> read(X11Connection &connection);

    /// Whether modifier bits as shortcuts store them contain Command, Option or Control: without
    /// them a key types a character.
    static bool areMoreThanTyping(std::uint32_t modifiers);
    /// The mask that stands for such bits. None for bits that have no meaning, and for a modifier
    /// that no key sets.
    std::optional<std::uint16_t> maskFor(std::uint32_t modifiers) const;
    /// All combinations of lock modifiers (Caps, Num, Scroll) under which a hot key has to work;
    /// the empty one comes first.
    std::vector<std::uint16_t> lockVariants() const;
    /// The bits of an event's state that distinguish combinations.
    std::uint16_t significant() const;

    friend bool operator==(const X11Modifiers &, const X11Modifiers &) = default;
};

} // namespace corvane
