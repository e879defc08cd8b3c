#pragma once

#include <QtGlobal>

#include <functional>
#include <optional>

namespace corvane {

/// One process of this program in a session.
class SingleInstance {
public:
    enum class Outcome {
        /// This process is the one.
        First,
        /// Another one runs and has been asked to show itself.
        HandedOver,
        /// Another one runs, but did not answer within the time limit; it has been asked nothing
        /// that it would do later.
        NotAnswering,
        /// The session has nothing to tell by; this process goes on alone.
        Unknown,
    };

    virtual ~SingleInstance() = default;

    /// Calls `onReopen` on the main thread whenever a later process hands over to this one.
    virtual Outcome acquire(std::function<void()> onReopen) = 0;
    /// The process that runs already, for people who want to end it; none where that cannot be
    /// told.
    virtual std::optional<qint64> otherProcess() const = 0;
};

} // namespace corvane
