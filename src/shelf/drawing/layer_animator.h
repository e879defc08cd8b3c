#pragma once

#include "shelf/drawing/motion.h"

#include <QString>

#include <optional>
#include <set>

namespace corvane {

/// Decides how a layer's properties move when they change. Looks at the property's name only, so
/// one instance serves all layers.
class LayerAnimator {
public:
    /// Durations in seconds.
    static constexpr double transformDuration = 0.32;
    static constexpr double opacityDuration = 0.14;
    /// Control points (0.32, 0.72) and (0, 1), rounded to single precision.
    static constexpr TimingCurve transformCurve() { return {0.32F, 0.72F, 0, 1}; }

    /// The properties that move with the spring: "bounds", "position", "path", "cornerRadius".
    static const std::set<QString> &springKeys();

    /// The motion for a change of property `key`; with none the change is applied at once.
    std::optional<Motion> action(const QString &key) const;
};

} // namespace corvane
