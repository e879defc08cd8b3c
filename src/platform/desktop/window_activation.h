#pragma once

class QWindow;

namespace corvane {

/// Brings our windows to the front and gives them the keyboard.
class WindowActivation {
public:
    virtual ~WindowActivation() = default;

    /// Brings a shown window in front of all others and gives it the keyboard, on behalf of what
    /// the user has just done, even if the user's click or key went to another program. Otherwise
    /// desktops refuse windows that push themselves forward. May happen a moment after the call.
    /// Main thread only.
    virtual void bringToFront(QWindow &window) = 0;
};

} // namespace corvane
