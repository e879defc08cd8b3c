#pragma once

#include "shelf/drawing/layer.h"

#include <memory>

namespace corvane {

/// The ground of a floating bar: nearly opaque black with a thin bright edge, legible on any
/// wallpaper whether or not the desktop blends windows.
class GlassBackground : public Layer {
public:
    static std::unique_ptr<GlassBackground> make(LayerTree &tree, double cornerRadius);

protected:
    using Layer::Layer;
    void draw(QPainter &painter, QSizeF size, double scale) const override;
};

} // namespace corvane
