#pragma once

#include "platform/desktop/keys.h"

#include <cstdint>
#include <functional>

namespace corvane {

/// A window, by the window system's number for it.
enum class WindowNumber : std::uint64_t { None = 0 };

/// Which window has the keyboard, and which keys are held down; `KeyboardLoan` uses it. Each call
/// asks the window system for its present state, without regard to events that are on their way.
/// Main thread only.
class KeyboardFocus {
public:
    /// A window that had the keyboard and may get it back. The numbers have a meaning for the
    /// window system only.
    struct Owner {
        WindowNumber focused = WindowNumber::None;
        /// The same, as the window manager names it: programs pass the focus on to windows inside
        /// their own.
        WindowNumber active = WindowNumber::None;
    };

    virtual ~KeyboardFocus() = default;

    /// The window that has the keyboard; `None` when no window has it.
    virtual WindowNumber focusedWindow() const = 0;
    virtual Owner owner() const = 0;

    virtual void giveTo(WindowNumber panel) = 0;
    /// Gives the keyboard to the owner; the panel loses it even if the owner is gone. True if a
    /// window manager was asked to do that; it may do it after other requests for the keyboard.
    virtual bool giveBackTo(const Owner &owner) = 0;
    /// Asks the window manager to answer when it has reacted to everything that has happened so
    /// far. False if no window manager runs.
    virtual bool askForAnswer() = 0;
    /// Calls back each time the window manager has done what `giveBackTo` asked for, and each time
    /// it has answered `askForAnswer`; in the order in which it was asked.
    virtual void observeAnswers(std::function<void()> callback) = 0;

    /// Qt cannot always tell a repeat's release from the user's.
    virtual bool isKeyDown(NativeKey key) const = 0;
    virtual bool isAnyKeyDown() const = 0;
    /// Qt loses track of the buttons when a drag leaves our windows.
    virtual bool isLeftButtonDown() const = 0;
    /// Until the key is released its repeats reach no program. The modifiers are the window
    /// system's bits.
    virtual void swallowRepeats(NativeKey key, std::uint32_t modifiers) = 0;
};

} // namespace corvane
