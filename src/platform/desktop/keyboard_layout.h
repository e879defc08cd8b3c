#pragma once

#include "platform/desktop/keys.h"

#include <QString>

namespace corvane {

/// The layout that the user types in.
class KeyboardLayout {
public:
    virtual ~KeyboardLayout() = default;

    /// What a key types with no modifier held, and a dead key the accent that it puts on others;
    /// empty when it types nothing.
    virtual QString charactersOf(KeyPosition position) const = 0;
    /// Whether a key that has this symbol changes what keys do instead of being one itself.
    virtual bool changesKeys(KeySymbol symbol) const = 0;
};

} // namespace corvane
