#include "shelf/drawing/layer_animator.h"

#include "shelf/drawing/theme.h"

namespace corvane {

const std::set<QString> &LayerAnimator::springKeys()
{
    static const std::set<QString> keys{QStringLiteral("bounds"), QStringLiteral("position"),
                                        QStringLiteral("path"), QStringLiteral("cornerRadius")};
    return keys;
}

std::optional<Motion> LayerAnimator::action(const QString &key) const
{
    if (springKeys().contains(key))
        return SpringMotion{Theme::Motion::spring()};
    if (key == QLatin1String("transform"))
        return CurveMotion{transformDuration, transformCurve()};
    if (key == QLatin1String("opacity"))
        return CurveMotion{opacityDuration, TimingCurve::easeOut()};
    return std::nullopt;
}

} // namespace corvane
