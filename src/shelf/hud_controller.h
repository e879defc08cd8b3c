#pragma once

#include "core/store_follower.h"
#include "platform/base/lifetime.h"
#include "platform/base/subscription.h"
#include "platform/desktop/panel_placement.h"
#include "platform/desktop/screens.h"
#include "shelf/shelf_view.h"

#include <QSizeF>
#include <QUuid>

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

class AppearancePreference;
class ItemPresenter;
class OutsideClicks;
class QuickActions;
class ScreenLocator;
class Settings;
class ShelfStore;
class ViewAllBar;
struct Feedback;

/// Turns the model into the floating shelf: on every change of the store, the settings or the
/// screens it derives a snapshot, sizes and places the panel, and shows or hides it; and it turns
/// what the user does on the shelf into operations of the store.
///
///     idle --render--> shown: ordered front, takes clicks
///     shown --render(idle)--> hiding: takes no clicks, slides away
///     hiding --0.37 s--> hidden: ordered out      hiding --render--> shown
///
/// Delayed work is not cancelled; restarting the lifetime that guards it makes it do nothing. Main
/// thread only. Everything that it is given must outlive it.
class HUDController {
public:
    /// The panel's size before the shelf is first shown, in points.
    static constexpr QSizeF initialSize{560, 136};
    /// In seconds: the 0.32 s of the closing slide and a margin.
    static constexpr double hideDelay = 0.32 + 0.05;

    struct Context {
        ShelfView::Context view;
        ShelfStore &store;
        Settings &settings;
        Feedback &feedback;
        Screens &screens;
        ScreenLocator &screenLocator;
        QuickActions &quickActions;
        /// Null where there is none.
        ItemPresenter *presenter = nullptr;
        ViewAllBar *viewAll = nullptr;
        OutsideClicks *outsideClicks = nullptr;
        const AppearancePreference *appearance = nullptr;
    };
    explicit HUDController(const Context &context);
    ~HUDController();
    HUDController(const HUDController &) = delete;
    HUDController &operator=(const HUDController &) = delete;

    /// To be called when the user opens or closes the shelf by a hot key or a menu. It opens where
    /// the user is, which may have to be asked first. It is given the keyboard when it opens, or a
    /// bar that was left open in its place; not while something is dragged.
    void toggleByHand();
    /// To be called when a drag begins anywhere, whether or not the shelf opens for it, and when it
    /// has ended. The drag's source may give up when it loses the keyboard.
    void dragChanged(bool isGoingOn);
    /// To be called before the shelf is shown without the user having asked: for so many seconds
    /// its clicks go to the window below, because the user may click there without having seen the
    /// shelf.
    void letClicksThrough(double seconds);
    /// To be called after the theme, or how large texts are wanted, has changed.
    void appearanceChanged();
    /// How wide the shelf would be on that screen if it were opened now, in points.
    double openWidth(const ScreenPointer &screen) const;

    /// The pointer came onto the shelf, or left it.
    std::function<void(bool isInside)> onPointerInside;
    /// Called with true when a drop's contents are on their way; when they are here, with whether
    /// others are awaited.
    std::function<void(bool isAwaiting)> onAwaitsDrop;
    /// Another program's drag has come over the panel, also while the shelf is closed, or has left
    /// it or was dropped.
    std::function<void(bool isOver)> onDragOver;
    /// The user pressed a button or a key on the shelf, or drags something over it that it would
    /// take.
    std::function<void()> onUsed;

private:
    void wireShelf();
    void wireSettings();
    void wireScreenChanges();

    double scaleOn(const ScreenPointer &screen) const;
    ShelfSnapshot makeSnapshot(const ScreenPointer &screen) const;
    PanelPlacement placementOf(const ShelfSnapshot &snapshot, const ScreenPointer &screen) const;
    void render();
    void giveRoom();
    void resizeWindow(const PanelPlacement &target);
    QSizeF withOvershoot(QSizeF target, QSizeF before);
    void scheduleHide();
    void toggle();
    bool isDragged() const;
    void tellTipOfDrag();
    void takeClicks();
    void takeKeyboard();
    void watchOutsideClicks();
    void clickedElsewhere(std::optional<QPointF> place);
    void closeEmptyShelf();
    void preview(const DropItem &item);

    Context m_context;
    PanelWindow &m_panel;
    ShelfView m_shelf;
    ShelfStore &m_store;
    Lifetime m_pendingHide;
    Lifetime m_pendingShrink;
    Lifetime m_pendingClicks;
    bool m_letsClicksThrough = false;
    bool m_isDragGoingOn = false;
    /// The size of the last resize's target, and how far the springs that are moving go beyond it.
    QSizeF m_target;
    QSizeF m_overshoot{0, 0};
    std::weak_ptr<const Screen> m_lastScreen;
    double m_lastScale = 1;
    /// The item that is to be previewed once its file is there.
    std::optional<QUuid> m_awaitedPreview;
    StoreFollower m_follower;
    /// While the shelf may have the keyboard.
    Subscription m_clickWatch;
    Lifetime m_lifetime;
};

} // namespace corvane
