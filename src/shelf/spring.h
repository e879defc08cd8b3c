#pragma once

namespace corvane {

/// A damped spring that pulls a value to its target.
struct Spring {
    double mass = 1;
    double stiffness = 1;
    double damping = 0;

    /// How near to its target a spring counts as settled, for a way of length 1.
    static constexpr double settledDistance = 0.001;

    struct State {
        /// Distance from the target, and its change per second.
        double distance = 0;
        double velocity = 0;
    };

    /// Where a spring that starts in `from` is `seconds` later: the solution of
    /// mass x'' + damping x' + stiffness x = 0, for every damping.
    State after(double seconds, State from) const;

    /// The first time after which a spring let go at distance 1 stays settled.
    double settlingDuration() const;

    friend bool operator==(const Spring &, const Spring &) = default;
};

} // namespace corvane
