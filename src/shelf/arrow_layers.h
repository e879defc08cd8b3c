#pragma once

#include "shelf/bitmap_layer.h"

namespace corvane {

/// A round button with a caret on it, which pages.
struct ArrowLayers {
    explicit ArrowLayers(LayerTree &tree)
        : plate(tree)
        , caret(tree)
    {
    }

    Layer plate;
    BitmapLayer caret;
};

} // namespace corvane
