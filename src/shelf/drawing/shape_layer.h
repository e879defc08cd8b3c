#pragma once

#include "shelf/drawing/layer.h"

#include <QPen>

namespace corvane {

/// A layer that shows a path, filled, stroked or both. A new path with the same sequence of
/// elements is moved to point by point; any other is shown at once.
class ShapeLayer : public Layer {
public:
    using Layer::Layer;

    QPainterPath path() const { return m_path; }
    void setPath(const QPainterPath &path);
    /// The path as it is painted now.
    QPainterPath presentedPath() const;

    QColor fillColor() const { return m_fillColor; }
    void setFillColor(const QColor &color);
    QPen stroke() const { return m_pen; }
    void setStroke(const QPen &pen);

protected:
    void draw(QPainter &painter, QSizeF size, double scale) const override;
    /// A path with this layer's pen and colour.
    void drawShape(QPainter &painter, const QPainterPath &path) const;

private:
    QPainterPath m_path;
    QColor m_fillColor = Qt::transparent;
    QPen m_pen = Qt::NoPen;
};

} // namespace corvane
