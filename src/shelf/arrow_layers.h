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

    /// Points to where the next items come from.
    void show(StrokeIcon caretIcon, const QColor &tint) { caret.setIcon(caretIcon, 10, 0.5, tint); }

    Layer plate;
    IconLayer caret;
};

} // namespace corvane
