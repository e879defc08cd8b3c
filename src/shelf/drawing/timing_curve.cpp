#include "shelf/drawing/timing_curve.h"

#include <algorithm>
#include <cmath>

namespace corvane {

namespace {

double bezier(double p1, double p2, double t)
{
    const double s = 1 - t;
    return 3 * s * s * t * p1 + 3 * s * t * t * p2 + t * t * t;
}

double bezierSlope(double p1, double p2, double t)
{
    const double s = 1 - t;
    return 3 * s * s * p1 + 6 * s * t * (p2 - p1) + 3 * t * t * (1 - p2);
}

// The curve's parameter where its x is `time`. Found by bisection, since x grows with the
// parameter.
double parameter(const TimingCurve &curve, double time)
{
    double low = 0;
    double high = 1;
    for (int i = 0; i < 40; ++i) {
        const double middle = (low + high) / 2;
        (bezier(curve.x1, curve.x2, middle) < time ? low : high) = middle;
    }
    return (low + high) / 2;
}

} // namespace

double TimingCurve::progress(double time) const
{
    if (time <= 0)
        return 0;
    if (time >= 1)
        return 1;
    return bezier(y1, y2, parameter(*this, time));
}

double TimingCurve::slope(double time) const
{
    const double t = parameter(*this, std::clamp(time, 0.0, 1.0));
    const double dx = bezierSlope(x1, x2, t);
    const double dy = bezierSlope(y1, y2, t);
    // If a control point equals the start, both derivatives vanish there; just beside it their
    // ratio is right.
    if (std::abs(dx) < 1e-9)
        return bezierSlope(y1, y2, 1e-4) / bezierSlope(x1, x2, 1e-4);
    return dy / dx;
}

} // namespace corvane
