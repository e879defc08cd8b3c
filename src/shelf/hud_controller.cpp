#include "shelf/hud_controller.h"

#include "core/feedback.h"
#include "core/item_preparation.h"
#include "core/item_presenter.h"
#include "core/quick_actions.h"
#include "core/settings.h"
#include "core/shelf_store.h"
#include "platform/base/checked_math.h"
#include "platform/base/geometry.h"
#include "platform/base/main_queue.h"
#include "platform/desktop/appearance_preference.h"
#include "platform/desktop/motion_preference.h"
#include "platform/desktop/outside_clicks.h"
#include "platform/desktop/screen_locator.h"
#include "shelf/accessible_shelf.h"
#include "shelf/drawing/theme.h"
#include "shelf/shelf_layout.h"
#include "shelf/view_all_bar.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane {

namespace {

QRectF unionOf(const QRectF &left, const QRectF &right)
{
    const double x = std::min(minX(left), minX(right));
    const double y = std::min(minY(left), minY(right));
    return {x, y, std::max(maxX(left), maxX(right)) - x, std::max(maxY(left), maxY(right)) - y};
}

} // namespace

HUDController::HUDController(const Context &context)
    : m_context(context)
    , m_panel(context.view.panel)
    , m_shelf(context.view)
    , m_store(context.store)
    , m_follower(context.store, context.view.queue, [this] { render(); })
{
    m_panel.place({nullptr, 0, initialSize});
    m_panel.setContent(&m_shelf);
    m_panel.setIgnoresMouseEvents(true);
    m_context.feedback.handler
        = m_lifetime.guard([this](const Message &message) { m_shelf.flash(message.text()); });
    wireShelf();
    wireSettings();
    wireScreenChanges();
    render();
}

HUDController::~HUDController()
{
    m_panel.setContent(nullptr);
}

void HUDController::wireShelf()
{
    // No guard is needed: the view is a member and is destroyed with the controller.
    m_shelf.onDropAccepted = [this](const QList<DropItem> &items) { m_store.accept(items); };
    m_shelf.onEjected = [this](const QUuid &id, bool keep) {
        if (const auto index = m_store.indexOf(id))
            m_store.ejected(*index, keep);
    };
    m_shelf.onRemove = [this](int index) { m_store.discard(index, true); };
    m_shelf.onFocus = [this](int index) { m_store.focus(index); };
    m_shelf.onScroll = [this](int steps) { m_store.scrollBy(steps); };
    m_shelf.onCopy = [this] {
        const Modifiers modifiers = m_context.view.keyboard.currentModifiers();
        if (const auto item = m_store.focusedItem())
            m_context.quickActions.copy(*item, modifiers.testFlag(Modifier::Option));
    };
    m_shelf.onViewAll = [this] { m_store.toggleViewAll(); };
    m_shelf.onDragOutChanged
        = [this](bool isDraggingOut) { m_store.ownDragChanged(isDraggingOut); };
    m_shelf.onPointerInside = [this](bool isInside) {
        if (onPointerInside)
            onPointerInside(isInside);
    };
    m_shelf.onAwaitsDrop = [this](bool isAwaiting) {
        if (onAwaitsDrop)
            onAwaitsDrop(isAwaiting);
    };
    m_shelf.onDragOver = [this](bool isOver) {
        if (onDragOver)
            onDragOver(isOver);
    };
    m_shelf.onUsed = [this] {
        if (onUsed)
            onUsed();
    };
    m_shelf.onPressed = [this] {
        watchOutsideClicks();
        if (m_context.viewAll)
            m_context.viewAll->shelfWasPressed();
    };
    m_shelf.onClose = [this] { closeEmptyShelf(); };
    m_shelf.onWantsRoom = [this] { giveRoom(); };
    if (m_context.viewAll)
        m_context.viewAll->onPaste = m_lifetime.guard([this] { m_panel.paste(); });
    m_shelf.onQuickLook = [this] {
        const auto item = m_store.focusedItem();
        if (item && m_context.presenter)
            preview(*item);
    };
}

/// Shows the item at full size. One whose file is still being written is shown when it is ready, if
/// it is focused then and the shelf is open; asking a second time before that cancels it.
void HUDController::preview(const DropItem &item)
{
    if (const auto shown = item.presentForm()) {
        m_context.presenter->present(*shown);
        return;
    }
    if (m_awaitedPreview == item.id()) {
        m_awaitedPreview.reset();
        return;
    }
    m_awaitedPreview = item.id();
    m_context.view.preparation.whenReady(
        item, m_lifetime.guard([this, id = item.id()](const std::optional<DropItem> &ready) {
            if (m_awaitedPreview != id)
                return;
            m_awaitedPreview.reset();
            const auto focused = m_store.focusedItem();
            if (ready && focused && focused->id() == id && m_store.state() != ShelfState::Idle)
                m_context.presenter->present(*ready);
        }));
}

