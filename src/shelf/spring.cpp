#include "shelf/spring.h"

#include <cmath>

namespace corvane {

namespace {

// Above this damping ratio the oscillating and the creeping solution lose their digits; the
// critical one stands in for both.
constexpr double criticalMargin = 1e-6;

} // namespace

Spring::State Spring::after(double seconds, State from) const
{
    const double frequency = std::sqrt(stiffness / mass);
    const double ratio = damping / (2 * std::sqrt(stiffness * mass));
    const double decay = ratio * frequency;
    const double t = seconds;

    if (ratio < 1 - criticalMargin) {
        const double damped = frequency * std::sqrt(1 - ratio * ratio);
        const double a = from.distance;
        const double b = (from.velocity + decay * a) / damped;
        const double envelope = std::exp(-decay * t);
        const double cosine = std::cos(damped * t);
        const double sine = std::sin(damped * t);
        return {envelope * (a * cosine + b * sine),
                envelope * ((b * damped - decay * a) * cosine - (a * damped + decay * b) * sine)};
    }
    if (ratio > 1 + criticalMargin) {
        const double root = frequency * std::sqrt(ratio * ratio - 1);
        const double slow = root - decay;
        const double fast = -root - decay;
        const double b = (from.velocity - slow * from.distance) / (fast - slow);
        const double a = from.distance - b;
        return {a * std::exp(slow * t) + b * std::exp(fast * t),
                a * slow * std::exp(slow * t) + b * fast * std::exp(fast * t)};
    }
    const double a = from.distance;
    const double b = from.velocity + frequency * a;
    const double envelope = std::exp(-frequency * t);
    return {envelope * (a + b * t), envelope * (b - frequency * (a + b * t))};
}

double Spring::settlingDuration() const
{
    const State start{1, 0};
    // The envelope tells from when on it is surely settled; the last crossing lies before that.
    const double frequency = std::sqrt(stiffness / mass);
    const double ratio = damping / (2 * std::sqrt(stiffness * mass));
    double end = 1 / frequency;
    while (true) {
        const double step = 0.05 / frequency;
        bool settled = true;
        // A look ahead over one whole oscillation at least.
        for (double ahead = 0; ahead < 8 / frequency; ahead += step)
            settled = settled && std::abs(after(end + ahead, start).distance) <= settledDistance;
        if (settled || end * frequency > 1e6 || ratio <= 0)
            break;
        end += step;
    }
    double before = std::fmax(0.0, end - 0.05 / frequency);
    for (int i = 0; i < 60; ++i) {
        const double middle = (before + end) / 2;
        (std::abs(after(middle, start).distance) <= settledDistance ? end : before) = middle;
    }
    return end;
}

} // namespace corvane
