#pragma once

#include "shelf/drawing/bitmap_layer.h"
#include "shelf/drawing/stroke_icon.h"

namespace corvane {

/// A layer that shows an icon in its middle.
class IconLayer : public BitmapLayer {
public:
    static constexpr double controlWeight = 1.3;

    using BitmapLayer::BitmapLayer;

    /// `side` and `inset` are those of the icon's bitmap.
    void setIcon(StrokeIcon icon, double side, double inset, const QColor &tint,
                 double weight = controlWeight);
};

} // namespace corvane
