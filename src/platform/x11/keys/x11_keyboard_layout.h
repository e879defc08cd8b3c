#pragma once

#include "platform/desktop/key_name.h"
#include "platform/desktop/keyboard_layout.h"

namespace corvane {

/// The X server's present keyboard layout. It is asked for at each call, which takes a few
/// milliseconds; only recording a shortcut needs it.
///
/// It uses Qt's connection, which uses the XKB extension anyway. A connection that uses XKB gets
/// other events when modifiers change; ours does not use it, because the hot keys wait for the core
/// events.
class X11KeyboardLayout : public KeyboardLayout {
public:
    QString charactersOf(KeyPosition position) const override;
    /// What the key is called in the layout, alone or with Shift.
    KeyName nameOf(KeyPosition position, bool isShifted) const;
    bool changesKeys(KeySymbol symbol) const override;
};

} // namespace corvane
