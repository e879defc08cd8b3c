#pragma once

#include "shelf/bar/view_all_layout.h"
#include "shelf/drawing/bitmap_layer.h"
#include "shelf/drawing/shape_layer.h"
#include "shelf/drawing/text_layer.h"

namespace corvane {

class DropItem;
struct Theme;

/// The layers of one item in the view-all bar. It keeps only the item's picture, so that the memory
/// of an item that has left the shelf is freed.
class ViewAllTile {
public:
    ViewAllTile(LayerTree &tree, Layer &superlayer, const Theme &theme);

    void show(const DropItem &item, const ViewAllLayout::Tile &layout);

private:
    void showThumbnail(const DropItem &item);

    const Theme &m_theme;
    Layer m_root;
    BitmapLayer m_thumb;
    ShapeLayer m_ring;
    BitmapLayer m_check;
    TextLayer m_caption;
};

/// The font of an item's title.
const QFont &captionFont(const Theme &theme);

} // namespace corvane
