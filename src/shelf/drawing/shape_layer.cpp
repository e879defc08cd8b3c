#include "shelf/drawing/shape_layer.h"

#include <QPainter>

namespace corvane {

namespace {

MovingValue::Components coordinates(const QPainterPath &path)
{
    MovingValue::Components values;
    values.reserve(static_cast<std::size_t>(path.elementCount()) * 2);
    for (int i = 0; i < path.elementCount(); ++i) {
        values.push_back(path.elementAt(i).x);
        values.push_back(path.elementAt(i).y);
    }
    return values;
}

bool areOfOneBuild(const QPainterPath &left, const QPainterPath &right)
{
    if (left.elementCount() != right.elementCount())
        return false;
    for (int i = 0; i < left.elementCount(); ++i) {
        if (left.elementAt(i).type != right.elementAt(i).type)
            return false;
    }
    return true;
}

} // namespace

void ShapeLayer::setPath(const QPainterPath &path)
{
    if (path == m_path)
        return;
    const bool moves = areOfOneBuild(m_path, path);
    const auto before = moves ? coordinates(m_path) : MovingValue::Components{};
    m_path = path;
    changed(Key::Path, before, coordinates(m_path));
}

QPainterPath ShapeLayer::presentedPath() const
{
    if (!isMoving())
        return m_path;
    const auto values = presented(Key::Path, coordinates(m_path));
    QPainterPath path = m_path;
    for (int i = 0; i < path.elementCount(); ++i) {
        const auto at = static_cast<std::size_t>(i) * 2;
        path.setElementPositionAt(i, values[at], values[at + 1]);
    }
    return path;
}

void ShapeLayer::setFillColor(const QColor &color)
{
    if (m_fillColor == color)
        return;
    m_fillColor = color;
    needsDisplay();
}

void ShapeLayer::setStroke(const QPen &pen)
{
    if (m_pen == pen)
        return;
    m_pen = pen;
    needsDisplay();
}

void ShapeLayer::draw(QPainter &painter, QSizeF size, double scale) const
{
    Layer::draw(painter, size, scale);
    drawShape(painter, presentedPath());
}

void ShapeLayer::drawShape(QPainter &painter, const QPainterPath &path) const
{
    painter.setPen(m_pen);
    painter.setBrush(m_fillColor.alpha() == 0 ? QBrush(Qt::NoBrush) : QBrush(m_fillColor));
    painter.drawPath(path);
}

} // namespace corvane
