#include "fakes/fake_drag_desktop.h"
#include "input/monitored_clicks.h"

#include <gtest/gtest.h>

#include <vector>

namespace corvane::test {

namespace {

using Places = std::vector<std::optional<QPointF>>;

class MonitoredClicksTest : public testing::Test {
protected:
    OutsideClicks::Handler note()
    {
        return [this](std::optional<QPointF> place) { places.push_back(place); };
    }

    FakeDragDesktop desktop;
    MonitoredClicks clicks{desktop, desktop.pointer};
    Places places;
};

} // namespace

TEST_F(MonitoredClicksTest, tellsWhereAButtonWasPressedInAnotherProgram)
{
    const Subscription watching = clicks.watch(note());
    EXPECT_TRUE(watching.isActive());
    desktop.pressElsewhere(QPointF(20, 30), FakeDragDesktop::rightButton);
    desktop.press();
    EXPECT_EQ(places, Places{QPointF(20, 30)});
}

TEST_F(MonitoredClicksTest, aPressIsToldAlsoWhereNobodyKnowsItsPlace)
{
    const Subscription watching = clicks.watch(note());
    desktop.pressElsewhere(std::nullopt);
    EXPECT_EQ(places, Places{std::nullopt});
}

TEST_F(MonitoredClicksTest, nothingIsHeardBeforeAndAfter)
{
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
    Subscription watching = clicks.watch(note());
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 1U);
    watching.end();
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
    desktop.pressElsewhere(QPointF(1, 1));
    EXPECT_TRUE(places.empty());
}

TEST_F(MonitoredClicksTest, theWatchMayEndInItsHandler)
{
    Subscription watching;
    watching = clicks.watch([&](std::optional<QPointF> place) {
        places.push_back(place);
        watching.end();
        EXPECT_FALSE(watching.isActive());
    });
    desktop.pressElsewhere(QPointF(1, 1));
    desktop.pressElsewhere(QPointF(2, 2));
    EXPECT_EQ(places, Places{QPointF(1, 1)});
}

TEST_F(MonitoredClicksTest, aDesktopThatTellsNothingLeavesNothingToTakeBack)
{
    desktop.refusesGlobalMonitor = true;
    EXPECT_FALSE(clicks.watch(note()).isActive());
    EXPECT_EQ(desktop.removals, 0);
}

} // namespace corvane::test
