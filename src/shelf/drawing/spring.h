#pragma once

namespace corvane {

/// A damped spring that pulls a value to its target. Mass, stiffness and damping as in mass x'' +
/// damping x' + stiffness x = 0, with seconds as the unit of time.
struct Spring {
    double mass = 1;
    double stiffness = 1;
    double damping = 0;

    /// A spring counts as settled within this distance of its target, for a way of length 1.
    static constexpr double settledDistance = 0.001;

    struct State {
        /// Distance from the target, and its change per second.
        double distance = 0;
        double velocity = 0;
    };

    /// The motion after some seconds. It is linear in the start, so it is kept for the two basic
    /// starts.
    struct Course {
        /// From distance 1 at rest, and from distance 0 with velocity 1.
        State ofDistance;
        State ofVelocity;

        State from(State start) const
        {
            return {start.distance * ofDistance.distance + start.velocity * ofVelocity.distance,
                    start.distance * ofDistance.velocity + start.velocity * ofVelocity.velocity};
        }
    };

    /// Solves the equation for any damping. Values that move together share the result.
    Course after(double seconds) const;
    /// The state `seconds` after `from`.
    State after(double seconds, State from) const { return after(seconds).from(from); }

    /// In seconds: from then on a spring that starts at distance 1 at rest stays settled. The last
    /// answer of each thread is kept.
    double settlingDuration() const;
    /// How far a spring that starts at distance 1 at rest goes beyond its target; 0 where it does
    /// not.
    double overshoot() const;

    friend bool operator==(const Spring &, const Spring &) = default;

private:
    double findSettlingDuration() const;
};

} // namespace corvane
