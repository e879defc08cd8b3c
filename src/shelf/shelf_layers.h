#pragma once

#include "shelf/arrow_layers.h"
#include "shelf/drawing/icon_layer.h"
#include "shelf/drawing/keyboard_ring.h"
#include "shelf/drawing/pill_layer.h"
#include "shelf/drawing/ring_layer.h"
#include "shelf/drawing/shape_layer.h"
#include "shelf/drawing/text_layer.h"
#include "shelf/shelf_cell.h"
#include "shelf/shelf_hit_test.h"
#include "shelf/shelf_layout.h"

#include <QImage>
#include <QList>
#include <QUuid>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace corvane {

/// Everything that decides how the shelf looks at one moment.
struct ShelfLook {
    ShelfSnapshot snapshot;
    ShelfLayout layout;
    ShelfHit hovered;
    /// The control that the keyboard is on; otherwise it is on the focused item.
    ShelfHit keyboardFocus;
    bool isHovering = false;
    bool isDragTargeted = false;
    /// A short message shown in place of the details; empty for none.
    QString flashMessage;
    /// The item that is being dragged out.
    std::optional<QUuid> draggedItem;
    /// The items that were let go and whose targets have not said how that ended
    /// (`DragSource::leaving`).
    QList<QUuid> leavingItems;
};

/// The layers that the shelf is painted with. `apply` gives them a look; the animator decides how
/// they move to it.
///
/// Coordinates: the origin is the top centre of the panel, from which the body hangs, so that the
/// body does not move when the panel changes its size.
class ShelfLayers {
public:
    ShelfLayers(LayerTree &tree, const Theme &theme, const LayerAnimator &animator);

    /// Applies the look, and slides the body down from the screen's edge or up behind it. While the
    /// body is out of sight everything else is applied without motion: only the slide is seen.
    void apply(const ShelfLook &look);
    void paint(QPainter &painter, double scale);

    /// The body's outline as it is painted now.
    QPainterPath presentedOutline() const;
    std::size_t cellCount() const { return m_cells.size(); }
    /// The layer that contains all others.
    const Layer &root() const { return m_body; }
    bool showsKeyboardRing() const { return m_keyboardRing.isShown(); }

private:
    void paintShifted(QPainter &painter, double scale);
    /// Whether the body is above the screen's edge and not moving.
    bool isAway() const;
    void syncCellCount(std::size_t count);
    void applyBody(const ShelfLook &look);
    void applyDropTarget(const ShelfLook &look);
    void applyCells(const ShelfLook &look);
    void applyControls(const ShelfLook &look);
    void applyButton(IconLayer &layer, const std::optional<QRectF> &frame, bool isHovered,
                     const ShelfLook &look);
    void applyArrow(std::size_t side, const ShelfLook &look);

    /// Darkens the end of a row of cells that does not fit.
    class EdgeFade : public Layer {
    public:
        using Layer::Layer;

        /// At the left end, where the row begins at the right.
        void setMirrored(bool isMirrored);

    protected:
        void draw(QPainter &painter, QSizeF size, double scale) const override;

    private:
        bool m_isMirrored = false;
    };

    LayerTree &m_tree;
    const Theme &m_theme;
    const LayerAnimator &m_animator;
    Layer m_body;
    PillLayer m_shelf;
    RingLayer m_ring;
    TextLayer m_hint;
    Layer m_hoverPlate;
    Layer m_divider;
    Layer m_rowArea;
    Layer m_cellRow;
    EdgeFade m_edgeFade;
    ArrowLayers m_leftArrow;
    ArrowLayers m_rightArrow;
    std::array<IconLayer, 3> m_actionButtons;
    IconLayer m_viewAllButton;
    TextLayer m_flash;
    PillLayer m_hairline;
    KeyboardRing m_keyboardRing;
    /// The picture of the body while it slides, with the scale and tree version that it was made
    /// for.
    QImage m_picture;
    double m_pictureScale = 0;
    std::uint64_t m_pictureVersion = 0;
    // Last, so that cells are destroyed before the layers that contain them.
    std::vector<std::unique_ptr<ShelfCell>> m_cells;
};

} // namespace corvane
