#include "shelf/bar/view_all_layers.h"

#include "core/drop_item.h"
#include "shelf/drawing/checkbox_renderer.h"
#include "shelf/drawing/theme.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace corvane {

namespace {

constexpr double buttonBorderRadius = 5;
constexpr double buttonBorderOutset = 3;

void apply(Layer &layer, const ViewAllLayout::Button &layout)
{
    layer.setFrame(layout.frame);
    layer.setOpacity(layout.opacity);
}

} // namespace

ViewAllLayers::ViewAllLayers(LayerTree &tree, const Theme &theme)
    : m_tree(tree)
    , m_theme(theme)
    , m_glass(GlassBackground::make(tree, cornerRadius))
    , m_contentHost(tree)
    , m_content(tree)
    , m_leftArrow(tree)
    , m_rightArrow(tree)
    , m_selectAllBox(tree)
    , m_selectAllLabel(tree)
    , m_copyButton(tree)
    , m_trashButton(tree)
    , m_keyboardRing(tree, m_content, theme)
{
    setUp();
}

void ViewAllLayers::setUp()
{
    m_contentHost.addSublayer(m_content);
    const std::array<Layer *, 6> inOrder{&m_leftArrow.plate, &m_rightArrow.plate, &m_selectAllBox,
                                         &m_selectAllLabel,  &m_copyButton,       &m_trashButton};
    for (Layer *layer : inOrder)
        m_content.addSublayer(*layer);
    m_leftArrow.plate.addSublayer(m_leftArrow.caret);
    m_rightArrow.plate.addSublayer(m_rightArrow.caret);

    const QColor border = m_theme.palette.border;
    m_glass->setBorder({border, cornerRadius, 0});
    for (Layer *button :
         {static_cast<Layer *>(&m_copyButton), static_cast<Layer *>(&m_trashButton)})
        button->setBorder({border, buttonBorderRadius, buttonBorderOutset});
    const QColor tint = m_theme.palette.emphasis;
    const double side = view_all_layout::buttonSide;
    m_copyButton.setIcon(StrokeIcon::Copy, side, 1, tint);
    m_trashButton.setIcon(StrokeIcon::Trash, side, 1, tint);
    m_selectAllLabel.setFont(m_theme.typography.secondary);
    m_selectAllLabel.setColor(m_theme.palette.control);
}

void ViewAllLayers::apply(const ViewAllLayout &layout, std::span<const DropItem> page)
{
    const QRectF bounds({0, 0}, layout.size);
    m_glass->setFrame(bounds);
    m_contentHost.setFrame(bounds);
    m_content.setFrame(bounds);
    const std::size_t count = std::min(page.size(), layout.tiles.size());
    syncTiles(count);
    for (std::size_t i = 0; i < count; ++i)
        m_tiles[i]->show(page[i], layout.tiles[i]);
    apply(m_leftArrow, layout.leftArrow);
    apply(m_rightArrow, layout.rightArrow);
    const QColor tint = m_theme.palette.emphasis;
    const bool isMirrored = layout.isMirrored;
    m_leftArrow.show(isMirrored ? StrokeIcon::CaretRight : StrokeIcon::CaretLeft, tint);
    m_rightArrow.show(isMirrored ? StrokeIcon::CaretLeft : StrokeIcon::CaretRight, tint);
    applyActions(layout);
}

void ViewAllLayers::syncTiles(std::size_t count)
{
    if (m_tiles.size() > count)
        m_tiles.resize(count);
    while (m_tiles.size() < count)
        m_tiles.push_back(std::make_unique<ViewAllTile>(m_tree, m_content, m_theme));
}

void ViewAllLayers::apply(ArrowLayers &arrow, const ViewAllLayout::Arrow &layout)
{
    const Theme::Palette &palette = m_theme.palette;
    using Fill = ViewAllLayout::Fill;
    arrow.plate.setFrame(layout.frame);
    arrow.plate.setCornerRadius(layout.frame.width() / 2);
    arrow.plate.setBorder({palette.border, layout.frame.width() / 2, 0});
    arrow.plate.setOpacity(layout.opacity);
    arrow.plate.setBackgroundColor(layout.fill == Fill::Off         ? palette.buttonFillOff
                                       : layout.fill == Fill::Hover ? palette.buttonFillHover
                                                                    : palette.buttonFill);
    arrow.caret.setFrame(QRectF({0, 0}, layout.frame.size()));
}

void ViewAllLayers::applyActions(const ViewAllLayout &layout)
{
    const bool isChecked = layout.isEverythingSelected;
    corvane::apply(m_selectAllBox, layout.selectAllBox);
    m_selectAllBox.setContents(isChecked ? QStringLiteral("checked") : QStringLiteral("unchecked"),
                               [isChecked](double scale) {
                                   return checkbox_renderer::image(
                                       isChecked, view_all_layout::checkSide, scale);
                               });
    m_selectAllLabel.setFrame(layout.selectAllLabel);
    m_selectAllLabel.setAlignment(layout.isMirrored ? Qt::AlignRight : Qt::AlignLeft);
    m_selectAllLabel.setTextDirection(m_theme.direction);
    m_selectAllLabel.setString(layout.selectionText);
    corvane::apply(m_copyButton, layout.copyButton);
    corvane::apply(m_trashButton, layout.trashButton);
}

void ViewAllLayers::render(QPainter &painter, double scale)
{
    m_glass->render(painter, scale);
    m_contentHost.render(painter, scale);
}

QPainterPath ViewAllLayers::outline(const QRectF &bounds)
{
    QPainterPath outline;
    outline.addRoundedRect(bounds, cornerRadius, cornerRadius);
    return outline;
}

} // namespace corvane
