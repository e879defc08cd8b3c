#pragma once

#include "shelf/drawing/shape_layer.h"

namespace corvane {

/// A dashed line with round corners along its bounds. The dashes of the straight parts are filled
/// on whole pixels: a rasteriser takes longer for each thin dash than for a large area. Where there
/// is no room for straight parts it is the shape layer that it is.
class RingLayer : public ShapeLayer {
public:
    using ShapeLayer::ShapeLayer;

    static constexpr double dash = 5;
    static constexpr double gap = 4;

    /// The path of the line, which lies inside the bounds, and the line itself.
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
