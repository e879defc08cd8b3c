#pragma once

#include "platform/desktop/keys.h"

#include <QString>

namespace corvane {

/// The user's present keyboard layout.
class KeyboardLayout {
public:
    virtual ~KeyboardLayout() = default;

    /// What a key types with no modifier held; for a dead key the accent that it puts on other
    /// letters; empty when it types nothing.
    virtual QString charactersOf(KeyPosition position) const = 0;
    /// Whether a key with this symbol changes what other keys do (a modifier, a lock, a layout
    /// switch) instead of typing something.
    virtual bool changesKeys(KeySymbol symbol) const = 0;
};

} // namespace corvane
