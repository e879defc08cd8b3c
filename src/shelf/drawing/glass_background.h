#pragma once

#include "shelf/drawing/layer.h"

#include <memory>

namespace corvane {

/// The background of a floating bar: nearly opaque black with a thin bright edge, which can be read
/// on any wallpaper, with and without a compositing manager.
class GlassBackground : public Layer {
public:
    static std::unique_ptr<GlassBackground> make(LayerTree &tree, double cornerRadius);

protected:
    using Layer::Layer;
    void draw(QPainter &painter, QSizeF size, double scale) const override;
};

} // namespace corvane
