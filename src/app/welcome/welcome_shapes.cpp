#include "app/welcome/welcome_shapes.h"

#include <QList>
#include <QRegion>
#include <QTransform>

#include <algorithm>

namespace corvane::welcome_shapes {

namespace {

constexpr QSizeF notchSize{124, 23};
constexpr QSizeF shelfSize{244, 58};

double between(double from, double to, double share)
{
    return from + (to - from) * share;
}

QRectF grown(const QRectF &rect, double by)
{
    return rect.adjusted(-by, -by, by, by);
}

QRectF boundsOf(const WelcomeScene::Card &card)
{
    const QSizeF size = cardSize * card.scale;
    const QRectF rect({card.centre.x() - size.width() / 2, card.centre.y() - size.height() / 2},
                      size);
    // The shadow reaches a third further down, and no further on the other sides.
    return grown(rect, cardShadow * 4 / 3 * card.scale);
}

QRectF pointerBounds(const WelcomeScene &scene)
{
    return grown(arrow().boundingRect().translated(scene.pointer), arrowLine);
}

/// The bounds of everything that is not as it was, as it was and as it is.
QList<QRectF> changedBounds(const WelcomeScene &before, const WelcomeScene &after)
{
    QList<QRectF> bounds;
    if (before.shelf != after.shelf || before.ring != after.ring)
        bounds << shelfBounds(before.shelf) << shelfBounds(after.shelf);
    if (before.key != after.key || before.showsKey != after.showsKey)
        bounds << grown(keyCap, keyShadow * 4 / 3 + keyTravel);
    if (before.pointer != after.pointer || before.pointerOpacity != after.pointerOpacity)
        bounds << pointerBounds(before) << pointerBounds(after);
    for (qsizetype i = 0; i < std::max(before.cards.size(), after.cards.size()); ++i) {
        const bool isThere = i < before.cards.size() && i < after.cards.size();
        if (isThere && before.cards[i] == after.cards[i])
            continue;
        if (i < before.cards.size())
            bounds << boundsOf(before.cards[i]);
        if (i < after.cards.size())
            bounds << boundsOf(after.cards[i]);
    }
    return bounds;
}

} // namespace

const QPolygonF &arrow()
{
    static const QPolygonF outline(
        {{0, 0}, {0, 17}, {4, 13.4}, {6.6, 19.4}, {9.4, 18.2}, {6.8, 12.4}, {12.2, 12.2}});
    return outline;
}

QRectF shelfBounds(double open)
{
    const QSizeF size(between(notchSize.width(), shelfSize.width(), open),
                      between(notchSize.height(), shelfSize.height(), open));
    return {QPointF((WelcomeScene::stageSize.width() - size.width()) / 2, 0), size};
}

QTransform stageIn(const QRectF &area)
{
    const QSizeF stage = WelcomeScene::stageSize;
    const double scale = std::min(area.width() / stage.width(), area.height() / stage.height());
    return QTransform()
        .translate(area.center().x() - stage.width() * scale / 2, area.top())
        .scale(scale, scale);
}

QRegion changed(const QRectF &area, const WelcomeScene &before, const WelcomeScene &after)
{
    const QTransform stage = stageIn(area);
    QRegion region;
    for (const QRectF &bounds : changedBounds(before, after)) {
        // Soft edges cover a part of the next pixel, too.
        constexpr double softness = 1;
        region += grown(stage.mapRect(bounds), softness).toAlignedRect();
    }
    return region;
}

} // namespace corvane::welcome_shapes
