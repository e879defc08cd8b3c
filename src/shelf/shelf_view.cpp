#include "shelf/shelf_view.h"

#include "platform/base/geometry.h"
#include "platform/base/main_queue.h"
#include "shelf/accessible_shelf.h"
#include "shelf/drawing/theme.h"
#include "shelf/optional_callback.h"
#include "shelf/shelf_focus.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane {

ShelfView::ShelfView(const Context &context)
    : m_context(context)
    , m_tree(context.queue, context.motionPreference)
    , m_layers(std::in_place, m_tree, context.theme, context.animator)
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
}

ShelfView::~ShelfView()
{
    m_tree.onNeedsDisplay = nullptr;
}

QSizeF ShelfView::preferredSize(const ShelfSnapshot &snapshot) const
{
    return corvane::preferredSize(snapshot, textWidths(snapshot));
}

ShelfTextWidths ShelfView::textWidths(const ShelfSnapshot &snapshot) const
{
    return {detailTextWidth(snapshot, m_context.theme, m_context.measurer),
            flashTextWidth(m_look.flashMessage, snapshot, m_context.theme, m_context.measurer)};
}

void ShelfView::apply(const ShelfSnapshot &snapshot)
{
    const QString news = accessible_shelf::newsOf(m_look.snapshot, snapshot);
    m_look.snapshot = snapshot;
    if (snapshot.state == ShelfState::Idle)
        m_dragSource.release();
    // An empty shelf shows its hint in that place.
    if (snapshot.visible.empty())
        m_look.flashMessage.clear();
    relayout();
    if (!news.isEmpty())
        m_context.panel.announce(news);
}

void ShelfView::themeChanged()
{
    const LayerTree::WithoutMotion still(m_tree);
    m_layers.emplace(m_tree, m_context.theme, m_context.animator);
    relayout();
}

void ShelfView::relayout()
{
    arrange();
    showTip(TitleTip::Pointer::Still);
}

void ShelfView::arrange()
{
    m_look.layout
        = layoutShelf(m_look.snapshot, textWidths(m_look.snapshot), m_context.theme.direction);
    // The control that the keyboard was on may be gone, or lead nowhere now.
    const auto stops = shelf_focus::stops(m_look.layout, m_look.snapshot);
    if (std::ranges::find(stops, m_look.keyboardFocus) == stops.end())
        m_look.keyboardFocus = {};
    // The shelf may have changed under a pointer that does not move.
    const bool isInside = m_pointer && hitTest(fromTopCentre(*m_pointer));
    m_look.isHovering = isInside;
    m_look.hovered = isInside ? corvane::hitTest(m_look.layout, m_look.snapshot.isCarousel(),
                                                 inBody(fromTopCentre(*m_pointer)))
                              : ShelfHit();
    m_layers->apply(m_look);
    updateBody();
    m_context.panel.accessibleChanged();
}

void ShelfView::updateBody()
{
    const QSizeF size = m_context.panel.contentSize();
    QPainterPath outline = m_layers->presentedOutline().translated(size.width() / 2, size.height());
    m_context.panel.setBody(bodyRect(), outline);
}

QRectF ShelfView::bodyRect() const
{
    const QSizeF panel = m_context.panel.contentSize();
    const QSizeF size = m_look.layout.size;
    return {panel.width() * 0.5 - size.width() * 0.5, panel.height() - size.height(), size.width(),
            size.height()};
}

QPointF ShelfView::inBody(QPointF point) const
{
    return point - bodyRect().topLeft();
}

bool ShelfView::hitTest(QPointF point) const
{
    return m_look.snapshot.state != ShelfState::Idle && contains(bodyRect(), point);
}

void ShelfView::setRefreshRate(double rate)
{
    if (rate > 0)
        m_tree.setFrameInterval(1 / rate);
}

void ShelfView::paint(QPainter &painter, QSizeF size, double scale)
{
    m_scale = scale;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(size.width() / 2, size.height());
    m_layers->paint(painter, scale);
    // Without a compositing manager the panel is cut to the outline just painted: in every frame of
    // a motion, and once more after its end.
    const bool isMoving = m_tree.isMoving();
    if (isMoving || m_wasMoving)
        updateBody();
    m_wasMoving = isMoving;
}

void ShelfView::flash(const QString &message)
{
    if (m_look.snapshot.visible.empty() || m_look.snapshot.receptive)
        return;
    m_flashEnd.restart();
    showFlash(message);
    m_context.panel.announce(message);
    m_context.queue.asyncAfter(flashDuration, m_flashEnd.guard([this] { showFlash({}); }));
}

void ShelfView::showFlash(const QString &message)
{
    const QSizeF before = preferredSize(m_look.snapshot);
    m_look.flashMessage = message;
    if (preferredSize(m_look.snapshot) != before)
        call(onWantsRoom);
    relayout();
}

void ShelfView::updateHover(QPointF point)
{
    const ShelfHit before = m_look.hovered;
    const bool wasHovering = m_look.isHovering;
    const QSizeF panel = m_context.panel.contentSize();
    m_pointer = point - QPointF(panel.width() / 2, panel.height());
    const bool isInside = hitTest(point);
    const ShelfHit hit = isInside
        ? corvane::hitTest(m_look.layout, m_look.snapshot.isCarousel(), inBody(point))
        : ShelfHit();
    if (isInside != wasHovering || hit != before)
        arrange();
    showTip(TitleTip::Pointer::Moved);
}

