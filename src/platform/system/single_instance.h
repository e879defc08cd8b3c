#pragma once

#include <QtGlobal>

#include <functional>
#include <optional>

namespace corvane {

/// Ensures that only one process of this program runs in a session.
class SingleInstance {
public:
    enum class Outcome {
        /// No other process runs.
        First,
        /// Another one runs and has been asked for what this one was started for.
        HandedOver,
        /// Another one runs, but did not answer within the time limit, and will not act on the
        /// request later.
        NotAnswering,
        /// Another one runs, but does not do what it was asked for.
        Refused,
        /// The session has no means to find out; this process runs without the check.
        Unknown,
    };

    virtual ~SingleInstance() = default;

    /// Becomes the one process, or asks the one that runs to show itself. Afterwards `onReopen` is
    /// called on the main thread for each later process that hands over to this one.
    virtual Outcome acquire(std::function<void()> onReopen) = 0;
    /// The process id of the other one, to be shown to a user who wants to end it; none where it is
    /// not known.
    virtual std::optional<qint64> otherProcess() const = 0;
};

} // namespace corvane
