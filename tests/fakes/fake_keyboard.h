#pragma once

#include "platform/desktop/keyboard.h"

namespace corvane::test {

/// A keyboard whose modifiers a test holds down.
class FakeKeyboard : public Keyboard {
public:
    Modifiers currentModifiers() const override { return modifiers; }

    Modifiers modifiers;
};

} // namespace corvane::test
