#pragma once

class QWindow;

namespace corvane {

/// Brings a window of ours forward, or has it written to.
class WindowActivation {
public:
    virtual ~WindowActivation() = default;

    /// Puts a window that is shown in front of all others and gives it the keyboard, as the answer
    /// to what the user did just now: the desktop takes it for that and not for a window that
    /// pushes itself forward, also where the user's click or key went to another program. May
    /// happen a moment after the call. Main thread only.
    virtual void bringToFront(QWindow &window) = 0;
    /// Gives the keyboard to a shown window that the window manager does not know, at once. Main
    /// thread only.
    virtual void giveKeyboard(QWindow &window) = 0;
};

} // namespace corvane