void HUDController::wireSettings()
{
    m_context.settings.observeLayout(m_lifetime.guard([this] {
        m_store.inViewCountChanged();
        render();
    }));
}

void HUDController::wireScreenChanges()
{
    m_context.screens.observeChanges(m_lifetime.guard([this] { render(); }));
}

void HUDController::appearanceChanged()
{
    if (m_context.view.tip)
        m_context.view.tip->dismiss();
    m_shelf.themeChanged();
    if (m_context.viewAll)
        m_context.viewAll->themeChanged();
    render();
}

/// How much larger than usual everything is: as the user wants texts, if the widest shelf then fits
/// on the screen.
double HUDController::scaleOn(const ScreenPointer &screen) const
{
    if (!screen || !m_context.appearance)
        return 1;
    const double fitting = screen->frame.width() / widestShelf;
    return std::max(1.0, std::min(m_context.appearance->textScale(), fitting));
}

ShelfSnapshot HUDController::makeSnapshot(const ScreenPointer &screen) const
{
    const ScreenLocator::Notch notch = ScreenLocator::notch(screen);
    ShelfSnapshot snapshot;
    snapshot.state = m_store.state();
    snapshot.visible = m_store.visibleItems();
    snapshot.totalCount = static_cast<int>(m_store.items().size());
    snapshot.lastThatLeft = m_store.lastThatLeft();
    snapshot.focusedIndex = m_store.focusedIndex();
    snapshot.inViewCount = m_context.settings.inViewCount();
    snapshot.canScrollBack = m_store.scrollOffset() > 0;
    snapshot.canScrollForward
        = checkedAdd(m_store.scrollOffset(), snapshot.inViewCount) < snapshot.totalCount;
    snapshot.notch = QSizeF(notch.width, notch.inset) / scaleOn(screen);
    snapshot.receptive = m_store.isDragInFlight() && !m_store.isOwnDrag();
    return snapshot;
}

/// In whole points, as a window is placed.
PanelPlacement HUDController::placementOf(const ShelfSnapshot &snapshot,
                                          const ScreenPointer &screen) const
{
    const double scale = scaleOn(screen);
    const QSizeF size = m_shelf.preferredSize(snapshot) * scale;
    return {screen, 0, {std::ceil(size.width()), std::ceil(size.height())}, 0, scale};
}

double HUDController::openWidth(const ScreenPointer &screen) const
{
    ShelfSnapshot snapshot = makeSnapshot(screen);
    snapshot.state = snapshot.totalCount > 0 ? ShelfState::Occupied : ShelfState::Expanded;
    snapshot.receptive = false;
    return placementOf(snapshot, screen).size.width();
}

void HUDController::render()
{
    // Asked once for all uses below, because finding the pointer is a request to the desktop.
    const ScreenPointer screen = m_context.screenLocator.activeScreen();
    const ShelfSnapshot snapshot = makeSnapshot(screen);
    const PanelPlacement atTop = placementOf(snapshot, screen);
    QRectF pillFrame;
    if (snapshot.state != ShelfState::Idle && screen) {
        m_pendingHide.restart();
        pillFrame = frameOf(atTop);
        m_shelf.setRefreshRate(screen->refreshRate);
        resizeWindow(atTop);
        // During a drag the shelf must take the pointer at once.
        if (m_store.isDragInFlight())
            m_letsClicksThrough = false;
        m_panel.setIgnoresMouseEvents(m_letsClicksThrough);
        m_panel.orderFrontRegardless();
    }
    tellTipOfDrag();
    m_shelf.apply(snapshot);
    const bool isShown = snapshot.state != ShelfState::Idle;
    if (m_context.viewAll)
        m_context.viewAll->render(pillFrame, isShown ? screen : nullptr, atTop.scale);
    if (m_context.view.tip)
        m_context.view.tip->keepInFront();
    if (!isShown)
        scheduleHide();
}

/// For a message that has come or gone; nothing of the model has changed.
void HUDController::giveRoom()
{
    const ScreenPointer screen = m_lastScreen.lock();
    const ShelfSnapshot &shown = m_shelf.look().snapshot;
    if (screen && m_panel.isVisible() && shown.state != ShelfState::Idle)
        resizeWindow(placementOf(shown, screen));
}

