#pragma once

#include "platform/desktop/keyboard_layout.h"

namespace corvane {

/// The layout as the X server has it now. Asked anew each time, which takes a few milliseconds: it
/// is wanted when a shortcut is recorded and at no other time.
///
/// It asks on Qt's connection, which uses the server's keyboard extension anyway: under that
/// changes of the modifiers are told otherwise, and the hot keys hear of them on a connection of
/// their own.
class X11KeyboardLayout : public KeyboardLayout {
public:
    QString charactersOf(KeyPosition position) const override;
    bool changesKeys(KeySymbol symbol) const override;
};

} // namespace corvane
