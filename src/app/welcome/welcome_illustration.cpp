#include "app/welcome/welcome_illustration.h"

#include "app/look/window_look.h"
#include "app/welcome/welcome_shapes.h"
#include "shelf/drawing/pill_path.h"

#include <QCoreApplication>
#include <QFont>
#include <QFontMetrics>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <algorithm>

namespace corvane::welcome_illustration {

namespace {

using namespace welcome_shapes;

constexpr QRectF leftWindow{52, 140, 186, 152};
constexpr QRectF rightWindow{282, 126, 186, 166};
constexpr double windowRadius = 9;
constexpr double titleBarHeight = 20;
constexpr double notchRadius = 8;
constexpr double shelfRadius = 18;
constexpr double ringInset = 7;
constexpr double keyPadding = 4;

struct Colours {
    explicit Colours(const QPalette &palette)
        : isDark(palette.color(QPalette::Window).lightnessF() < 0.5F)
        , sky(isDark ? QColor(0x2A, 0x34, 0x52) : QColor(0xC9, 0xDD, 0xF4))
        , ground(isDark ? QColor(0x4A, 0x36, 0x55) : QColor(0xF1, 0xDD, 0xD3))
        , window(isDark ? QColor(0x2B, 0x2D, 0x33) : QColor(0xFC, 0xFC, 0xFD))
        , titleBar(isDark ? QColor(0x36, 0x38, 0x3F) : QColor(0xEE, 0xEF, 0xF2))
        , line(isDark ? QColor(0x4A, 0x4D, 0x56) : QColor(0xDD, 0xE0, 0xE6))
        , accent(WindowLook::accent(palette))
    {
    }

    bool isDark;
    QColor sky;
    QColor ground;
    QColor window;
    QColor titleBar;
    QColor line;
    QColor accent;
};

double between(double from, double to, double share)
{
    return from + (to - from) * share;
}

void drawShadow(QPainter &painter, const QRectF &rect, double radius, double depth)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    // Each ring a unit wider than the next: narrower steps cannot be seen.
    const int rings = std::max(2, static_cast<int>(depth));
    constexpr int darkest = 45;
    for (int i = rings; i > 0; --i) {
        const double reach = depth * i / rings;
        painter.setBrush(QColor(0, 0, 0, darkest / rings));
        painter.drawRoundedRect(
            rect.adjusted(-reach, -reach, reach, reach).translated(0, depth / 3), radius + reach,
            radius + reach);
    }
    painter.restore();
}

void drawDesktop(QPainter &painter, const QRectF &area, const Colours &colours)
{
    QLinearGradient gradient(area.topLeft(), area.bottomRight());
    gradient.setColorAt(0, colours.sky);
    gradient.setColorAt(1, colours.ground);
    painter.fillRect(area, gradient);
}

void drawWindow(QPainter &painter, const QRectF &rect, const Colours &colours)
{
    drawShadow(painter, rect, windowRadius, 9);
    QPainterPath outline;
    outline.addRoundedRect(rect, windowRadius, windowRadius);
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.fillPath(outline, colours.window);
    painter.setClipPath(outline, Qt::IntersectClip);
    painter.fillRect(QRectF(rect.topLeft(), QSizeF(rect.width(), titleBarHeight)),
                     colours.titleBar);
    painter.restore();
    painter.setBrush(colours.line);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 3; ++i)
        painter.drawEllipse(QPointF(rect.left() + 12 + i * 10, rect.top() + titleBarHeight / 2), 3,
                            3);
}

/// A folder's window, with the places of its other files.
void drawFiles(QPainter &painter, const Colours &colours)
{
    drawWindow(painter, leftWindow, colours);
    painter.setBrush(colours.titleBar);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 3; ++i) {
        const double x = leftWindow.left() + 40 + i * 53.0;
        painter.drawRoundedRect(QRectF(x - 20, 176, 40, 48), 4, 4);
        painter.setBrush(colours.line);
        painter.drawRoundedRect(QRectF(x - 15, 232, 30, 5), 2.5, 2.5);
        painter.setBrush(colours.titleBar);
    }
}

/// A window in which somebody writes.
void drawDocument(QPainter &painter, const QRectF &rect, const Colours &colours)
{
    drawWindow(painter, rect, colours);
    painter.setBrush(colours.line);
    painter.setPen(Qt::NoPen);
    const double left = rect.left() + 18;
    painter.drawRoundedRect(QRectF(left, rect.top() + 34, 64, 7), 3.5, 3.5);
    for (const double y : {50.0, 61.0, 130.0, 141.0}) {
        if (rect.top() + y + 5 < rect.bottom() - 8)
            painter.drawRoundedRect(QRectF(left, rect.top() + y, y == 61 ? 112 : 150, 5), 2.5, 2.5);
    }
}

