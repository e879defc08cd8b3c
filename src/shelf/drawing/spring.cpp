#include "shelf/drawing/spring.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace corvane {

namespace {

// When the damping ratio is nearer to 1 than this, the solutions for under- and overdamping lose
// their digits, and the one for critical damping is used.
constexpr double criticalMargin = 1e-6;

} // namespace

Spring::Course Spring::after(double seconds) const
{
    const double frequency = std::sqrt(stiffness / mass);
    const double ratio = damping / (2 * std::sqrt(stiffness * mass));
    const double decay = ratio * frequency;
    const double t = seconds;

    if (ratio < 1 - criticalMargin) {
        const double damped = frequency * std::sqrt(1 - ratio * ratio);
        const double envelope = std::exp(-decay * t);
        const double cosine = envelope * std::cos(damped * t);
        const double sine = envelope * std::sin(damped * t);
        const double share = decay / damped;
        return {{cosine + share * sine, -(damped + decay * share) * sine},
                {sine / damped, cosine - share * sine}};
    }
    if (ratio > 1 + criticalMargin) {
        const double root = frequency * std::sqrt(ratio * ratio - 1);
        const double slow = root - decay;
        const double fast = -root - decay;
        const double slowly = std::exp(slow * t);
        const double quickly = std::exp(fast * t);
        const double way = fast - slow;
        return {{(fast * slowly - slow * quickly) / way, slow * fast * (slowly - quickly) / way},
                {(quickly - slowly) / way, (fast * quickly - slow * slowly) / way}};
    }
    const double envelope = std::exp(-frequency * t);
    return {{envelope * (1 + frequency * t), -envelope * frequency * frequency * t},
            {envelope * t, envelope * (1 - frequency * t)}};
}

double Spring::settlingDuration() const
{
    thread_local Spring asked;
    thread_local double duration = asked.findSettlingDuration();
    if (*this != asked) {
        asked = *this;
        duration = findSettlingDuration();
    }
    return duration;
}

double Spring::overshoot() const
{
    const double ratio = damping / (2 * std::sqrt(stiffness * mass));
    return ratio < 1 ? std::exp(-std::numbers::pi * ratio / std::sqrt(1 - ratio * ratio)) : 0;
}

double Spring::findSettlingDuration() const
{
    const double frequency = std::sqrt(stiffness / mass);
    const double ratio = damping / (2 * std::sqrt(stiffness * mass));
    if (ratio <= 0)
        return std::numeric_limits<double>::infinity();
    const auto isSettled = [this](double time) {
        return std::abs(after(time, {1, 0}).distance) <= settledDistance;
    };
    // By this time even the slowest part of the motion is below e^-20.
    const double slowest
        = ratio > 1 ? frequency * (ratio - std::sqrt(ratio * ratio - 1)) : ratio * frequency;
    const double horizon = 20 / slowest;
    // A step that no oscillation is missed by. The last unsettled sample and the next one enclose
    // the moment.
    const double step = 0.02 / frequency;
    auto last = static_cast<long>(horizon / step);
    while (last > 0 && isSettled(static_cast<double>(last) * step))
        --last;
    double before = static_cast<double>(last) * step;
    double end = before + step;
    constexpr int halvings = 60;
    for (int i = 0; i < halvings; ++i) {
        const double middle = (before + end) / 2;
        (isSettled(middle) ? end : before) = middle;
    }
    return end;
}

} // namespace corvane
