#pragma once

#include "shelf/drawing/shape_layer.h"

namespace corvane {

/// A dashed line with round corners inside its bounds. Dashes of the straight parts are filled as
/// rectangles of whole pixels, because a rasteriser takes longer for many thin dashes than for one
/// large area. Where the bounds leave no room for straight parts, the path is stroked as in any
/// shape layer.
class RingLayer : public ShapeLayer {
public:
    using ShapeLayer::ShapeLayer;

    /// Lengths in points.
    static constexpr double dash = 5;
    static constexpr double gap = 4;

    /// Sets the path, for the present bounds, and the dashed line's colour. `cornerRadius` in
    /// points.
    void setRing(double cornerRadius, const QColor &line);

    /// What `draw` paints where there are straight parts.
    void drawDashes(QPainter &painter, QSizeF size, double scale) const;

protected:
    void draw(QPainter &painter, QSizeF size, double scale) const override;

private:
    static QPainterPath ring(QSizeF size, double radius);

    double m_radius = 0;
    QColor m_line;
};

} // namespace corvane
