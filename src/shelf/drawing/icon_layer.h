#pragma once

#include "shelf/drawing/bitmap_layer.h"
#include "shelf/drawing/stroke_icon.h"

namespace corvane {

/// A layer that shows an icon in its middle.
class IconLayer : public BitmapLayer {
public:
    /// The line width of icons on controls, in points.
    static constexpr double controlWeight = 1.3;

    using BitmapLayer::BitmapLayer;

    /// `side` is the bitmap's, `inset` the free space inside it on each side, `weight` the line's
    /// width; all in points.
    void setIcon(StrokeIcon icon, double side, double inset, const QColor &tint,
                 double weight = controlWeight);
};

} // namespace corvane
