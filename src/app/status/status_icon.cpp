#include "app/status/status_icon.h"

#include <QPainter>
#include <QPainterPath>
#include <QStringList>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>

namespace corvane::status_icon {

namespace {

constexpr double strokeWidth = 1;
constexpr QRectF bar{1.0, 1.3, 19.0, 7.8};
constexpr double barRadius = 2.5;

constexpr QSizeF cardSize{6.4, 8.6};
constexpr double cardRadius = 1.4;

/// The middle of a card, in points, and how far it is turned to the left.
struct Card {
    double x;
    double y;
    double degrees;
};
/// For 1, 2 and 3 cards: each from the back to the front.
constexpr std::array<std::array<Card, mostCards>, mostCards> cardsOf = {{
    {{{10.5, 10.2, -8}, {}, {}}},
    {{{7.2, 9.9, 12}, {13.4, 10.1, -10}, {}}},
    {{{5.4, 9.4, 16}, {15.6, 9.4, -16}, {10.5, 10.7, 0}}},
}};

QPainterPath barPath()
{
    QPainterPath path;
    path.addRoundedRect(bar, barRadius, barRadius);
    return path;
}

QPainterPath cardPath(const Card &card)
{
    QPainterPath path;
    path.addRoundedRect({{-cardSize.width() / 2, -cardSize.height() / 2}, cardSize}, cardRadius,
                        cardRadius);
    return QTransform().translate(card.x, card.y).rotate(card.degrees).map(path);
}

QPen pen(double width, const QColor &color)
{
    return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// Draws what the icon covers, including the gaps between its shapes, enlarged by the outline's
/// width.
void drawOutline(QPainter &painter, int cards, const QColor &color)
{
    constexpr double width = 1.1;
    painter.setBrush(color);
    painter.setPen(pen(strokeWidth + 2 * width, color));
    painter.drawPath(barPath());
    painter.setPen(pen(2 * width, color));
    for (int i = 0; i < cards; ++i)
        painter.drawPath(
            cardPath(cardsOf.at(static_cast<size_t>(cards - 1)).at(static_cast<size_t>(i))));
}

QImage layer(int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// Transforms the painter so that the canvas is in the middle of a square of `side` pixels, with
/// room for the outline, and y upward.
void standOn(QPainter &painter, int side)
{
    constexpr double square = 22;
    const double scale = side / square;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(side / 2.0, side / 2.0);
    painter.scale(scale, -scale);
    // Moves the bar's lower edge to a pixel boundary at 22 pixels, the usual size.
    constexpr double rise = 0.2;
    painter.translate(-canvas.width() / 2, rise - canvas.height() / 2);
}

} // namespace

void draw(QPainter &painter, int cards)
{
    painter.setBrush(Qt::black);
    painter.setPen(pen(strokeWidth, Qt::black));
    painter.drawPath(barPath());
    const int count = std::clamp(cards, 0, mostCards);
    for (int i = 0; i < count; ++i) {
        const QPainterPath path
            = cardPath(cardsOf.at(static_cast<size_t>(count - 1)).at(static_cast<size_t>(i)));
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.setPen(pen(2 * strokeWidth, Qt::black));
        painter.drawPath(path);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.fillPath(path, Qt::black);
    }
}

QImage image(int cards, int side, const QColor &foreground)
{
    QImage glyph = layer(side);
    {
        QPainter painter(&glyph);
        standOn(painter, side);
        draw(painter, cards);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.resetTransform();
        painter.fillRect(glyph.rect(), foreground);
    }
    QImage outline = layer(side);
    {
        QPainter painter(&outline);
        standOn(painter, side);
        drawOutline(painter, std::clamp(cards, 0, mostCards),
                    foreground.lightnessF() > 0.5F ? Qt::black : Qt::white);
    }
    QImage result = layer(side);
    QPainter painter(&result);
    constexpr double outlineOpacity = 0.55;
    painter.setOpacity(outlineOpacity);
    painter.drawImage(0, 0, outline);
    painter.setOpacity(1);
    painter.drawImage(0, 0, glyph);
    return result;
}

QColor likelyForeground(const QString &currentDesktop, const QColor &text)
{
    const QColor light(0xf2, 0xf2, 0xf2);
    const QColor dark(0x2a, 0x2a, 0x2a);
    const QStringList names = currentDesktop.split(QLatin1Char(':'));
    const bool followsPalette = std::any_of(names.cbegin(), names.cend(), [](const QString &name) {
        return name == QLatin1String("KDE") || name == QLatin1String("LXQt")
            || name == QLatin1String("MATE");
    });
    return !followsPalette || text.lightnessF() > 0.5F ? light : dark;
}

} // namespace corvane::status_icon
