#pragma once

#include "shelf/drawing/icon_layer.h"

namespace corvane {

/// A round button with a caret on it, which pages.
struct ArrowLayers {
    explicit ArrowLayers(LayerTree &tree)
        : plate(tree)
        , caret(tree)
    {
    }

    Layer plate;
    IconLayer caret;
};

} // namespace corvane
