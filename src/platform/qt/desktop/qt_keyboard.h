#pragma once

#include "platform/desktop/keyboard.h"

#include <QtCore/qnamespace.h>

namespace corvane {

/// Control is both Control and Command, Super is Command, Alt is Option.
Modifiers modifiersFrom(Qt::KeyboardModifiers modifiers);

/// The modifier keys as the window system has them now, whoever has the keyboard.
class QtKeyboard : public Keyboard {
public:
    Modifiers currentModifiers() const override;
};

} // namespace corvane
