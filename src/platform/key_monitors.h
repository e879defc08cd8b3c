#pragma once

#include "platform/keyboard.h"

#include <QString>

#include <cstdint>
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
            /// A modifier key went down or up.
            ModifiersChanged,
        };
        Kind kind = Kind::KeyDown;
        /// By the key's position.
        std::uint32_t keyCode = key_code::unknown;
        /// Here Command is Super alone, and Control is Control.
        Modifiers modifiers;
        /// What the key types in the user's layout with no modifier held; empty when it types
        /// nothing.
        QString charactersIgnoringModifiers;
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
