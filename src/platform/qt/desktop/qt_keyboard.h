#pragma once

#include "platform/desktop/keyboard.h"

#include <QtCore/qnamespace.h>

namespace corvane {

/// For keys of our windows: Control is both Control and Command, Super is Command, Alt is Option.
Modifiers modifiersFrom(Qt::KeyboardModifiers modifiers);

/// The modifier keys that are held now, asked of the window system, whichever program has the
/// keyboard.
class QtKeyboard : public Keyboard {
public:
    Modifiers currentModifiers() const override;
};

/// Those that were held at the last event of a window of ours: all that is known where the desktop
/// keeps to itself which keys are held while another program has the keyboard. A drag gives it to
/// whatever it comes to.
class QtLastModifiers : public Keyboard {
public:
    Modifiers currentModifiers() const override;
};

} // namespace corvane