/// None while something is dragged out of the shelf or may be dropped on it.
std::optional<TitleTip::Title> ShelfView::titleUnderPointer() const
{
    const auto *hit = std::get_if<shelf_hit::Cell>(&m_look.hovered);
    if (!hit || m_look.snapshot.receptive || m_look.isDragTargeted || m_look.draggedItem)
        return std::nullopt;
    const auto &visible = m_look.snapshot.visible;
    const auto item = std::ranges::find(visible, hit->itemIndex, &std::pair<int, DropItem>::first);
    const auto &cells = m_look.layout.cells;
    const auto cell = std::ranges::find(cells, hit->itemIndex, &ShelfLayout::Cell::itemIndex);
    if (item == visible.end() || cell == cells.end())
        return std::nullopt;
    return TitleTip::Title{.item = item->second.id(),
                           .text = item->second.title(),
                           .font = titleFont(m_context.theme, m_look.snapshot.isCarousel()),
                           .width = cell->title.width(),
                           .cell = cell->root.translated(bodyRect().topLeft())};
}

void ShelfView::showTip(TitleTip::Pointer pointer) const
{
    if (m_context.tip)
        m_context.tip->follow(m_context.panel, titleUnderPointer(), pointer);
}

void ShelfView::endTip() const
{
    if (m_context.tip)
        m_context.tip->dismiss();
}

QPointF ShelfView::fromTopCentre(QPointF point) const
{
    const QSizeF panel = m_context.panel.contentSize();
    return point + QPointF(panel.width() / 2, panel.height());
}

void ShelfView::mouseEntered(const MouseEvent &event)
{
    // The panel gets pointer events on the body only.
    call(onPointerInside, true);
    updateHover(event.location);
}

void ShelfView::mouseMoved(const MouseEvent &event)
{
    updateHover(event.location);
}

void ShelfView::mouseExited()
{
    m_pointer.reset();
    call(onPointerInside, false);
    if (!m_look.isHovering && m_look.hovered == ShelfHit())
        return;
    relayout();
}

void ShelfView::mouseDown(const MouseEvent &event)
{
    call(onUsed);
    endTip();
    if (!hitTest(event.location))
        return;
    m_context.panel.makeKey();
    returnToItem();
    press(corvane::hitTest(m_look.layout, m_look.snapshot.isCarousel(), inBody(event.location)),
          event.location);
    call(onPressed);
}

void ShelfView::press(const ShelfHit &hit, QPointF point)
{
    if (const auto *arrow = std::get_if<shelf_hit::Arrow>(&hit))
        pageBy(arrow->side == ArrowSide::Left ? -1 : 1);
    else if (std::holds_alternative<shelf_hit::ViewAll>(hit))
        call(onViewAll);
    else if (const auto *badge = std::get_if<shelf_hit::Badge>(&hit))
        call(onRemove, badge->itemIndex);
    else if (const auto *button = std::get_if<shelf_hit::Button>(&hit))
        performAction(button->action);
    else if (const auto *cell = std::get_if<shelf_hit::Cell>(&hit))
        pressCell(cell->itemIndex, point);
}

/// The keyboard stays on the arrow, so that screen readers say nothing by themselves.
void ShelfView::pageBy(int steps)
{
    // A copy: paging replaces it.
    const ShelfSnapshot before = m_look.snapshot;
    call(onScroll, steps);
    const QString news = accessible_shelf::newsOfPage(before, m_look.snapshot);
    if (!news.isEmpty())
        m_context.panel.announce(news);
}

void ShelfView::pressCell(int itemIndex, QPointF point)
{
    const auto &visible = m_look.snapshot.visible;
    const auto pressed = std::ranges::find(visible, itemIndex, &std::pair<int, DropItem>::first);
    if (pressed != visible.end())
        m_dragSource.press(pressed->second.id(), point);
    if (itemIndex != m_look.snapshot.focusedIndex)
        call(onFocus, itemIndex);
}

void ShelfView::mouseUp(const MouseEvent & /*event*/)
{
    m_dragSource.release();
}

void ShelfView::scrollWheel(const ScrollEvent &event)
{
    if (m_look.snapshot.state == ShelfState::Idle || !m_look.snapshot.hasArrows())
        return;
    endTip();
    const bool hasPhases = event.phase != ScrollEvent::Phase::None;
    if (!hasPhases && event.time - m_lastScrollTime > scrollMemory)
        m_scrollAccumulator = 0;
    m_lastScrollTime = event.time;
    // What lies to the right is earlier where the shelf is mirrored.
    m_scrollAccumulator += m_look.layout.isMirrored ? -event.deltaX : event.deltaX;
    const double step = event.hasPreciseDeltas ? preciseScrollStep : wheelScrollStep;
    while (std::abs(m_scrollAccumulator) >= step) {
        const bool isBack = m_scrollAccumulator > 0;
        m_scrollAccumulator -= isBack ? step : -step;
        call(onScroll, isBack ? -1 : 1);
    }
    if (event.phase == ScrollEvent::Phase::Ended)
        m_scrollAccumulator = 0;
}

} // namespace corvane
