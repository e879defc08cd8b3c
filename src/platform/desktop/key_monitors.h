#pragma once

#include "platform/desktop/keyboard.h"
#include "platform/desktop/keys.h"

#include <QString>

#include <functional>

namespace corvane {

/// Sees this program's key events before anything in its windows does.
///
/// The handlers run on the main thread.
class KeyMonitors {
public:
    struct Event {
        enum class Kind {
            KeyDown,
            /// A modifier key went down or up, or another one that changes what keys do instead of
            /// being one: locks, what switches layouts or input methods or begins a composition.
            /// The key in Escape's place is told as a key, whatever it is.
            ModifiersChanged,
        };
        Kind kind = Kind::KeyDown;
        KeyPosition keyCode = KeyPosition::Unknown;
        /// Here Command is Super alone, and Control is Control.
        Modifiers modifiers;
        /// What the key types in the user's layout with no modifier held; empty when it types
        /// nothing.
        QString charactersIgnoringModifiers;
        /// By what it types, wherever the key stands.
        bool isEscape = false;
    };
    enum class Disposition {
        /// It goes its way.
        Pass,
        /// Nobody else sees it.
        Swallow,
    };
    using Handle = int;
    using Handler = std::function<Disposition(const Event &)>;

    virtual ~KeyMonitors() = default;

    virtual Handle addLocalMonitor(Handler handler) = 0;
    /// A handle that is not installed is ignored. May be called from inside a handler.
    virtual void removeMonitor(Handle handle) = 0;
};

} // namespace corvane
