#pragma once

#include "shelf/drawing/shape_layer.h"
#include "shelf/drawing/sliced_picture.h"

namespace corvane {

/// The body's outline, filled or stroked: a shape layer whose path is `pillPath` of its bounds and
/// whose colours do not change. While it changes its size it is painted as a `SlicedPicture`.
class PillLayer : public ShapeLayer {
public:
    explicit PillLayer(LayerTree &tree);

protected:
    void draw(QPainter &painter, QSizeF size, double scale) const override;

private:
    mutable SlicedPicture m_picture;
};

} // namespace corvane
