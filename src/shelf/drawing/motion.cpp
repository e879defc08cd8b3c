#include "shelf/drawing/motion.h"

#include <algorithm>

namespace corvane {

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
        m_duration = std::get<SpringMotion>(m_motion).spring.settlingDuration();
}

/// Calls `use` with value and velocity of each component in turn. The parts that depend on the time
/// only are calculated once, because a path has many components.
template<typename Use>
void MovingValue::sample(double time, Use use) const
{
    const double elapsed = std::max(0.0, time - m_start);
    if (elapsed >= m_duration) {
        for (const double target : m_target)
            use(target, 0.0);
        return;
    }

    if (const auto *motion = std::get_if<SpringMotion>(&m_motion)) {
        const Spring::Course course = motion->spring.after(elapsed);
        for (std::size_t i = 0; i < m_target.size(); ++i) {
            const auto state = course.from({m_from[i] - m_target[i], m_velocity[i]});
            use(m_target[i] + state.distance, state.velocity);
        }
        return;
    }

    // The curve has a start velocity of its own. The rest of the value's velocity is added as a
    // cubic that is 0 at both ends, with that slope at the start and slope 0 at the end: d s (1 -
    // s)^2.
    const TimingCurve &curve = std::get<CurveMotion>(m_motion).curve;
    const double s = elapsed / m_duration;
    const double progress = curve.progress(s);
    const double slope = curve.slope(s) / m_duration;
    const double startSlope = curve.slope(0) / m_duration;
    for (std::size_t i = 0; i < m_target.size(); ++i) {
        const double way = m_target[i] - m_from[i];
        const double extra = m_velocity[i] == 0 ? 0 : m_velocity[i] - way * startSlope;
        use(m_from[i] + way * progress + extra * m_duration * s * (1 - s) * (1 - s),
            way * slope + extra * (1 - s) * (1 - 3 * s));
    }
}

MovingValue::Components MovingValue::valueAt(double time) const
{
    Components values;
    values.reserve(m_target.size());
    sample(time, [&](double value, double) { values.push_back(value); });
    return values;
}

MovingValue::Components MovingValue::velocityAt(double time) const
{
    Components values;
    values.reserve(m_target.size());
    sample(time, [&](double, double velocity) { values.push_back(velocity); });
    return values;
}

bool MovingValue::isOverAt(double time) const
{
    return time - m_start >= m_duration;
}

} // namespace corvane
