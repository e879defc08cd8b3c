#include "shelf/bar/view_all_view.h"

#include "shelf/accessible_items.h"
#include "shelf/bar/accessible_bar.h"
#include "shelf/drawing/theme.h"
#include "shelf/optional_callback.h"

#include <QPainter>

#include <algorithm>
#include <iterator>
#include <utility>

namespace corvane {

ViewAllView::ViewAllView(const Context &context)
    : m_context(context)
    , m_tree(context.queue, context.motionPreference)
    , m_layers(std::in_place, m_tree, context.theme)
    , m_dragSource({.panel = context.panel,
                    .keyboard = context.keyboard,
                    .dragWriter = context.dragWriter,
                    .pictures = context.pictures,
                    .preparation = context.preparation})
{
    wireDragSource();
    m_tree.onNeedsDisplay = [this] {
        m_context.panel.setNeedsDisplay({{0, 0}, m_context.panel.contentSize()});
    };
    relayout();
}

ViewAllView::~ViewAllView()
{
    m_tree.onNeedsDisplay = nullptr;
}

int ViewAllView::itemsPerPage() const
{
    return view_all_layout::itemsPerPage(m_context.panel.contentSize().width());
}

view_all_layout::Range ViewAllView::visible() const
{
    return view_all_layout::visibleRange(m_offset, itemCount(), itemsPerPage());
}

void ViewAllView::apply(const QList<DropItem> &items, const QSet<QUuid> &selection, int offset)
{
    m_isShown = true;
    m_items = &items;
    m_selection = &selection;
    m_offset = view_all_layout::clampedOffset(offset, itemCount(), itemsPerPage());
    followItems();
    relayout();
    // The bar may have paged under a pointer that does not move.
    if (findHovered())
        relayout();
    showTip(TitleTip::Pointer::Still);
    if (std::exchange(m_awaitsSelection, false))
        m_context.panel.announce(m_layout.selectionText);
}

void ViewAllView::themeChanged()
{
    m_layers.emplace(m_tree, m_context.theme);
    relayout();
}

void ViewAllView::wasHidden()
{
    m_isShown = false;
    m_awaitsSelection = false;
    m_focus = {};
    m_dragSource.release();
    m_pointer.reset();
    if (findHovered())
        relayout();
    showTip(TitleTip::Pointer::Still);
    m_context.panel.accessibleChanged();
}

QList<DropItem> ViewAllView::selectedInOrder() const
{
    QList<DropItem> selected;
    if (!m_items)
        return selected;
    std::copy_if(m_items->begin(), m_items->end(), std::back_inserter(selected),
                 [this](const DropItem &item) { return isSelected(item); });
    return selected;
}

std::span<const DropItem> ViewAllView::page() const
{
    const auto range = visible();
    if (range.end <= range.first)
        return {};
    return {m_items->constData() + range.first, m_items->constData() + range.end};
}

QList<QUuid> ViewAllView::itemsInView() const
{
    QList<QUuid> items;
    if (m_isShown) {
        for (const DropItem &item : page())
            items << item.id();
    }
    return items;
}

ViewAllState ViewAllView::state() const
{
    ViewAllState state;
    state.size = m_context.panel.contentSize();
    state.itemCount = itemCount();
    state.selectedCount = m_selection ? static_cast<int>(m_selection->size()) : 0;
    state.offset = m_offset;
    state.hoveredControl = m_hoveredControl;
    state.direction = m_context.theme.direction;
    for (const DropItem &item : page())
        state.tiles.push_back({isSelected(item), m_hovered == item.id()});
    return state;
}

void ViewAllView::relayout()
{
    const ViewAllState now = state();
    m_layout = view_all_layout::layOut(now);
    // The control that the keyboard was on may lead nowhere now.
    const auto stops = view_all_focus::stops(now);
    if (std::ranges::find(stops, m_focus.control) == stops.end())
        m_focus.control.reset();
    m_layers->apply(m_layout, page());
    m_layers->showFocus(view_all_focus::ringAround(m_focus, m_layout, m_offset));
    const QRectF bounds({0, 0}, m_layout.size);
    m_context.panel.setBody(bounds, ViewAllLayers::outline(bounds));
    m_context.panel.accessibleChanged();
}

void ViewAllView::paint(QPainter &painter, QSizeF /*size*/, double scale)
{
    m_scale = scale;
    painter.setRenderHint(QPainter::Antialiasing);
    m_layers->render(painter, scale);
}

AccessibleNode ViewAllView::accessible() const
{
    return accessible_bar::describe(
        {.layout = m_layout,
         .page = page(),
         .offset = m_offset,
         .itemCount = itemCount(),
         .selectedCount = m_selection ? static_cast<int>(m_selection->size()) : 0,
         .focus = m_focus,
         .isShown = m_isShown});
}

void ViewAllView::perform(const QString &key, const QString &action)
{
    const bool isFocus = action == accessible_items::focus();
    if (!m_isShown || (!isFocus && action != AccessibleNode::press()))
        return;
    m_context.panel.makeKey();
    const auto id = accessible_items::itemOf(key);
    const DropItem *item = id ? itemWithId(*id) : nullptr;
    const auto control = accessible_bar::controlOf(key);
    if (isFocus && control)
        moveToControl(*control);
    else if (isFocus && item)
        moveToTile(static_cast<int>(item - m_items->constData()));
    else if (control)
        press(*control);
    else if (item)
        call(onToggleItem, DropItem(*item));
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
