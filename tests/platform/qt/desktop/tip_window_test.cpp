// A tip as the desktop has it: beside it everything is as if it were not there.

#include "platform/managed_window.h"
#include "platform/panel_fixture.h"
#include "platform/qt/desktop/qt_tip_window.h"

#include <QAccessible>
#include <QPainter>

namespace corvane::test {

namespace {

/// A tip of 100 by 40 over a panel's body.
class TipWindowTest : public PanelFixture {
protected:
    void showTip(double scale = 1, double lower = 0)
    {
        QPainterPath outline;
        outline.addRoundedRect(0, 0, 100 / scale, 40 / scale, 8, 8);
        PanelPlacement placement = placementFor({650, 532 - lower, 100, 40});
        placement.scale = scale;
        tip.show(placement,
                 {[=, this](QPainter &painter, double pixels) {
                      paintedScale = pixels;
                      // The lower half only: upside down would be seen.
                      painter.fillRect(QRectF(0, 0, 100 / scale, 20 / scale), Qt::green);
                  },
                  outline});
    }
    bool isSeenAt(QPoint point)
    {
        return eventually([&] { return colorAt(point) == QColor(Qt::green); });
    }
    bool isHidden()
    {
        return eventually([&] { return !display.server.facts(tipId())->isViewable; });
    }
    xcb_window_t tipId() { return static_cast<xcb_window_t>(tip.window().winId()); }

    // In Qt's coordinates.
    const QPoint lowerHalf{700, 440};
    const QPoint upperHalf{700, 420};
    double paintedScale = 0;
    QtTipWindow tip{panels.desktop()};
};

} // namespace

TEST_F(TipWindowTest, isMadeHidden)
{
    EXPECT_FALSE(display.server.facts(tipId())->isViewable);
}

TEST_F(TipWindowTest, isShownWhereItIsPlacedAndThePanelIsSeenThroughIt)
{
    show();
    showTip();
    EXPECT_TRUE(isSeenAt(lowerHalf));
    EXPECT_EQ(display.server.facts(tipId())->frame, QRect(650, 410, 100, 40));
    EXPECT_TRUE(display.server.facts(tipId())->isOverrideRedirect);
    EXPECT_NE(colorAt(upperHalf), QColor(Qt::green));
    EXPECT_EQ(paintedScale, 1);
}

TEST_F(TipWindowTest, showsWhatIsShownNextThereAtOnce)
{
    showTip();
    ASSERT_TRUE(isSeenAt(lowerHalf));
    showTip(1, 200);
    EXPECT_TRUE(isSeenAt(lowerHalf + QPoint(0, 200)));
    EXPECT_NE(colorAt(lowerHalf), QColor(Qt::green));
}

TEST_F(TipWindowTest, isPaintedInThePointsOfItsContent)
{
    showTip(2);
    EXPECT_TRUE(isSeenAt({745, 432}));
    EXPECT_NE(colorAt(upperHalf), QColor(Qt::green));
    EXPECT_EQ(paintedScale, 2);
}

TEST_F(TipWindowTest, isAboveAPanelThatWasRaisedOnceItIsRaised)
{
    show();
    showTip();
    const auto isAbove = [this] {
        const auto windows = display.server.windows();
        return std::ranges::find(windows, tipId(), &e2e::WindowFacts::id)
            > std::ranges::find(windows, id(), &e2e::WindowFacts::id);
    };
    EXPECT_TRUE(eventually(isAbove));
    panel.orderFrontRegardless();
    EXPECT_TRUE(eventually([&] { return !isAbove(); }));
    tip.raise();
    EXPECT_TRUE(eventually(isAbove));
}

TEST_F(TipWindowTest, clicksGoToWhatLiesBelow)
{
    ManagedWindow below({600, 300, 300, 300});
    showTip();
    ASSERT_TRUE(isSeenAt(lowerHalf));
    display.hands.click(lowerHalf);
    EXPECT_TRUE(eventually([&] { return below.clicks() == 1; }));
}

TEST_F(TipWindowTest, takesNoFocus)
{
    const ManagedWindow other({100, 100, 300, 200});
    showTip();
    ASSERT_TRUE(isSeenAt(lowerHalf));
    settle();
    EXPECT_EQ(display.server.activeWindow(), other.id());
    EXPECT_EQ(display.server.focusedWindow(), other.id());
}

TEST_F(TipWindowTest, isHiddenAndShownAgain)
{
    showTip();
    ASSERT_TRUE(isSeenAt(lowerHalf));
    tip.hide();
    EXPECT_TRUE(isHidden());
    tip.raise();
    EXPECT_TRUE(isHidden());
    showTip();
    EXPECT_TRUE(isSeenAt(lowerHalf));
}

TEST_F(TipWindowTest, isCutToItsOutlineWhereNobodyBlendsWindows)
{
    ASSERT_FALSE(panels.desktop().compositing.isComposited());
    show();
    showTip();
    ASSERT_TRUE(isSeenAt(lowerHalf));
    // What is behind it is seen at its corner.
    EXPECT_EQ(colorAt({650, 449}), colorAt({648, 449}));
}

TEST_F(TipWindowTest, screenReadersAreNotToldOfIt)
{
    showTip();
    ASSERT_TRUE(isSeenAt(lowerHalf));
    EXPECT_EQ(tip.window().accessibleRoot(), nullptr);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&tip.window()), nullptr);
}

} // namespace corvane::test
