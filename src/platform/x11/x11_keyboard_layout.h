#pragma once

#include "platform/keyboard_layout.h"

namespace corvane {

class X11Connection;

/// The layout as the X server has it now. Asked anew each time, which takes a few milliseconds: it
/// is wanted when a shortcut is recorded and at no other time. The connection must outlive it.
class X11KeyboardLayout : public KeyboardLayout {
public:
    explicit X11KeyboardLayout(X11Connection &connection);

    QString charactersOf(std::uint32_t keyCode) const override;

private:
    X11Connection &m_connection;
};

} // namespace corvane
