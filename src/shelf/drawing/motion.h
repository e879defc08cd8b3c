#pragma once

#include "shelf/drawing/spring.h"
#include "shelf/drawing/timing_curve.h"

#include <variant>
#include <vector>

namespace corvane {

/// Follows a spring from the present value, until the spring has settled.
struct SpringMotion {
    Spring spring;

    friend bool operator==(const SpringMotion &, const SpringMotion &) = default;
};

/// Follows a timing curve for `duration` seconds.
struct CurveMotion {
    double duration = 0;
    TimingCurve curve;

    friend bool operator==(const CurveMotion &, const CurveMotion &) = default;
};

/// How a changed value gets to its new place.
using Motion = std::variant<SpringMotion, CurveMotion>;

/// A value that is moving: any number of components, moved together.
///
/// To give it a new target, make another one from its present value and velocity; the motion then
/// goes on without a jump.
class MovingValue {
public:
    using Components = std::vector<double>;

    /// From `from`, where it moves with `velocity` (per second), to `target`, starting at `time`.
    MovingValue(Motion motion, Components from, Components velocity, Components target,
                double time);

    Components valueAt(double time) const;
    Components velocityAt(double time) const;
    bool isOverAt(double time) const;

private:
    template<typename Use>
    void sample(double time, Use use) const;

    Motion m_motion;
    Components m_from;
    Components m_velocity;
    Components m_target;
    double m_start;
    double m_duration = 0;
};

} // namespace corvane
