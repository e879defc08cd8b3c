#include "app/look/window_look.h"

#include "platform/desktop/appearance_preference.h"
#include "preview/preview_look.h"

#include <QApplication>
#include <QEvent>
#include <QFontInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane {

namespace {

constexpr double progressBarHeight = 6;
constexpr double cardRadius = 8;
constexpr double cardOpacity = 0.045;
constexpr double contrastOpacity = 0.8;

auto presentContrast = WindowLook::Contrast::Usual;

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

void WindowLook::setContrast(Contrast contrast)
{
    if (std::exchange(presentContrast, contrast) == contrast)
        return;
    using Previews = preview_look::Contrast;
    preview_look::setContrast(contrast == Contrast::More ? Previews::More : Previews::Usual);
    QList<QPointer<QWidget>> widgets;
    for (QWidget *widget : QApplication::allWidgets())
        widgets << widget;
    for (const QPointer<QWidget> &widget : std::as_const(widgets)) {
        QEvent change(QEvent::PaletteChange);
        if (widget)
            QCoreApplication::sendEvent(widget, &change);
        if (widget)
            widget->update();
    }
}

bool WindowLook::hasMoreContrast()
{
    return presentContrast == Contrast::More;
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

// The colours are visible on light and dark backgrounds.
QString WindowLook::scrollBarStyle() const
{
    const int width = length(scrollBarWidth);
    return QStringLiteral("QScrollBar { background: transparent; width: %1px; margin: 0; }"
                          "QScrollBar::handle { background: rgba(128, 128, 128, 140);"
                          " border-radius: %2px; margin: 2px; min-height: %3px; }"
                          "QScrollBar::handle:hover { background: rgba(128, 128, 128, 200); }"
                          "QScrollBar::add-line, QScrollBar::sub-line { height: 0; }"
                          "QScrollBar::add-page, QScrollBar::sub-page { background: none; }")
        .arg(width)
        .arg(width / 2 - 2)
        .arg(3 * width);
}

QString WindowLook::progressBarStyle() const
{
    const int height = length(progressBarHeight);
    // The height is without the edges, which reach beyond the usual one.
    return QStringLiteral(
               "QProgressBar { background: rgba(128, 128, 128, 60); border: %3;"
               " border-radius: %4px; height: %1px; min-height: %1px; max-height: %1px; }"
               "QProgressBar::chunk { background: palette(highlight);"
               " border-radius: %2px; }")
        .arg(QString::number(height), QString::number(height / 2),
             hasMoreContrast() ? QStringLiteral("1px solid palette(window-text)")
                               : QStringLiteral("none"),
             QString::number(height / 2 + (hasMoreContrast() ? 1 : 0)));
}

void WindowLook::drawCard(QPainter &painter, const QPalette &palette, const QRect &rect) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(edgeOfContrast(palette));
    painter.setBrush(tint(palette, cardOpacity));
    painter.drawRoundedRect(insideEdge(rect), length(cardRadius), length(cardRadius));
    painter.restore();
}

QColor WindowLook::secondary(const QPalette &palette)
{
    if (hasMoreContrast())
        return palette.color(QPalette::WindowText);
    // A mixed, opaque colour, because translucent letters look less sharp.
    constexpr float opacity = 0.68F;
    return mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Window), opacity);
}

QColor WindowLook::tint(const QPalette &palette, double opacity)
{
    QColor color = palette.color(QPalette::WindowText);
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

QColor WindowLook::edge(const QPalette &palette, double usualOpacity)
{
    return tint(palette, hasMoreContrast() ? contrastOpacity : usualOpacity);
}

QPen WindowLook::edgeOfContrast(const QPalette &palette)
{
    return hasMoreContrast() ? QPen(edge(palette, contrastOpacity), 1) : QPen(Qt::NoPen);
}

QRectF WindowLook::insideEdge(const QRectF &rect)
{
    constexpr double half = 0.5;
    return hasMoreContrast() ? rect.adjusted(half, half, -half, -half) : rect;
}

QColor WindowLook::accent(const QPalette &palette)
{
    return palette.color(QPalette::Active, QPalette::Highlight);
}

} // namespace corvane
