#pragma once

#include "platform/base/lifetime.h"
#include "platform/base/subscription.h"
#include "shelf/bar/view_all_view.h"
#include "shelf/view_all_bar.h"

#include <QRectF>

#include <memory>
#include <optional>

namespace corvane {

class OutsideClicks;
class QuickActions;
class ShelfStore;
struct Feedback;

/// Shows the view-all bar below the shelf while the store says that it is open, pages it, closes it
/// on a click elsewhere, and turns what the user does on it into operations of the store.
///
///     hidden --render: open, a screen, 2 items--> shown: in front, takes clicks, watches clicks
///     shown  --render: one of them missing------> hidden: takes no clicks, at its first page
///
/// It keeps no items. When it hides because there are fewer than `minimumItems`, or no screen, the
/// store still says that it is open. Main thread only; everything in the context must outlive it.
class ViewAllController : public ViewAllBar {
public:
    /// The panel's size before the bar is first shown, in points.
    static constexpr QSizeF initialSize{600, view_all_layout::barHeight};
    /// The bar's width as a share of the screen's.
    static constexpr double widthShare = 0.8;
    /// In points, between the shelf and the bar.
    static constexpr double gap = 10;
    /// With fewer items the bar is not shown.
    static constexpr int minimumItems = 2;

    struct Context {
        ViewAllView::Context view;
        ShelfStore &store;
        QuickActions &quickActions;
        OutsideClicks &outsideClicks;
        const Feedback &feedback;
    };
    explicit ViewAllController(const Context &context);
    ~ViewAllController() override;
    ViewAllController(const ViewAllController &) = delete;
    ViewAllController &operator=(const ViewAllController &) = delete;

    void render(const QRectF &pillFrame, const ScreenPointer &screen, double scale) override;
    bool isShown() const override { return m_panel.isVisible(); }
    void themeChanged() override { m_view.themeChanged(); }
    void shelfIsToggledByHand() override;
    void dragChanged(bool isGoingOn) override { m_isDragGoingOn = isGoingOn; }
    void shelfWasPressed() override;

    const ViewAllView &view() const { return m_view; }
    int offset() const { return m_offset; }
    bool isWatchingOutsideClicks() const { return m_clickWatch.isActive(); }

private:
    void wireView();
    bool findWhetherWanted();
    void show(const ScreenPointer &screen, bool isDragged);
    void takeKeyboard(bool wasShown);
    void hide();
    void scroll(int step);
    void startWatchingOutsideClicks();
    void clickedElsewhere(std::optional<QPointF> place);

    Context m_context;
    PanelWindow &m_panel;
    ViewAllView m_view;
    ShelfStore &m_store;
    int m_offset = 0;
    QRectF m_pillFrame;
    double m_scale = 1;
    std::weak_ptr<const Screen> m_lastScreen;
    Subscription m_clickWatch;
    bool m_isDragGoingOn = false;
    /// Whether something was being dragged when the bar was last rendered.
    bool m_sawDrag = false;
    bool m_sawOpen = false;
    /// The user has just opened or closed the shelf by a hot key or a menu; the next render follows
    /// from that.
    bool m_isByHand = false;
    /// The user opened the bar, or the shelf above it, or pressed the shelf: keys are meant for the
    /// bar. Not so when it was left open and the shelf came back by itself.
    bool m_isWanted = false;
    // Callbacks that were handed out do nothing once the controller is gone.
    Lifetime m_lifetime;
};

} // namespace corvane
