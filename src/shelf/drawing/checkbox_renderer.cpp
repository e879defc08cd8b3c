#include "shelf/drawing/checkbox_renderer.h"

#include "shelf/drawing/icon_cache.h"
#include "shelf/drawing/stroke_icon.h"

#include <QPainter>

namespace corvane::checkbox_renderer {

namespace {

void paint(QPainter &painter, const QRectF &square, bool checked)
{
    // The line lies inside the square. A dark fill keeps it visible on any picture.
    const QRectF box = square.adjusted(0.75, 0.75, -0.75, -0.75);
    const double radius = square.width() * 0.26;
    painter.setPen(checked ? QPen(Qt::NoPen) : QPen(QColor::fromRgbF(1, 1, 1, 0.72F), 1.25));
    painter.setBrush(checked ? QColor::fromRgbF(1, 1, 1, 0.96F) : QColor::fromRgbF(0, 0, 0, 0.45F));
    painter.drawRoundedRect(box, radius, radius);
    if (!checked)
        return;
    QPainterPath unit;
    stroke_icon::appendPath(StrokeIcon::Check, unit);
    const double side = box.width() * 0.58;
    QTransform fit = QTransform::fromTranslate(box.x() + (box.width() - side) / 2,
                                               box.y() + (box.height() - side) / 2);
    fit.scale(side, side);
    painter.strokePath(
        fit.map(unit),
        QPen(Qt::black, box.width() * 0.11, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

} // namespace

QImage image(bool checked, double size, double scale)
{
    static IconCache cache;
    return cache.image(
        {checked ? 1 : 0, size, QRgba64(), 0, 0, scale},
        [checked](QPainter &painter, const QRectF &square) { paint(painter, square, checked); });
}

} // namespace corvane::checkbox_renderer
