#include "shelf/motion.h"

#include <algorithm>
#include <cmath>

namespace corvane {

namespace {

// A spring comes to rest never quite; it is over when every component stays within this many points
// of its target, however long the way was.
constexpr double invisibleDistance = 0.02;

double springDuration(const Spring &spring, const MovingValue::Components &from,
                      const MovingValue::Components &velocity,
                      const MovingValue::Components &target)
{
    const double frequency = std::sqrt(spring.stiffness / spring.mass);
    const double decay = spring.damping / (2 * spring.mass);
    double amplitude = 1;
    for (std::size_t i = 0; i < from.size(); ++i) {
        amplitude = std::max(
            amplitude, 2 * (std::abs(from[i] - target[i]) + std::abs(velocity[i]) / frequency));
    }
    return std::log(amplitude / invisibleDistance) / decay;
}

} // namespace

MovingValue::MovingValue(Motion motion, Components from, Components velocity, Components target,
                         double time)
    : m_motion(motion)
    , m_from(std::move(from))
    , m_velocity(std::move(velocity))
    , m_target(std::move(target))
    , m_start(time)
{
    if (const auto *curve = std::get_if<CurveMotion>(&m_motion))
        m_duration = curve->duration;
    else
        m_duration
            = springDuration(std::get<SpringMotion>(m_motion).spring, m_from, m_velocity, m_target);
}

MovingValue::Sample MovingValue::sample(std::size_t component, double time) const
{
    const double from = m_from[component];
    const double target = m_target[component];
    const double elapsed = std::max(0.0, time - m_start);
    if (elapsed >= m_duration)
        return {target, 0};

    if (const auto *motion = std::get_if<SpringMotion>(&m_motion)) {
        const auto state = motion->spring.after(elapsed, {from - target, m_velocity[component]});
        return {target + state.distance, state.velocity};
    }

    // The curve has a start velocity of its own. What the value had beyond it is added as a bump
    // that is 0 at both ends, has that slope at the start and none at the end: d s (1 - s)^2.
    const auto &motion = std::get<CurveMotion>(m_motion);
    const double s = elapsed / m_duration;
    const double way = target - from;
    const double extra = m_velocity[component] - way * motion.curve.slope(0) / m_duration;
    const bool wasMoving = m_velocity[component] != 0;
    const double bump = wasMoving ? extra * m_duration * s * (1 - s) * (1 - s) : 0;
    const double bumpVelocity = wasMoving ? extra * (1 - s) * (1 - 3 * s) : 0;
    return {from + way * motion.curve.progress(s) + bump,
            way * motion.curve.slope(s) / m_duration + bumpVelocity};
}

MovingValue::Components MovingValue::valueAt(double time) const
{
    Components values(m_target.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = sample(i, time).value;
    return values;
}

MovingValue::Components MovingValue::velocityAt(double time) const
{
    Components values(m_target.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = sample(i, time).velocity;
    return values;
}

bool MovingValue::isOverAt(double time) const
{
    return time - m_start >= m_duration;
}

} // namespace corvane
