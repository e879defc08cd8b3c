#include "shelf/view_all_view.h"

#include "platform/geometry.h"
#include "shelf/checkbox_renderer.h"
#include "shelf/stroke_icon.h"
#include "shelf/theme.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>

namespace corvane {

namespace {

constexpr double iconWeight = 1.3;

BitmapLayer::Contents strokeIcon(StrokeIcon icon, double side, double inset, const QColor &tint)
{
    return [=](double scale) {
        return stroke_icon::image(icon, side, tint, inset, iconWeight, scale);
    };
}

} // namespace

ViewAllView::ViewAllView(const Context &context)
    : m_context(context)
    , m_tree(context.queue, context.motionPreference)
    , m_glass(GlassBackground::make(m_tree, cornerRadius))
    , m_contentHost(m_tree)
    , m_content(m_tree)
    , m_leftArrow(m_tree)
    , m_rightArrow(m_tree)
    , m_selectAllBox(m_tree)
    , m_selectAllLabel(m_tree)
    , m_copyButton(m_tree)
    , m_trashButton(m_tree)
{
    buildLayers();
    m_tree.onNeedsDisplay = [this] {
        m_context.panel.setNeedsDisplay({{0, 0}, m_context.panel.frame().size()});
    };
    relayout();
}

ViewAllView::~ViewAllView()
{
    m_tree.onNeedsDisplay = nullptr;
}

void ViewAllView::buildLayers()
{
    m_contentHost.addSublayer(m_content);
    const std::array<Layer *, 6> inOrder{&m_leftArrow.plate, &m_rightArrow.plate, &m_selectAllBox,
                                         &m_selectAllLabel,  &m_copyButton,       &m_trashButton};
    for (Layer *layer : inOrder)
        m_content.addSublayer(*layer);
    m_leftArrow.plate.addSublayer(m_leftArrow.caret);
    m_rightArrow.plate.addSublayer(m_rightArrow.caret);

    const QColor tint = m_context.theme.palette.emphasis;
    const QString key = QStringLiteral("icon");
    m_leftArrow.caret.setContents(key, strokeIcon(StrokeIcon::CaretLeft, 10, 0.5, tint));
    m_rightArrow.caret.setContents(key, strokeIcon(StrokeIcon::CaretRight, 10, 0.5, tint));
    const double side = view_all_layout::buttonSide;
    m_copyButton.setContents(key, strokeIcon(StrokeIcon::Copy, side, 1, tint));
    m_trashButton.setContents(key, strokeIcon(StrokeIcon::Trash, side, 1, tint));
    m_selectAllLabel.setFont(m_context.theme.typography.secondary);
    m_selectAllLabel.setColor(m_context.theme.palette.control);
}

int ViewAllView::itemsPerPage() const
{
    return view_all_layout::itemsPerPage(m_context.panel.frame().width());
}

view_all_layout::Range ViewAllView::visible() const
{
    return view_all_layout::visibleRange(m_offset, itemCount(), itemsPerPage());
}

void ViewAllView::apply(const QList<DropItem> &items, const QSet<QUuid> &selection, int offset)
{
    m_items = &items;
    m_selection = &selection;
    m_offset = view_all_layout::clampedOffset(offset, itemCount(), itemsPerPage());
    syncTiles();
    relayout();
    // The pointer may rest while the bar pages beneath it.
    if (findHovered())
        relayout();
}

QList<DropItem> ViewAllView::selectedInOrder() const
{
    QList<DropItem> selected;
    if (!m_items || !m_selection)
        return selected;
    std::copy_if(m_items->begin(), m_items->end(), std::back_inserter(selected),
                 [this](const DropItem &item) { return m_selection->contains(item.id()); });
    return selected;
}

void ViewAllView::syncTiles()
{
    const auto range = visible();
    const auto count = static_cast<std::size_t>(std::max(range.end - range.first, 0));
    if (m_tiles.size() > count)
        m_tiles.resize(count);
    while (m_tiles.size() < count)
        m_tiles.push_back(std::make_unique<ViewAllTile>(m_tree, m_content, m_context.theme));
}

void ViewAllView::relayout()
{
    const auto range = visible();
    ViewAllState state;
    state.size = m_context.panel.frame().size();
    state.itemCount = itemCount();
    state.selectedCount = m_selection ? static_cast<int>(m_selection->size()) : 0;
    state.offset = m_offset;
    state.hoveredControl = m_hoveredControl;
    for (int i = range.first; i < range.end; ++i) {
        const QUuid id = m_items->at(i).id();
        state.tiles.push_back({m_selection->contains(id), m_hovered == id});
    }
    m_layout = view_all_layout::layOut(state);
    applyLayout();
}

void ViewAllView::applyLayout()
{
    const QRectF bounds({0, 0}, m_layout.size);
    m_glass->setFrame(bounds);
    m_contentHost.setFrame(bounds);
    m_content.setFrame(bounds);
    const auto range = visible();
    for (std::size_t i = 0; i < m_tiles.size() && i < m_layout.tiles.size(); ++i)
        m_tiles[i]->show(m_items->at(range.first + static_cast<int>(i)), m_layout.tiles[i]);
    applyArrow(m_leftArrow, m_layout.leftArrow);
    applyArrow(m_rightArrow, m_layout.rightArrow);

    m_selectAllBox.setFrame(m_layout.selectAllBox.frame);
    m_selectAllBox.setOpacity(m_layout.selectAllBox.opacity);
    const bool isChecked = m_layout.isEverythingSelected;
    m_selectAllBox.setContents(isChecked ? QStringLiteral("checked") : QStringLiteral("unchecked"),
                               [isChecked](double scale) {
                                   return checkbox_renderer::image(
                                       isChecked, view_all_layout::checkSide, scale);
                               });
    m_selectAllLabel.setFrame(m_layout.selectAllLabel);
    m_selectAllLabel.setString(m_layout.selectionText);
    m_copyButton.setFrame(m_layout.copyButton.frame);
    m_copyButton.setOpacity(m_layout.copyButton.opacity);
    m_trashButton.setFrame(m_layout.trashButton.frame);
    m_trashButton.setOpacity(m_layout.trashButton.opacity);

    QPainterPath outline;
    outline.addRoundedRect(bounds, cornerRadius, cornerRadius);
    m_context.panel.setBody(bounds, outline);
}

void ViewAllView::applyArrow(Arrow &arrow, const ViewAllLayout::Arrow &layout)
{
    const Theme::Palette &palette = m_context.theme.palette;
    using Fill = ViewAllLayout::Fill;
    arrow.plate.setFrame(layout.frame);
    arrow.plate.setCornerRadius(layout.frame.width() / 2);
    arrow.plate.setOpacity(layout.opacity);
    arrow.plate.setBackgroundColor(layout.fill == Fill::Off         ? palette.buttonFillOff
                                       : layout.fill == Fill::Hover ? palette.buttonFillHover
                                                                    : palette.buttonFill);
    arrow.caret.setFrame(QRectF({0, 0}, layout.frame.size()));
}

void ViewAllView::paint(QPainter &painter, QSizeF /*size*/, double scale)
{
    m_scale = scale;
    painter.setRenderHint(QPainter::Antialiasing);
    m_glass->render(painter, scale);
    m_contentHost.render(painter, scale);
}

const DropItem *ViewAllView::itemAt(QPointF point) const
{
    const auto tile = view_all_layout::tileAt(m_layout, point);
    const int index = tile ? visible().first + static_cast<int>(*tile) : -1;
    return index >= 0 && index < itemCount() ? &m_items->at(index) : nullptr;
}

const DropItem *ViewAllView::itemWithId(const QUuid &id) const
{
    if (!m_items)
        return nullptr;
    const auto found = std::find_if(m_items->begin(), m_items->end(),
                                    [&id](const DropItem &item) { return item.id() == id; });
    return found == m_items->end() ? nullptr : &*found;
}

} // namespace corvane
