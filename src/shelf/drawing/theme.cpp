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

Theme::Palette Theme::Palette::ofMoreContrast()
{
    Palette palette;
    palette.hairline = white(1);
    palette.primary = white(1);
    palette.secondary = white(0.92);
    palette.control = white(1);
    palette.controlPlate = white(0.2);
    palette.divider = white(0.8);
    palette.thumbRing = white(0.8);
    palette.emphasis = white(1);
    palette.dropRingActive = white(1);
    palette.border = white(0.8);
    return palette;
}

void Theme::setContrast(Contrast contrast)
{
    palette = contrast == Contrast::More ? Palette::ofMoreContrast() : Palette();
}

Theme::Theme(const QFont &generalFont, double logicalDotsPerInch)
    : typography{sized(generalFont, 11, QFont::Medium, logicalDotsPerInch),
                 sized(generalFont, 10, QFont::Normal, logicalDotsPerInch),
                 sized(generalFont, 11.5, QFont::Medium, logicalDotsPerInch),
                 sized(generalFont, 9.5, QFont::Normal, logicalDotsPerInch)}
{
}

} // namespace corvane
