#include "shelf/drawing/pill_layer.h"

#include "shelf/drawing/pill_path.h"

namespace corvane {

namespace {

constexpr double side = bodyFlareRadius + bodyCornerRadius;

} // namespace

PillLayer::PillLayer(LayerTree &tree)
    : ShapeLayer(tree)
    , m_picture({side, bodyFlareRadius, side, bodyCornerRadius},
                [this](QPainter &painter, QSizeF size) {
                    drawShape(painter, pillPath(size, bodyCornerRadius));
                })
{
}

void PillLayer::draw(QPainter &painter, QSizeF size, double scale) const
{
    if (!isMoving() || !m_picture.draw(painter, size, scale))
        ShapeLayer::draw(painter, size, scale);
}

} // namespace corvane
