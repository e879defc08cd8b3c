#pragma once

#include "shelf/drawing/shape_layer.h"

#include <memory>
#include <optional>

namespace corvane {

struct Theme;

/// The ring around a control that has the keyboard. Its layer is made when it is first shown, which
/// for most people is never; it is shown at once, without motion. What it is given must outlive it.
class KeyboardRing {
public:
    KeyboardRing(LayerTree &tree, Layer &superlayer, const Theme &theme)
        : m_tree(tree)
        , m_superlayer(superlayer)
        , m_theme(theme)
    {
    }

    /// In the superlayer's coordinates; none hides it.
    void show(const std::optional<QRectF> &frame);
    bool isShown() const { return m_layer && m_layer->opacity() > 0; }

private:
    LayerTree &m_tree;
    Layer &m_superlayer;
    const Theme &m_theme;
    std::unique_ptr<ShapeLayer> m_layer;
};

} // namespace corvane
