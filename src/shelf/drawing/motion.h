#pragma once

#include "shelf/drawing/spring.h"
#include "shelf/drawing/timing_curve.h"

#include <variant>
#include <vector>

namespace corvane {

/// Springs from where the value is, for as long as the spring takes to settle.
struct SpringMotion {
    Spring spring;

    friend bool operator==(const SpringMotion &, const SpringMotion &) = default;
};

/// Follows a timing curve for a fixed time.
struct CurveMotion {
    double duration = 0;
    TimingCurve curve;

    friend bool operator==(const CurveMotion &, const CurveMotion &) = default;
};

/// How a changed value gets to its new place.
using Motion = std::variant<SpringMotion, CurveMotion>;

/// One value on its way: any number of components, moved together.
///
/// A motion may be given a new target at any moment: position and velocity go on without a jump.
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
