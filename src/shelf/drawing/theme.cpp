#include "shelf/drawing/theme.h"

namespace corvane {

namespace {

// `QFont` takes pixel sizes as integers only, point sizes with a fraction.
QFont sized(QFont font, double pixels, QFont::Weight weight, double dotsPerInch)
{
    constexpr double pointsPerInch = 72;
    font.setPointSizeF(pixels * pointsPerInch / dotsPerInch);
    font.setWeight(weight);
    return font;
}

} // namespace

double Theme::Motion::settlingDuration()
{
    static const double duration = spring().settlingDuration();
    return duration;
}

Theme::Theme(const QFont &generalFont, double logicalDotsPerInch)
    : typography{sized(generalFont, 11, QFont::Medium, logicalDotsPerInch),
                 sized(generalFont, 10, QFont::Normal, logicalDotsPerInch),
                 sized(generalFont, 11.5, QFont::Medium, logicalDotsPerInch),
                 sized(generalFont, 9.5, QFont::Normal, logicalDotsPerInch)}
{
}

} // namespace corvane
