#include "shelf/shelf_layers.h"

#include "platform/base/geometry.h"
#include "shelf/drawing/drawing.h"
#include "shelf/drawing/layer_animator.h"
#include "shelf/drawing/pill_path.h"
#include "shelf/drawing/theme.h"
#include "shelf/mirrored.h"
#include "shelf/shelf_focus.h"

#include <QCoreApplication>
#include <QLinearGradient>
#include <QPainter>

#include <cmath>
#include <utility>

namespace corvane {

namespace {

constexpr double edgeFadeWidth = 36;
constexpr double buttonBorderRadius = 5;
constexpr double buttonBorderOutset = 1;

template<typename Hit>
bool isHit(const ShelfHit &hovered, Hit wanted)
{
    const Hit *hit = std::get_if<Hit>(&hovered);
    return hit && *hit == wanted;
}

/// The index of the item whose cell or badge the pointer is on.
std::optional<int> hoveredCell(const ShelfHit &hovered)
{
    if (const auto *cell = std::get_if<shelf_hit::Cell>(&hovered))
        return cell->itemIndex;
    if (const auto *badge = std::get_if<shelf_hit::Badge>(&hovered))
        return badge->itemIndex;
    return std::nullopt;
}

} // namespace

ShelfLayers::ShelfLayers(LayerTree &tree, const Theme &theme, const LayerAnimator &animator)
    : m_tree(tree)
    , m_theme(theme)
    , m_animator(animator)
    , m_body(tree)
    , m_shelf(tree)
    , m_ring(tree)
    , m_hint(tree)
    , m_hoverPlate(tree)
    , m_divider(tree)
    , m_rowArea(tree)
    , m_cellRow(tree)
    , m_edgeFade(tree)
    , m_leftArrow(tree)
    , m_rightArrow(tree)
    , m_actionButtons{IconLayer(tree), IconLayer(tree), IconLayer(tree)}
    , m_viewAllButton(tree)
    , m_flash(tree)
    , m_hairline(tree)
    , m_keyboardRing(tree, m_body, theme)
{
    m_body.setAnchorPoint({0.5, 1});
    const std::array<Layer *, 13> inOrder{&m_shelf,
                                          &m_ring,
                                          &m_hint,
                                          &m_hoverPlate,
                                          &m_divider,
                                          &m_rowArea,
                                          &m_leftArrow.plate,
                                          &m_rightArrow.plate,
                                          &m_actionButtons[0],
                                          &m_actionButtons[1],
                                          &m_actionButtons[2],
                                          &m_viewAllButton,
                                          &m_flash};
    m_body.setDelegate(&animator);
    for (Layer *layer : inOrder) {
        m_body.addSublayer(*layer);
        layer->setDelegate(&animator);
    }
    m_body.addSublayer(m_hairline);
    m_hairline.setDelegate(&animator);
    for (Layer *layer : {&m_cellRow, static_cast<Layer *>(&m_edgeFade)}) {
        m_rowArea.addSublayer(*layer);
        layer->setDelegate(&animator);
    }
    m_leftArrow.plate.addSublayer(m_leftArrow.caret);
    m_rightArrow.plate.addSublayer(m_rightArrow.caret);

    const Theme::Palette &palette = theme.palette;
    m_shelf.setFillColor(palette.fill);
    // Half of it lies outside of the panel. The half that is seen is a whole point where contrast
    // is wanted: half a point is grey, like many a wallpaper.
    m_hairline.setStroke(QPen(palette.hairline, theme.hasMoreContrast() ? 2 : 1));
    m_hint.setFont(theme.typography.hint);
    m_hint.setAlignment(Qt::AlignHCenter);
    m_hoverPlate.setBackgroundColor(palette.controlPlate);
    m_hoverPlate.setCornerRadius(7);
    m_hoverPlate.setOpacity(0);
    m_divider.setBackgroundColor(palette.divider);
    // While the body is still growing, cells at their final places must not be seen beyond its
    // edge.
    m_rowArea.setClipsSublayers(true);
    m_flash.setFont(theme.typography.hint);
    m_flash.setAlignment(Qt::AlignHCenter);
    m_flash.setColor(palette.primary);
    m_flash.setOpacity(0);

    for (IconLayer *button :
         {&m_actionButtons[0], &m_actionButtons[1], &m_actionButtons[2], &m_viewAllButton})
        button->setBorder({palette.border, buttonBorderRadius, buttonBorderOutset});
    m_actionButtons[0].setIcon(StrokeIcon::Eye, 19, 1.5, palette.emphasis);
    m_actionButtons[1].setIcon(StrokeIcon::Copy, 19, 2, palette.emphasis);
    m_actionButtons[2].setIcon(StrokeIcon::Trash, 19, 2, palette.emphasis);
    m_viewAllButton.setIcon(StrokeIcon::SquaresFour, 19, 1.5, palette.emphasis);
}

void ShelfLayers::apply(const ShelfLook &look)
{
    const double height = look.layout.size.height();
    {
        std::optional<LayerTree::WithoutMotion> still;
        if (isAway()) {
            still.emplace(m_tree);
            m_body.setTransform({0, height});
        }
        applyBody(look);
        applyDropTarget(look);
        applyCells(look);
        applyControls(look);
    }
    m_body.setTransform({0, look.snapshot.state == ShelfState::Idle ? height : 0});
    m_body.setMovesBeforePainted();
}

void ShelfLayers::paint(QPainter &painter, double scale)
{
    if (m_tree.onlyShifts(m_body)) {
        paintShifted(painter, scale);
        return;
    }
    m_picture = {};
    m_body.render(painter, scale);
}

/// While the body only slides, it is painted to a picture once, which is then drawn at each frame's
/// place.
void ShelfLayers::paintShifted(QPainter &painter, double scale)
{
    // In points: half of the edge line lies outside the bounds.
    constexpr double margin = 1;
    const QPointF corner = m_body.presentedFrame().topLeft() - QPointF(margin, margin);
    if (m_picture.isNull() || m_pictureVersion != m_tree.version() || m_pictureScale != scale) {
        const QSizeF size = m_body.bounds() + QSizeF(2 * margin, 2 * margin);
        m_picture = transparentBitmap(size, scale);
        m_pictureScale = scale;
        m_pictureVersion = m_tree.version();
        QPainter picture(&m_picture);
        picture.setRenderHint(QPainter::Antialiasing);
        picture.translate(0, size.height());
        picture.scale(1, -1);
        picture.translate(-corner);
        m_body.render(picture, scale);
    }
    drawOnPixels(painter, m_picture, corner);
}

void ShelfLayers::syncCellCount(std::size_t count)
{
    while (m_cells.size() > count)
        m_cells.pop_back();
    while (m_cells.size() < count)
        m_cells.push_back(std::make_unique<ShelfCell>(m_tree, m_cellRow, m_theme, m_animator));
}

void ShelfLayers::applyBody(const ShelfLook &look)
{
    const QSizeF size = look.layout.size;
    m_body.setBounds(size);
    m_body.setPosition({0, 0});
    const QPainterPath outline = pillPath(size, bodyCornerRadius);
    for (PillLayer *layer : {&m_shelf, &m_hairline}) {
        layer->setFrame(QRectF({0, 0}, size));
        layer->setPath(outline);
    }
}

void ShelfLayers::applyDropTarget(const ShelfLook &look)
{
    const ShelfSnapshot &snapshot = look.snapshot;
    const Theme::Palette &palette = m_theme.palette;
    const bool isOpen = snapshot.state != ShelfState::Idle;

    m_ring.setFrame(look.layout.ring);
    m_ring.setRing(look.layout.ringCornerRadius,
                   look.isDragTargeted ? palette.dropRingActive : palette.thumbRing);
    m_ring.setFillColor(look.isDragTargeted ? palette.buttonFillOff : QColor(Qt::transparent));
    m_ring.setOpacity(isOpen && snapshot.looksLikeDropTarget() ? 1 : 0);

    m_hint.setFrame(look.layout.hint);
    m_hint.setTextDirection(m_theme.direction);
    m_hint.setString(look.isDragTargeted
                         ? QCoreApplication::translate("ShelfView", "Release to hold")
                         : QCoreApplication::translate("ShelfView", "Drop to hold"));
    m_hint.setColor(look.isDragTargeted ? palette.primary : palette.secondary);
    m_hint.setOpacity(isOpen && snapshot.visible.empty() ? 1 : 0);
}

void ShelfLayers::applyCells(const ShelfLook &look)
{
    const ShelfSnapshot &snapshot = look.snapshot;
    const QSizeF size = look.layout.size;
    const bool flashesOverCells = snapshot.isCarousel() && !look.flashMessage.isEmpty();
    syncCellCount(snapshot.visible.size());
    const QSizeF row(size.width() - 2 * bodyFlareRadius, size.height());
    m_rowArea.setFrame({{bodyFlareRadius, 0}, row});
    m_cellRow.setFrame({{0, 0}, row});
    m_cellRow.setOpacity(flashesOverCells ? 0.14 : 1);

    const auto badgeIndex = snapshot.isCarousel() ? hoveredCell(look.hovered) : std::nullopt;
    for (std::size_t i = 0; i < m_cells.size(); ++i) {
        const auto &[index, item] = snapshot.visible[i];
        ShelfCell::Look cellLook;
        cellLook.isCarousel = snapshot.isCarousel();
        cellLook.isMirrored = look.layout.isMirrored;
        cellLook.isFocused = index == snapshot.focusedIndex;
        cellLook.showsBadge = badgeIndex == index;
        cellLook.isDragged = look.draggedItem == item.id() || look.leavingItems.contains(item.id());
        if (!snapshot.isCarousel())
            cellLook.flash = look.flashMessage;
        m_cells[i]->fill(item, cellLook);
        ShelfLayout::Cell layout = look.layout.cells[i];
        layout.root.translate(-bodyFlareRadius, 0);
        m_cells[i]->layout(layout);
    }

    const QRectF fade(row.width() - edgeFadeWidth, 0, edgeFadeWidth, look.layout.bodyHeight);
    m_edgeFade.setFrame(look.layout.isMirrored ? mirrored(fade, row.width()) : fade);
    m_edgeFade.setMirrored(look.layout.isMirrored);
    m_edgeFade.setOpacity(look.layout.overflows ? 1 : 0);
    m_flash.setFrame(look.layout.flash);
    m_flash.setTextDirection(m_theme.direction);
    if (flashesOverCells)
        m_flash.setString(look.flashMessage);
    m_flash.setOpacity(flashesOverCells ? 1 : 0);
}

void ShelfLayers::applyButton(IconLayer &layer, const std::optional<QRectF> &frame, bool isHovered,
                              const ShelfLook &look)
{
    if (!frame) {
        layer.setOpacity(0);
        return;
    }
    layer.setFrame(*frame);
    const double resting = look.isHovering ? 0.85 : 0.7;
    layer.setOpacity(isHovered || m_theme.hasMoreContrast() ? 1 : resting);
}

void ShelfLayers::applyArrow(std::size_t side, const ShelfLook &look)
{
    ArrowLayers &arrow = side == 0 ? m_leftArrow : m_rightArrow;
    if (!look.layout.arrows) {
        arrow.plate.setOpacity(0);
        return;
    }
    const Theme::Palette &palette = m_theme.palette;
    const QRectF frame = (*look.layout.arrows)[side];
    const bool isEnabled = side == 0 ? look.snapshot.canScrollBack : look.snapshot.canScrollForward;
    const bool isHovered
        = isHit(look.hovered, shelf_hit::Arrow{side == 0 ? ArrowSide::Left : ArrowSide::Right});
    arrow.plate.setFrame(frame);
    arrow.plate.setCornerRadius(frame.width() / 2);
    arrow.plate.setBorder({palette.border, frame.width() / 2, 0});
    arrow.plate.setBackgroundColor(!isEnabled      ? palette.buttonFillOff
                                       : isHovered ? palette.buttonFillHover
                                                   : palette.buttonFill);
    arrow.plate.setOpacity(1);
    arrow.caret.setFrame(QRectF({0, 0}, frame.size()));
    arrow.show((side == 0) != look.layout.isMirrored ? StrokeIcon::CaretLeft
                                                     : StrokeIcon::CaretRight,
               palette.emphasis);
    arrow.caret.setOpacity(isEnabled ? 1 : 0.28);
}

void ShelfLayers::applyControls(const ShelfLook &look)
{
    const ShelfLayout &layout = look.layout;
    std::optional<QRectF> hoveredButton;
    for (std::size_t i = 0; i < allShelfActions.size(); ++i) {
        const bool isHovered = isHit(look.hovered, shelf_hit::Button{allShelfActions[i]});
        const auto frame
            = layout.actionButtons ? std::optional((*layout.actionButtons)[i]) : std::nullopt;
        applyButton(m_actionButtons[i], frame, isHovered, look);
        if (isHovered)
            hoveredButton = frame;
    }
    const bool viewAllHovered = isHit(look.hovered, shelf_hit::ViewAll{});
    applyButton(m_viewAllButton, layout.viewAllButton, viewAllHovered, look);
    if (viewAllHovered)
        hoveredButton = layout.viewAllButton;

    if (hoveredButton)
        m_hoverPlate.setFrame(hoverPlateFrame(*hoveredButton));
    m_hoverPlate.setOpacity(hoveredButton ? 1 : 0);
    if (layout.divider)
        m_divider.setFrame(*layout.divider);
    m_divider.setOpacity(layout.divider ? 1 : 0);
    applyArrow(0, look);
    applyArrow(1, look);
    m_keyboardRing.show(shelf_focus::ringAround(look.keyboardFocus, layout));
}

QPainterPath ShelfLayers::presentedOutline() const
{
    return m_shelf.presentedPath().translated(m_body.presentedFrame().topLeft());
}

bool ShelfLayers::isAway() const
{
    return !m_body.isMoving() && m_body.transform().dy >= m_body.bounds().height()
        && m_body.bounds().height() > 0;
}

void ShelfLayers::EdgeFade::setMirrored(bool isMirrored)
{
    if (std::exchange(m_isMirrored, isMirrored) != isMirrored)
        needsDisplay();
}

void ShelfLayers::EdgeFade::draw(QPainter &painter, QSizeF size, double /*scale*/) const
{
    QLinearGradient gradient(0, 0, size.width(), 0);
    gradient.setColorAt(0, QColor::fromRgbF(0, 0, 0, 0));
    gradient.setColorAt(0.8, Qt::black);
    // The fade must not cover the body's rounded corner and its edge line.
    QPainterPath end;
    end.addRoundedRect(QRectF(-bodyCornerRadius, 0.5, size.width() + bodyCornerRadius - 0.5,
                              size.height() + bodyCornerRadius),
                       bodyCornerRadius, bodyCornerRadius);
    painter.save();
    painter.setClipRect(QRectF({0, 0}, size), Qt::IntersectClip);
    if (m_isMirrored) {
        painter.translate(size.width(), 0);
        painter.scale(-1, 1);
    }
    painter.fillPath(end, gradient);
    painter.restore();
}

} // namespace corvane
