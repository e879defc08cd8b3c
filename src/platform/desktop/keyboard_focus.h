#pragma once

#include "platform/desktop/keys.h"

#include <cstdint>
#include <functional>

namespace corvane {

/// A window, by the window system's number for it.
enum class WindowNumber : std::uint64_t { None = 0 };

/// Who has the keyboard as far as the window system is concerned, and which keys the user holds
/// down: what `KeyboardLoan` decides by and acts with. Everything is asked of the window system at
/// this moment, whatever events are on their way. Main thread only.
class KeyboardFocus {
public:
    /// Somebody who had the keyboard and may be given it back. The numbers mean something to the
    /// window system alone.
    struct Owner {
        WindowNumber focused = WindowNumber::None;
        /// The same as the window manager names it. Programs pass the keyboard on to windows inside
        /// their own.
        WindowNumber active = WindowNumber::None;
    };

    virtual ~KeyboardFocus() = default;

    /// The window that has the keyboard; none where nobody has it.
    virtual WindowNumber focusedWindow() const = 0;
    virtual Owner owner() const = 0;

    virtual void giveTo(WindowNumber panel) = 0;
    /// Takes the keyboard from the panel that has it even if the owner is gone. Whether somebody
    /// was asked to see to it who may do so later than others ask for the keyboard.
    virtual bool giveBackTo(const Owner &owner) = 0;
    /// Calls back each time that something asked for with `giveBackTo` has been done.
    virtual void observeAnswers(std::function<void()> callback) = 0;

    /// The toolkit does not always know a repeat's release from that of the hand.
    virtual bool isKeyDown(NativeKey key) const = 0;
    virtual bool isAnyKeyDown() const = 0;
    /// The toolkit forgets the buttons when a drag leaves a window of ours.
    virtual bool isLeftButtonDown() const = 0;
    /// Until the key is released its repeats reach nobody, whoever has the keyboard. The
    /// modifiers by the window system's bits.
    virtual void swallowRepeats(NativeKey key, std::uint32_t modifiers) = 0;
};

} // namespace corvane
