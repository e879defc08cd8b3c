#pragma once

#include "shelf/drawing/motion.h"

#include <QString>

#include <optional>
#include <set>

namespace corvane {

/// Decides how a layer's properties move when they change. The layer itself is not looked at, so
/// one instance serves every layer.
class LayerAnimator {
public:
    static constexpr double transformDuration = 0.32;
    static constexpr double opacityDuration = 0.14;
    /// Control points (0.32, 0.72) and (0, 1), in the single precision in which they are kept.
    static constexpr TimingCurve transformCurve() { return {0.32F, 0.72F, 0, 1}; }

    /// "bounds", "position", "path", "cornerRadius".
    static const std::set<QString> &springKeys();

    /// The motion for a change of `key`; none applies the change at once.
    std::optional<Motion> action(const QString &key) const;
};

} // namespace corvane