/// A picture: sky, sun and two hills on a white border.
void drawCard(QPainter &painter, const WelcomeScene::Card &card, const Colours &colours)
{
    painter.save();
    painter.setOpacity(painter.opacity() * card.opacity);
    painter.translate(card.centre);
    painter.scale(card.scale, card.scale);
    const QRectF rect(QPointF(-cardSize.width() / 2, -cardSize.height() / 2), cardSize);
    drawShadow(painter, rect, 5, cardShadow);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(rect, 5, 5);
    const QRectF inside = rect.adjusted(3, 3, -3, -3);
    QPainterPath frame;
    frame.addRoundedRect(inside, 3, 3);
    painter.setClipPath(frame, Qt::IntersectClip);
    painter.fillRect(inside, QColor(0xF6, 0xC4, 0x8A));
    painter.setBrush(QColor(0xFF, 0xF3, 0xD0));
    painter.drawEllipse(QPointF(8, -9), 5, 5);
    painter.setBrush(colours.accent);
    painter.drawPolygon(QPolygonF({{-22, 24}, {-6, -4}, {12, 24}}));
    painter.setBrush(colours.accent.darker(125));
    painter.drawPolygon(QPolygonF({{-6, 24}, {10, 4}, {26, 24}}));
    painter.restore();
}

void drawShelf(QPainter &painter, const WelcomeScene &scene)
{
    const QRectF bounds = shelfBounds(scene.shelf);
    painter.save();
    painter.translate(bounds.left(), bounds.bottom());
    // Outlines of the shelf count upward.
    painter.scale(1, -1);
    QPainterPath body = pillPath(bounds.size(), between(notchRadius, shelfRadius, scene.shelf));
    painter.fillPath(body, Qt::black);
    painter.restore();
    if (scene.ring <= 0)
        return;
    const QRectF ring = bounds.adjusted(bodyFlareRadius + ringInset, ringInset,
                                        -bodyFlareRadius - ringInset, -ringInset);
    QPen pen(QColor::fromRgbF(1, 1, 1, static_cast<float>(0.6 * scene.ring)), 2);
    pen.setDashPattern({3, 3});
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(ring, shelfRadius - ringInset, shelfRadius - ringInset);
}

/// What stands on the key, made small enough for its cap.
void drawKeyName(QPainter &painter, const QRectF &cap)
{
    const QString name = QCoreApplication::translate("QShortcut", "Shift");
    const double width = painter.fontMetrics().horizontalAdvance(name);
    const double scale = std::min(1.0, (cap.width() - 2 * keyPadding) / width);
    painter.save();
    painter.translate(cap.center());
    painter.scale(scale, scale);
    painter.drawText(QRectF(-width, -cap.height(), 2 * width, 2 * cap.height()), Qt::AlignCenter,
                     name);
    painter.restore();
}

void drawKey(QPainter &painter, double pressed, const Colours &colours, const QFont &font)
{
    const QRectF cap = keyCap.translated(0, keyTravel * pressed);
    drawShadow(painter, keyCap, 8, keyShadow);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.line);
    painter.drawRoundedRect(keyCap.adjusted(0, keyTravel, 0, keyTravel), 8, 8);
    painter.setBrush(colours.window);
    painter.drawRoundedRect(cap, 8, 8);
    QColor glow = colours.accent;
    glow.setAlphaF(static_cast<float>(pressed));
    painter.setBrush(glow);
    painter.drawRoundedRect(cap, 8, 8);
    painter.setFont(font);
    painter.setPen(pressed > 0.5 || colours.isDark ? Qt::white : QColor(0x30, 0x33, 0x3A));
    drawKeyName(painter, cap);
}

void drawPointer(QPainter &painter, QPointF tip)
{
    painter.save();
    painter.translate(tip);
    painter.setPen(QPen(Qt::white, arrowLine, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::black);
    painter.drawPolygon(arrow());
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(arrow());
    painter.restore();
}

void raise(QPainter &painter, const QRectF &area)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(area, Qt::IntersectClip);
    painter.setTransform(stageIn(area), true);
}

} // namespace

void drawBackdrop(QPainter &painter, const QRectF &area, bool showsKey, const QPalette &palette)
{
    const Colours colours(palette);
    painter.save();
    drawDesktop(painter, area, colours);
    raise(painter, area);
    if (showsKey)
        drawDocument(painter, leftWindow, colours);
    else
        drawFiles(painter, colours);
    drawDocument(painter, rightWindow, colours);
    painter.restore();
}

void drawActors(QPainter &painter, const QRectF &area, const WelcomeScene &scene,
                const QPalette &palette, const QFont &keyFont)
{
    const Colours colours(palette);
    painter.save();
    raise(painter, area);
    if (scene.showsKey)
        drawKey(painter, scene.key, colours, keyFont);
    drawShelf(painter, scene);
    for (const WelcomeScene::Card &card : scene.cards)
        drawCard(painter, card, colours);
    painter.setOpacity(scene.pointerOpacity);
    drawPointer(painter, scene.pointer);
    painter.restore();
}

} // namespace corvane::welcome_illustration
