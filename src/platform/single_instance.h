#pragma once

#include <functional>

namespace corvane {

/// One process of this program in a session.
class SingleInstance {
public:
    enum class Outcome {
        /// This process is the one.
        First,
        /// Another one runs and has been asked to show itself.
        HandedOver,
        /// The session has nothing to tell by; this process goes on alone.
        Unknown,
    };

    virtual ~SingleInstance() = default;

    /// Calls `onReopen` on the main thread whenever a later process hands over to this one.
    virtual Outcome acquire(std::function<void()> onReopen) = 0;
};

} // namespace corvane
