#pragma once

#include "shelf/drawing/icon_layer.h"

namespace corvane {

/// The layers of a round button with a caret on it, which pages the carousel or the bar.
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