void HUDController::resizeWindow(const PanelPlacement &target)
{
    m_pendingShrink.restart();
    // What moves is drawn at the new scale at once.
    const bool isSameScale = std::exchange(m_lastScale, target.scale) == target.scale;
    const bool isSameScreen = m_lastScreen.lock() == target.screen && isSameScale;
    m_lastScreen = target.screen;
    const QSizeF before = std::exchange(m_target, target.size);
    if (!m_panel.isVisible() || !isSameScreen) {
        m_overshoot = {0, 0};
        m_panel.place(target);
        return;
    }
    // Large enough for the body where it is and where it goes; shrunk to the target when it has
    // arrived.
    PanelPlacement whereItGoes = target;
    whereItGoes.size = withOvershoot(target.size, before);
    const QRectF room = unionOf(m_panel.frame(), frameOf(whereItGoes));
    m_panel.place(placementOn(target.screen, room, target.scale));
    if (room == frameOf(target))
        return;
    m_context.view.queue.asyncAfter(Theme::Motion::settlingDuration(),
                                    m_pendingShrink.guard([this, target] {
                                        if (m_store.state() == ShelfState::Idle)
                                            return;
                                        m_overshoot = {0, 0};
                                        m_panel.place(target);
                                        m_shelf.panelWasResized();
                                    }));
}

/// Springs that are still moving add up, and so do the distances by which they overshoot.
QSizeF HUDController::withOvershoot(QSizeF target, QSizeF before)
{
    if (m_context.view.motionPreference.reducesMotion())
        return target;
    const double share = Theme::Motion::spring().overshoot();
    m_overshoot += {std::abs(target.width() - before.width()) * share,
                    std::abs(target.height() - before.height()) * share};
    // Whole points on each side, because the body hangs from the middle of the panel's top edge and
    // must not shift by half a pixel.
    return target + QSizeF(2 * std::ceil(m_overshoot.width() / 2), std::ceil(m_overshoot.height()));
}

void HUDController::scheduleHide()
{
    m_pendingHide.restart();
    m_panel.setIgnoresMouseEvents(true);
    m_letsClicksThrough = false;
    m_clickWatch.end();
    // Now, not when it has slid away: keys typed from here on are for the program behind.
    m_panel.resignKey();
    m_context.view.queue.asyncAfter(hideDelay, m_pendingHide.guard([this] {
        if (m_store.state() == ShelfState::Idle)
            m_panel.orderOut();
    }));
}

void HUDController::dragChanged(bool isGoingOn)
{
    m_isDragGoingOn = isGoingOn;
    tellTipOfDrag();
    if (m_context.viewAll)
        m_context.viewAll->dragChanged(isGoingOn);
}

bool HUDController::isDragged() const
{
    return m_isDragGoingOn || m_store.isDragInFlight() || m_store.isOwnDrag();
}

void HUDController::tellTipOfDrag()
{
    if (m_context.view.tip)
        m_context.view.tip->setDragged(isDragged());
}

void HUDController::toggleByHand()
{
    if (m_store.state() != ShelfState::Idle)
        toggle();
    else
        m_context.screenLocator.locate(m_lifetime.guard([this] { toggle(); }));
}

void HUDController::toggle()
{
    if (m_context.viewAll)
        m_context.viewAll->shelfIsToggledByHand();
    const bool wasOpen = m_store.state() != ShelfState::Idle;
    m_store.toggleManually();
    if (wasOpen && m_store.state() == ShelfState::Idle)
        m_panel.announce(accessible_shelf::hiddenNews());
    if (!isDragged() && m_store.state() != ShelfState::Idle)
        takeKeyboard();
}

void HUDController::takeKeyboard()
{
    if (m_context.viewAll && m_context.viewAll->isShown())
        return;
    m_panel.makeKey();
    watchOutsideClicks();
}

void HUDController::watchOutsideClicks()
{
    if (m_context.outsideClicks && !m_clickWatch.isActive())
        m_clickWatch = m_context.outsideClicks->watch(
            m_lifetime.guard([this](std::optional<QPointF> place) { clickedElsewhere(place); }));
}

void HUDController::clickedElsewhere(std::optional<QPointF> place)
{
    if (place && contains(m_panel.frame(), *place))
        return;
    m_clickWatch.end();
    m_panel.userWentOn();
}

/// The user is done with it: it opens again for the next drag.
void HUDController::closeEmptyShelf()
{
    if (m_store.state() == ShelfState::Expanded && m_store.items().isEmpty())
        m_store.toggleManually();
}

void HUDController::letClicksThrough(double seconds)
{
    m_pendingClicks.restart();
    m_letsClicksThrough = true;
    m_context.view.queue.asyncAfter(seconds, m_pendingClicks.guard([this] { takeClicks(); }));
}

void HUDController::takeClicks()
{
    // If the shelf is hidden, or was hidden meanwhile, clicks still go through it.
    const bool wasShown = std::exchange(m_letsClicksThrough, false) && m_panel.isVisible();
    if (wasShown && m_store.state() != ShelfState::Idle)
        m_panel.setIgnoresMouseEvents(false);
}

} // namespace corvane
