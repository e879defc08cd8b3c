#pragma once

#include "shelf/drawing/icon_layer.h"
#include "shelf/drawing/shape_layer.h"
#include "shelf/drawing/text_layer.h"
#include "shelf/shelf_layout.h"

namespace corvane {

struct Theme;

/// The layers of one visible item.
class ShelfCell {
public:
    ShelfCell(LayerTree &tree, Layer &superlayer, const Theme &theme,
              const LayerAnimator &animator);

    /// How the cell looks, apart from its place.
    struct Look {
        bool isCarousel = false;
        bool isMirrored = false;
        bool isFocused = false;
        bool showsBadge = false;
        /// The item is being dragged out, or was let go and its target has not said how that ended.
        bool isDragged = false;
        /// Shown in place of the subtitle.
        QString flash;
    };
    void fill(const DropItem &item, const Look &look);
    void layout(const ShelfLayout::Cell &layout);

    int itemIndex() const { return m_itemIndex; }

private:
    const Theme &m_theme;
    int m_itemIndex = 0;
    QSizeF m_thumbSize;
    Layer m_root;
    BitmapLayer m_thumb;
    TextLayer m_title;
    TextLayer m_subtitle;
    ShapeLayer m_focusRing;
    Layer m_badge;
    IconLayer m_badgeCross;
    std::optional<DropItem> m_item;

    void showThumbnail();
};

/// The font of an item's title.
const QFont &titleFont(const Theme &theme, bool isCarousel);

/// The picture for an item in a tile of `side` points: its thumbnail, fitted, or its glyph; at
/// `scale` pixels per point.
QImage thumbnailContents(double side, const DropItem &item, const Theme &theme, double scale);

} // namespace corvane
