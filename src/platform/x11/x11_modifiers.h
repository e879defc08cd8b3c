#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace corvane {

/// Which modifier bit each modifier key sets in the user's keyboard mapping; 0 where no key does.
struct X11Modifiers {
    std::uint16_t super = 0;
    std::uint16_t alt = 0;
    std::uint16_t numLock = 0;
    std::uint16_t scrollLock = 0;

    /// Asks the server. All zero if it does not answer.
    static X11Modifiers read(xcb_connection_t *connection);

    /// The mask that stands for modifier bits as shortcuts store them. None for bits that have no
    /// meaning, and for a modifier that no key sets.
    std::optional<std::uint16_t> maskFor(std::uint32_t modifiers) const;
    /// Every set of locked keys under which a combination has to work: the empty one first.
    std::vector<std::uint16_t> lockVariants() const;
    /// What of an event's state tells combinations apart.
    std::uint16_t significant() const;

    friend bool operator==(const X11Modifiers &, const X11Modifiers &) = default;
};

} // namespace corvane
