#pragma once

#include <QString>

#include <cstdint>

namespace corvane {

/// The layout that the user types in.
class KeyboardLayout {
public:
    virtual ~KeyboardLayout() = default;

    /// What a key types with no modifier held, and a dead key the accent that it puts on others;
    /// empty when it types nothing.
    virtual QString charactersOf(std::uint32_t keyCode) const = 0;
    /// Whether a key that has this symbol of the window system changes what keys do instead of
    /// being one itself.
    virtual bool changesKeys(std::uint32_t symbol) const = 0;
};

} // namespace corvane
