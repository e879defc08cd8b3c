#pragma once

#include "platform/base/subscription.h"
#include "platform/desktop/keyboard.h"
#include "platform/desktop/keys.h"

#include <QString>

#include <functional>

namespace corvane {

/// Sees this program's key events before its windows do. Handlers run on the main thread.
class KeyMonitors {
public:
    struct Event {
        enum class Kind {
            KeyDown,
            /// A modifier key went down or up, or another key that changes what keys do: locks, and
            /// keys that switch layouts or input methods or begin a composition. The key in
            /// Escape's position is always reported as a key.
            ModifiersChanged,
        };
        Kind kind = Kind::KeyDown;
        KeyPosition keyCode = KeyPosition::Unknown;
        /// Here Command is Super alone, and Control is Control.
        Modifiers modifiers;
        /// What the key types in the user's layout with no modifier held; empty when it types
        /// nothing.
        QString charactersIgnoringModifiers;
        /// Whether the key is Escape by what it types, wherever it is on the keyboard.
        bool isEscape = false;
    };
    enum class Disposition {
        /// The event goes on to its window.
        Pass,
        /// The event goes no further.
        Swallow,
    };
    using Handler = std::function<Disposition(const Event &)>;

    virtual ~KeyMonitors() = default;

    /// The handler is called until the subscription ends, which may happen inside of it.
    virtual Subscription addLocalMonitor(Handler handler) = 0;
};

} // namespace corvane
