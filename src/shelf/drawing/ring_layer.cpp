#include "shelf/drawing/ring_layer.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace corvane {

namespace {

QPen dashedPen(const QColor &color)
{
    QPen pen(color, 1);
    pen.setDashPattern({RingLayer::dash, RingLayer::gap});
    pen.setCapStyle(Qt::FlatCap);
    return pen;
}

/// Paints the ring part by part, and keeps the distance covered so far, which decides where dashes
/// begin.
class DashWalk {
public:
    DashWalk(QPainter &painter, const QColor &color, double scale)
        : m_painter(painter)
        , m_toPixels(painter.deviceTransform())
        , m_ratio(painter.device()->devicePixelRatio())
        , m_pixels(std::max(1.0, std::round(scale)))
        , m_pen(dashedPen(color))
        , m_color(color)
    {
        // The line is rounded to whole pixels; its opacity is changed so that it looks as bright as
        // one that covers pixels in part.
        m_color.setAlphaF(static_cast<float>(std::min(1.0, color.alphaF() * scale / m_pixels)));
    }

    void corner(QPointF lowerLeft, double radius, double angle)
    {
        const QRectF circle(lowerLeft, QSizeF(2 * radius, 2 * radius));
        constexpr double quarter = -90;
        QPainterPath arc;
        arc.arcMoveTo(circle, angle);
        arc.arcTo(circle, angle, quarter);
        m_pen.setDashOffset(m_way);
        m_painter.strokePath(arc, m_pen);
        m_way += radius * std::numbers::pi / 2;
    }

    void straight(QPointF from, QPointF to)
    {
        const double length = std::hypot(to.x() - from.x(), to.y() - from.y());
        constexpr double period = RingLayer::dash + RingLayer::gap;
        const double end = m_way + length;
        for (double begin = std::floor(m_way / period) * period; begin < end; begin += period) {
            const double first = std::max(begin, m_way);
            const double last = std::min(begin + RingLayer::dash, end);
            if (first < last)
                fill(from + (to - from) * ((first - m_way) / length),
                     from + (to - from) * ((last - m_way) / length));
        }
        m_way = end;
    }

private:
    void fill(QPointF from, QPointF to)
    {
        const QPointF first = m_toPixels.map(from);
        const QPointF last = m_toPixels.map(to);
        const bool isLevel = std::abs(first.y() - last.y()) < std::abs(first.x() - last.x());
        const double half = m_pixels / 2;
        QRectF pixels(QPointF(std::min(first.x(), last.x()), std::min(first.y(), last.y())),
                      QPointF(std::max(first.x(), last.x()), std::max(first.y(), last.y())));
        pixels.adjust(isLevel ? 0 : -half, isLevel ? -half : 0, isLevel ? 0 : half,
                      isLevel ? half : 0);
        const QPointF topLeft(std::round(pixels.left()), std::round(pixels.top()));
        const QPointF bottomRight(std::round(pixels.right()), std::round(pixels.bottom()));
        const QTransform world = m_painter.worldTransform();
        m_painter.resetTransform();
        m_painter.fillRect(QRectF(topLeft / m_ratio, bottomRight / m_ratio), m_color);
        m_painter.setWorldTransform(world);
    }

    QPainter &m_painter;
    QTransform m_toPixels;
    double m_ratio;
    double m_pixels;
    QPen m_pen;
    QColor m_color;
    double m_way = 0;
};

} // namespace

QPainterPath RingLayer::ring(QSizeF size, double radius)
{
    QPainterPath path;
    path.addRoundedRect(QRectF({0, 0}, size).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    return path;
}

void RingLayer::setRing(double cornerRadius, const QColor &line)
{
    m_radius = cornerRadius;
    m_line = line;
    setPath(ring(bounds(), cornerRadius));
    setStroke(dashedPen(line));
}

void RingLayer::draw(QPainter &painter, QSizeF size, double scale) const
{
    const double least = 2 * m_radius + 2;
    if (size.width() > least && size.height() > least)
        drawDashes(painter, size, scale);
    else
        ShapeLayer::draw(painter, size, scale);
}

void RingLayer::drawDashes(QPainter &painter, QSizeF size, double scale) const
{
    if (fillColor().alpha() != 0)
        painter.fillPath(ring(size, m_radius), fillColor());
    const QRectF line = QRectF({0, 0}, size).adjusted(0.5, 0.5, -0.5, -0.5);
    const double r = m_radius;
    const double left = line.left();
    const double right = line.right();
    const double low = line.top();
    const double high = line.bottom();
    // In the order of `QPainterPath::addRoundedRect`, so that dashes lie as if that path were
    // stroked.
    DashWalk walk(painter, m_line, scale);
    walk.corner({left, low}, r, 180);
    walk.straight({left + r, low}, {right - r, low});
    walk.corner({right - 2 * r, low}, r, 90);
    walk.straight({right, low + r}, {right, high - r});
    walk.corner({right - 2 * r, high - 2 * r}, r, 0);
    walk.straight({right - r, high}, {left + r, high});
    walk.corner({left, high - 2 * r}, r, 270);
    walk.straight({left, high - r}, {left, low + r});
}

} // namespace corvane
