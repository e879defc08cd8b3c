#pragma once

namespace corvane {

/// Progress over time as a cubic Bézier curve from (0, 0) to (1, 1) with two control points.
struct TimingCurve {
    double x1 = 0;
    double y1 = 0;
    double x2 = 1;
    double y2 = 1;

    /// The conventional ease-out: quick at first, then slowing down.
    static constexpr TimingCurve easeOut() { return {0, 0, 0.58, 1}; }

    /// Progress at `time`, both 0 to 1.
    double progress(double time) const;
    /// The derivative of the progress at `time`.
    double slope(double time) const;

    friend bool operator==(const TimingCurve &, const TimingCurve &) = default;
};

} // namespace corvane
