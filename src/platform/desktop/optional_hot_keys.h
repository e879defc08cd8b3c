#pragma once

#include "platform/desktop/abilities.h"
#include "platform/desktop/hot_key_service.h"

#include <functional>

namespace corvane {

/// Hot keys by a service that a desktop may have or not, and that may come and go.
class OptionalHotKeys : public HotKeyService {
public:
    enum class Presence {
        /// Nobody has answered yet.
        Unknown,
        There,
        /// What is registered with it now reaches nobody.
        Absent,
    };

    virtual Presence presence() const = 0;
    /// Called after it has changed, until the subscription ends.
    virtual Subscription observePresence(std::function<void()> observer) = 0;
    /// Where the user chooses the keys that this service binds.
    virtual ShortcutChoice choice() const = 0;
};

} // namespace corvane
