#include "shelf/drawing/stroke_icon.h"

#include "shelf/drawing/icon_cache.h"

#include <QPainter>

#include <array>
#include <initializer_list>

namespace corvane::stroke_icon {

namespace {

void polyline(QPainterPath &path, std::initializer_list<QPointF> points)
{
    bool first = true;
    for (const QPointF &point : points) {
        if (first)
            path.moveTo(point);
        else
            path.lineTo(point);
        first = false;
    }
}

void eye(QPainterPath &path)
{
    path.moveTo(0.04, 0.5);
    path.cubicTo(0.28, 0.90, 0.72, 0.90, 0.96, 0.5);
    path.cubicTo(0.72, 0.10, 0.28, 0.10, 0.04, 0.5);
    path.closeSubpath();
    path.addEllipse(QPointF(0.5, 0.5), 0.145, 0.145);
}

void copy(QPainterPath &path)
{
    path.addRoundedRect(QRectF(0.08, 0.08, 0.58, 0.58), 0.13, 0.13);
    path.moveTo(0.34, 0.80);
    path.cubicTo(0.34, 0.88, 0.38, 0.92, 0.46, 0.92);
    path.lineTo(0.80, 0.92);
    path.cubicTo(0.88, 0.92, 0.92, 0.88, 0.92, 0.80);
    path.lineTo(0.92, 0.46);
    path.cubicTo(0.92, 0.38, 0.88, 0.34, 0.80, 0.34);
}

void trash(QPainterPath &path)
{
    polyline(path, {{0.08, 0.77}, {0.92, 0.77}});
    path.moveTo(0.34, 0.77);
    path.lineTo(0.34, 0.86);
    path.cubicTo(0.34, 0.91, 0.37, 0.94, 0.42, 0.94);
    path.lineTo(0.58, 0.94);
    path.cubicTo(0.63, 0.94, 0.66, 0.91, 0.66, 0.86);
    path.lineTo(0.66, 0.77);
    path.moveTo(0.18, 0.77);
    path.lineTo(0.22, 0.15);
    path.cubicTo(0.225, 0.09, 0.26, 0.06, 0.31, 0.06);
    path.lineTo(0.69, 0.06);
    path.cubicTo(0.74, 0.06, 0.775, 0.09, 0.78, 0.15);
    path.lineTo(0.82, 0.77);
    polyline(path, {{0.40, 0.58}, {0.40, 0.25}});
    polyline(path, {{0.60, 0.58}, {0.60, 0.25}});
}

} // namespace

void appendPath(StrokeIcon icon, QPainterPath &path)
{
    switch (icon) {
    case StrokeIcon::Eye:
        eye(path);
        break;
    case StrokeIcon::Copy:
        copy(path);
        break;
    case StrokeIcon::Cross:
        polyline(path, {{0.14, 0.14}, {0.86, 0.86}});
        polyline(path, {{0.14, 0.86}, {0.86, 0.14}});
        break;
    case StrokeIcon::SquaresFour:
        for (const double x : {0.08, 0.57}) {
            for (const double y : {0.08, 0.57})
                path.addRoundedRect(QRectF(x, y, 0.35, 0.35), 0.1, 0.1);
        }
        break;
    case StrokeIcon::Trash:
        trash(path);
        break;
    case StrokeIcon::CaretLeft:
        polyline(path, {{0.64, 0.90}, {0.28, 0.5}, {0.64, 0.10}});
        break;
    case StrokeIcon::CaretRight:
        polyline(path, {{0.36, 0.90}, {0.72, 0.5}, {0.36, 0.10}});
        break;
    case StrokeIcon::Check:
        polyline(path, {{0.10, 0.46}, {0.38, 0.18}, {0.90, 0.80}});
        break;
    }
}

QString name(StrokeIcon icon)
{
    static const std::array names{QStringLiteral("eye"),        QStringLiteral("copy"),
                                  QStringLiteral("cross"),      QStringLiteral("squaresFour"),
                                  QStringLiteral("trash"),      QStringLiteral("caretLeft"),
                                  QStringLiteral("caretRight"), QStringLiteral("check")};
    return names.at(static_cast<std::size_t>(icon));
}

QImage image(StrokeIcon icon, double pointSize, const QColor &tint, double inset, double weight,
             double scale)
{
    static IconCache cache;
    const IconCache::Key key{
        static_cast<int>(icon), pointSize, tint.rgba64(), inset, weight, scale};
    return cache.image(key, [&](QPainter &painter, const QRectF &square) {
        QPainterPath unit;
        appendPath(icon, unit);
        QTransform fit = QTransform::fromTranslate(square.x(), square.y());
        fit.scale(square.width(), square.height());
        painter.strokePath(fit.map(unit),
                           QPen(tint, weight, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    });
}

} // namespace corvane::stroke_icon
