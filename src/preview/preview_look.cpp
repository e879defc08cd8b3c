#include "preview/preview_look.h"

#include <QPalette>

namespace corvane::preview_look {

namespace {

auto wantedContrast = Contrast::Usual;

QColor textAt(const QPalette &palette, float opacity)
{
    QColor color = palette.color(QPalette::WindowText);
    color.setAlphaF(opacity);
    return color;
}

} // namespace

void setContrast(Contrast contrast)
{
    wantedContrast = contrast;
}

bool hasMoreContrast()
{
    return wantedContrast == Contrast::More;
}

QColor details(const QPalette &palette)
{
    constexpr float subdued = 0.65F;
    return textAt(palette, hasMoreContrast() ? 1 : subdued);
}

QColor line(const QPalette &palette, const QColor &usual)
{
    constexpr float strong = 0.8F;
    return hasMoreContrast() ? textAt(palette, strong) : usual;
}

} // namespace corvane::preview_look
