#include "shelf/bar/view_all_controller.h"

#include "core/feedback.h"
#include "core/quick_actions.h"
#include "core/shelf_store.h"
#include "platform/base/checked_math.h"
#include "platform/base/geometry.h"
#include "platform/desktop/outside_clicks.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane {

ViewAllController::ViewAllController(const Context &context)
    : m_context(context)
    , m_panel(context.view.panel)
    , m_view(context.view)
    , m_store(context.store)
{
    m_panel.place({nullptr, 0, initialSize});
    m_panel.setContent(&m_view);
    m_panel.setIgnoresMouseEvents(true);
    wireView();
}

ViewAllController::~ViewAllController()
{
    m_panel.setContent(nullptr);
}

void ViewAllController::wireView()
{
    // No guard is needed: the view is a member and is destroyed with the controller.
    m_view.onToggleItem = [this](const DropItem &item) { m_store.toggleSelection(item); };
    m_view.onToggleSelectAll = [this] { m_store.toggleSelectAll(); };
    m_view.onRemoveSelected = [this] { m_store.removeSelected(); };
    m_view.onCopySelected = [this] { m_context.quickActions.copy(m_store.selectedItems()); };
    m_view.onEjected = [this](const QList<QUuid> &ids, bool keep) { m_store.ejected(ids, keep); };
    m_view.onScroll = [this](int step) { scroll(step); };
    m_view.onPaste = [this] {
        if (onPaste)
            onPaste();
    };
    m_view.onClose = [this] { m_store.closeViewAll(); };
    m_view.onDragOutChanged = [this](bool isDraggingOut) { m_store.ownDragChanged(isDraggingOut); };
    m_view.onMessage = [this](const Message &message) { m_context.feedback.show(message); };
}

void ViewAllController::render(const QRectF &pillFrame, const ScreenPointer &screen, double scale)
{
    m_pillFrame = pillFrame;
    m_scale = scale;
    m_lastScreen = screen;
    const bool isDragged = m_isDragGoingOn || m_store.isDragInFlight() || m_store.isOwnDrag();
    const bool isDraggedOrWasJustNow = std::exchange(m_sawDrag, isDragged) || isDragged;
    const bool isWanted = findWhetherWanted();
    if (m_store.isViewAllOpen() && screen && m_store.items().size() >= minimumItems) {
        m_isWanted = m_isWanted || isWanted;
        show(screen, isDraggedOrWasJustNow);
    } else {
        hide();
    }
}

/// Whether the user has just opened the bar, or opened by hand the shelf below which it was left
/// open.
bool ViewAllController::findWhetherWanted()
{
    const bool isOpen = m_store.isViewAllOpen();
    const bool isNewlyOpen = !std::exchange(m_sawOpen, isOpen) && isOpen;
    return std::exchange(m_isByHand, false) || isNewlyOpen;
}

void ViewAllController::show(const ScreenPointer &screen, bool isDragged)
{
    const double width = std::round(screen->frame.width() * widthShare);
    const double height = std::ceil(view_all_layout::barHeight * m_scale);
    const double fromTop = maxY(screen->frame) - minY(m_pillFrame) + gap * m_scale;
    const PanelPlacement placement{screen, fromTop, {width, height}, 0, m_scale};
    if (m_panel.frame() != frameOf(placement)
        || m_panel.contentSize() != contentSizeOf(placement.size, m_scale))
        m_panel.place(placement);

    const auto count = static_cast<int>(m_store.items().size());
    m_offset = view_all_layout::clampedOffset(m_offset, count, m_view.itemsPerPage());
    m_view.apply(m_store.items(), m_store.selection(), m_offset);

    const bool wasShown = m_panel.isVisible();
    m_panel.setIgnoresMouseEvents(false);
    m_panel.orderFrontRegardless();
    if (m_isWanted && !isDragged)
        takeKeyboard(wasShown);
    if (!m_clickWatch.isActive())
        startWatchingOutsideClicks();
}

/// Called in every render that shows the bar for a user who wanted it, so that a click on the shelf
/// does not take the keys away from the bar.
///
/// When the bar opens it takes the keyboard from any program. In later renders, which for example
/// an arriving thumbnail causes, it takes it only from our own panels: the user may have gone on
/// typing elsewhere. It is not called during a drag or at its end, because a drag's source may
/// cancel the drag when it loses the keyboard, and because the user goes on in the program that was
/// dropped on. It is not called either when the shelf came back by itself, at the screen's edge,
/// with a bar that was left open: keys are meant for the program behind, and here Delete would
/// remove the selected items.
void ViewAllController::takeKeyboard(bool wasShown)
{
    if (wasShown)
        m_panel.makeKeyAmongPanels();
    else
        m_panel.makeKey();
}

void ViewAllController::shelfIsToggledByHand()
{
    m_isByHand = true;
}

void ViewAllController::shelfWasPressed()
{
    if (!m_panel.isVisible())
        return;
    m_isWanted = true;
    m_panel.makeKey();
}

void ViewAllController::hide()
{
    m_clickWatch.end();
    m_panel.setIgnoresMouseEvents(true);
    m_offset = 0;
    m_isWanted = false;
    m_view.wasHidden();
    m_panel.orderOut();
}

void ViewAllController::scroll(int step)
{
    m_offset = std::max(0, checkedAdd(m_offset, step));
    // A copy: `render` takes a reference and assigns to `m_pillFrame`.
    render(QRectF(m_pillFrame), m_lastScreen.lock(), m_scale);
}

void ViewAllController::startWatchingOutsideClicks()
{
    m_clickWatch = m_context.outsideClicks.watch(
        m_lifetime.guard([this](std::optional<QPointF> place) { clickedElsewhere(place); }));
}

void ViewAllController::clickedElsewhere(std::optional<QPointF> place)
{
    // A desktop may not tell where the click was; then it counts as elsewhere, because it was in
    // another program.
    const bool isOurs
        = place && (contains(m_panel.frame(), *place) || contains(m_pillFrame, *place));
    if (isOurs || !m_store.isViewAllOpen())
        return;
    m_panel.userWentOn();
    m_store.closeViewAll();
}

} // namespace corvane
