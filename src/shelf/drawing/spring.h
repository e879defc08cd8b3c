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

    /// What `seconds` make of any start, as a sum of what they make of its two parts.
    struct Course {
        /// Where a start at distance 1 and rest gets to, and one at distance 0 with velocity 1.
        State ofDistance;
        State ofVelocity;

        State from(State start) const
        {
            return {start.distance * ofDistance.distance + start.velocity * ofVelocity.distance,
                    start.distance * ofDistance.velocity + start.velocity * ofVelocity.velocity};
        }
    };

    /// The solution of mass x'' + damping x' + stiffness x = 0, for every damping. Many values that
    /// move together share it.
    Course after(double seconds) const;
    /// Where a spring that starts in `from` is `seconds` later.
    State after(double seconds, State from) const { return after(seconds).from(from); }

    /// The first time after which a spring let go at distance 1 stays settled. Costs nothing when
    /// the same spring is asked again on the same thread.
    double settlingDuration() const;
    /// How far it goes beyond its target when it is let go at distance 1; 0 where it does not.
    double overshoot() const;

    friend bool operator==(const Spring &, const Spring &) = default;

private:
    double findSettlingDuration() const;
};

} // namespace corvane
