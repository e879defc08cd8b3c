#include "app/window_look.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace corvane {

namespace {

/// Desktops come with fonts of up to this many pixels; whoever has a larger one asked for it.
constexpr double usualFontPixels = 15;

QColor mixed(const QColor &upper, const QColor &lower, float opacity)
{
    const auto mix = [opacity](float a, float b) { return a * opacity + b * (1 - opacity); };
    return QColor::fromRgbF(mix(upper.redF(), lower.redF()), mix(upper.greenF(), lower.greenF()),
                            mix(upper.blueF(), lower.blueF()));
}

} // namespace

WindowLook::WindowLook()
    : m_scale(std::max(1.0, QFontInfo(QGuiApplication::font()).pixelSize() / usualFontPixels))
{
}

int WindowLook::length(double points) const
{
    return static_cast<int>(std::round(points * m_scale));
}

QFont WindowLook::font(double points, QFont::Weight weight) const
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(length(points));
    font.setWeight(weight);
    return font;
}

QColor WindowLook::secondary(const QPalette &palette)
{
    // Opaque, so that letters are as sharp as others; dark enough to be read without effort.
    constexpr float opacity = 0.68F;
    return mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Window), opacity);
}

QColor WindowLook::tint(const QPalette &palette, double opacity)
{
    QColor color = palette.color(QPalette::WindowText);
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

QColor WindowLook::accent(const QPalette &palette)
{
    return palette.color(QPalette::Active, QPalette::Highlight);
}

} // namespace corvane
