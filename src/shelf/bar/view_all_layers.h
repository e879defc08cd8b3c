#pragma once

#include "shelf/arrow_layers.h"
#include "shelf/bar/view_all_tile.h"
#include "shelf/drawing/bitmap_layer.h"
#include "shelf/drawing/glass_background.h"
#include "shelf/drawing/icon_layer.h"
#include "shelf/drawing/keyboard_ring.h"
#include "shelf/drawing/text_layer.h"

#include <QPainterPath>

#include <array>
#include <memory>
#include <span>
#include <vector>

namespace corvane {

class DropItem;
struct Theme;

/// The layers of the view-all bar. A layout is applied at once, without motion. The tree and the
/// theme must outlive it.
class ViewAllLayers {
public:
    /// The bar's, in points.
    static constexpr double cornerRadius = 20;

    ViewAllLayers(LayerTree &tree, const Theme &theme);

    /// `page` are the items shown, one for each tile of the layout. Layers of tiles are reused from
    /// page to page; missing ones are made, and superfluous ones removed at the end.
    void apply(const ViewAllLayout &layout, std::span<const DropItem> page);
    /// A ring around what the keyboard is on; none for none.
    void showFocus(const std::optional<QRectF> &ring) { m_keyboardRing.show(ring); }
    std::size_t tileCount() const { return m_tiles.size(); }
    void render(QPainter &painter, double scale);
    /// The background and the layer with the content; together they contain all other layers.
    std::array<const Layer *, 2> roots() const { return {m_glass.get(), &m_contentHost}; }

    static QPainterPath outline(const QRectF &bounds);

private:
    void setUp();
    void syncTiles(std::size_t count);
    void apply(ArrowLayers &arrow, const ViewAllLayout::Arrow &layout);
    void applyActions(const ViewAllLayout &layout);

    LayerTree &m_tree;
    const Theme &m_theme;
    std::unique_ptr<GlassBackground> m_glass;
    Layer m_contentHost;
    Layer m_content;
    ArrowLayers m_leftArrow;
    ArrowLayers m_rightArrow;
    BitmapLayer m_selectAllBox;
    TextLayer m_selectAllLabel;
    IconLayer m_copyButton;
    IconLayer m_trashButton;
    KeyboardRing m_keyboardRing;
    // Last, so that tiles are destroyed before the layer that contains them.
    std::vector<std::unique_ptr<ViewAllTile>> m_tiles;
};

} // namespace corvane
