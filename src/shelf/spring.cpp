#include "shelf/spring.h"

#include <cmath>
#include <limits>

namespace corvane {

namespace {

// Above this damping ratio the oscillating and the creeping solution lose their digits; the
// critical one stands in for both.
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

namespace {

double findSettlingDuration(const Spring &spring)
{
    const Spring::State start{1, 0};
    // The envelope tells from when on it is surely settled; the last crossing lies before that.
    const double frequency = std::sqrt(spring.stiffness / spring.mass);
    const double ratio = spring.damping / (2 * std::sqrt(spring.stiffness * spring.mass));
    const auto isSettledAt = [&](double time) {
        return std::abs(spring.after(time, start).distance) <= Spring::settledDistance;
    };
    double end = 1 / frequency;
    while (true) {
        const double step = 0.05 / frequency;
        bool settled = true;
        // A look ahead over one whole oscillation at least.
        for (double ahead = 0; ahead < 8 / frequency; ahead += step)
            settled = settled && isSettledAt(end + ahead);
        if (settled || end * frequency > 1e6 || ratio <= 0)
            break;
        end += step;
    }
    double before = std::fmax(0.0, end - 0.05 / frequency);
    for (int i = 0; i < 60; ++i) {
        const double middle = (before + end) / 2;
        (isSettledAt(middle) ? end : before) = middle;
    }
    return end;
}

} // namespace

double Spring::settlingDuration() const
{
    // Asked for with every change that moves, always of the theme's spring.
    thread_local Spring last;
    thread_local double duration = findSettlingDuration(last);
    if (*this != last) {
        duration = findSettlingDuration(*this);
        last = *this;
    }
    return duration;
}

} // namespace corvane
