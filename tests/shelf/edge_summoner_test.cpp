#include "fakes/fake_drag_desktop.h"
#include "fakes/fake_pointer_barriers.h"
#include "fakes/shelf_model.h"
#include "input/barrier_edge_trigger.h"
#include "input/monitored_clicks.h"
#include "shelf/edge_summoner.h"

#include <gtest/gtest.h>

#include <optional>

namespace corvane::test {

namespace {

constexpr double approachDelay = EdgeSummoner::approachDelay;
constexpr double leaveDelay = EdgeSummoner::leaveDelay;
/// Shorter than any of the delays.
constexpr double moment = 0.01;

class EdgeSummonerTest : public testing::Test, protected ShelfModel {
protected:
    EdgeSummonerTest()
    {
        make();
        store.observeState([this](ShelfState, ShelfState) { ++stateChanges; });
    }

    void make()
    {
        summoner.emplace(EdgeSummoner::Context{edgeTrigger, clicks, screens, store, desk.clock,
                                               [this](const ScreenPointer &) {
                                                   ++measurements;
                                                   return width;
                                               },
                                               [this](double seconds) {
                                                   EXPECT_FALSE(isShown()) << "before it is shown";
                                                   clicksThrough.push_back(seconds);
                                               }});
    }

    /// The shelf holds two items and was closed by hand.
    void hideShelf()
    {
        store.accept(
            {ShelfDesk::textItem(QStringLiteral("a")), ShelfDesk::textItem(QStringLiteral("b"))});
        store.toggleManually();
        stateChanges = 0;
    }
    void push()
    {
        desktop.pointer.position = edge;
        trigger.push();
    }
    void goAway()
    {
        desktop.pointer.position = QPointF(700, 300);
        trigger.leave();
    }
    /// The shelf is shown because of the edge, and the pointer is on it.
    void summonShelf()
    {
        hideShelf();
        push();
        desk.clock.advance(approachDelay);
        summoner->pointerIsInside(true);
    }
    void leaveShelf()
    {
        desktop.pointer.position = QPointF(700, 300);
        summoner->pointerIsInside(false);
    }
    bool isShown() const { return store.state() == ShelfState::Occupied; }
    bool isWatching() const { return !trigger.watched.empty(); }

    static constexpr QPointF edge{760, 981.5};

    double width = 200;
    int measurements = 0;
    FakePointerBarriers trigger;
    FakeFullScreenWindows fullScreenWindows;
    FakeDragDesktop desktop;
    MonitoredClicks clicks{desktop, desktop.pointer};
    BarrierEdgeTrigger edgeTrigger{{trigger, fullScreenWindows, desktop, desktop.pointer}};
    std::optional<EdgeSummoner> summoner;
    int stateChanges = 0;
    std::vector<double> clicksThrough;
};

} // namespace

TEST_F(EdgeSummonerTest, WatchesTheEdgeOnlyWhileTheShelfIsHiddenAndHoldsItems)
{
    EXPECT_FALSE(isWatching()) << "there is nothing to show";
    store.accept({ShelfDesk::textItem(QStringLiteral("a"))});
    EXPECT_FALSE(isWatching()) << "it is shown";
    store.toggleManually();
    EXPECT_TRUE(isWatching());
    store.toggleManually();
    EXPECT_FALSE(isWatching());
    store.toggleManually();
    store.clearAll();
    EXPECT_FALSE(isWatching());
    store.toggleManually();
    EXPECT_EQ(store.state(), ShelfState::Expanded);
    store.toggleManually();
    EXPECT_FALSE(isWatching()) << "an empty shelf is not worth showing";
}

TEST_F(EdgeSummonerTest, WatchesWhereTheShelfWouldHangOnEveryScreen)
{
    const auto second = screens.attach(QRectF(1512, 0, 800, 600));
    hideShelf();
    EXPECT_EQ(trigger.watched, (std::vector<EdgeStretch>{{screen, 656, 200}, {second, 300, 200}}));
}

TEST_F(EdgeSummonerTest, AShelfThatIsWiderThanTheScreenHasItsWholeEdge)
{
    width = 5000;
    hideShelf();
    EXPECT_EQ(trigger.watched, (std::vector<EdgeStretch>{{screen, 0, 1512}}));
}

TEST_F(EdgeSummonerTest, WatchesAnewWhenScreensChangeAndWhenTheShelfWouldBeWiderOnly)
{
    hideShelf();
    const int before = trigger.watchCount;
    publishItems();
    EXPECT_EQ(trigger.watchCount, before);
    width = 300;
    publishItems();
    EXPECT_EQ(trigger.watched, (std::vector<EdgeStretch>{{screen, 606, 300}}));
    const int beforeScreens = trigger.watchCount;
    screen->nativeFrame = {100, 0, 1512, 982};
    screens.notifyChanges();
    EXPECT_GT(trigger.watchCount, beforeScreens) << "the same screens may stand elsewhere";
    EXPECT_TRUE(isWatching());
}

TEST_F(EdgeSummonerTest, ShowsTheShelfOnceThePointerHasBeenKeptAtTheEdge)
{
    hideShelf();
    push();
    desk.clock.advance(approachDelay - 0.001);
    EXPECT_FALSE(isShown());
    desk.clock.advance(0.001);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(stateChanges, 1);
    EXPECT_FALSE(isWatching());
}

TEST_F(EdgeSummonerTest, APointerThatLeavesTheEdgeInTimeShowsNothing)
{
    hideShelf();
    push();
    desk.clock.advance(approachDelay - 0.001);
    goAway();
    push();
    desk.clock.advance(approachDelay - 0.001);
    EXPECT_FALSE(isShown()) << "the time counts from the last arrival";
    goAway();
    desk.clock.advance(10);
    EXPECT_FALSE(isShown());
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
}

TEST_F(EdgeSummonerTest, APointerThatWasPutElsewhereUnseenShowsNothing)
{
    hideShelf();
    push();
    for (const auto &place : {std::optional(QPointF(760, 978)), std::optional(QPointF(600, 981.5)),
                              std::optional<QPointF>()}) {
        desktop.pointer.position = place;
        desk.clock.advance(approachDelay);
        EXPECT_FALSE(isShown());
        goAway();
        push();
    }
}

TEST_F(EdgeSummonerTest, NeverShowsTheShelfWithAButtonHeld)
{
    for (const unsigned button : {MouseButtons::left, FakeDragDesktop::rightButton}) {
        hideShelf();
        desktop.press(button);
        push();
        desk.clock.advance(approachDelay);
        EXPECT_FALSE(isShown());
        desktop.release(button);
        desk.clock.advance(10);
        EXPECT_FALSE(isShown()) << "the pointer has to come anew";
        goAway();
        store.clearAll();
    }
}

TEST_F(EdgeSummonerTest, AClickAtTheEdgeIsForWhatLiesThere)
{
    hideShelf();
    push();
    desktop.pressElsewhere(edge);
    desktop.release();
    desk.clock.advance(10);
    EXPECT_FALSE(isShown());
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
    goAway();
    push();
    desk.clock.advance(approachDelay);
    EXPECT_TRUE(isShown());
}

TEST_F(EdgeSummonerTest, NeverShowsTheShelfOverAFullScreenWindow)
{
    const auto second = screens.attach(QRectF(1512, 0, 800, 600));
    hideShelf();
    fullScreenWindows.covered = screen.get();
    push();
    desk.clock.advance(approachDelay);
    EXPECT_FALSE(isShown());
    goAway();
    fullScreenWindows.covered = second.get();
    push();
    desk.clock.advance(approachDelay);
    EXPECT_TRUE(isShown()) << "a film on another screen is in nobody's way";
}

TEST_F(EdgeSummonerTest, HidesTheShelfAfterThePointerHasLeftIt)
{
    summonShelf();
    desk.clock.advance(100);
    EXPECT_TRUE(isShown());
    leaveShelf();
    desk.clock.advance(leaveDelay - 0.001);
    EXPECT_TRUE(isShown());
    desk.clock.advance(0.001);
    EXPECT_EQ(store.state(), ShelfState::Idle);
    EXPECT_EQ(stateChanges, 2);
    EXPECT_TRUE(isWatching());
}

TEST_F(EdgeSummonerTest, APointerThatComesBackInTimeKeepsTheShelf)
{
    summonShelf();
    leaveShelf();
    desk.clock.advance(leaveDelay - moment);
    summoner->pointerIsInside(true);
    desk.clock.advance(100);
    EXPECT_TRUE(isShown());
    leaveShelf();
    desk.clock.advance(leaveDelay);
    EXPECT_FALSE(isShown());
}

TEST_F(EdgeSummonerTest, HidesTheShelfThatThePointerNeverReached)
{
    hideShelf();
    push();
    desk.clock.advance(approachDelay + leaveDelay);
    EXPECT_FALSE(isShown());
}

TEST_F(EdgeSummonerTest, LetsClicksThroughAtFirst)
{
    hideShelf();
    push();
    EXPECT_TRUE(clicksThrough.empty());
    desk.clock.advance(approachDelay);
    EXPECT_EQ(clicksThrough, std::vector{0.3});
    EXPECT_TRUE(isShown());
}

TEST_F(EdgeSummonerTest, AClickThroughTheShelfIsForWhatLiesThereAndHidesIt)
{
    hideShelf();
    push();
    desk.clock.advance(approachDelay + 0.29);
    desktop.pressElsewhere(edge);
    EXPECT_FALSE(isShown());
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
    desktop.release();
    desk.clock.advance(3);
    EXPECT_EQ(stateChanges, 2);
}

TEST_F(EdgeSummonerTest, ALaterPressElsewhereHidesNothingByItself)
{
    hideShelf();
    push();
    desk.clock.advance(approachDelay + 0.31);
    desktop.pressElsewhere(QPointF(20, 20));
    EXPECT_TRUE(isShown());
    summoner->pointerIsInside(true);
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
    leaveShelf();
    desk.clock.advance(leaveDelay + moment);
    EXPECT_TRUE(isShown()) << "something may be about to be dragged here";
    desktop.release();
    desk.clock.advance(leaveDelay + moment);
    EXPECT_FALSE(isShown());
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
}

TEST_F(EdgeSummonerTest, CanBeSummonedAgainAndAgain)
{
    summonShelf();
    for (int i = 0; i < 3; ++i) {
        leaveShelf();
        desk.clock.advance(leaveDelay);
        EXPECT_FALSE(isShown());
        push();
        desk.clock.advance(approachDelay);
        EXPECT_TRUE(isShown());
        summoner->pointerIsInside(true);
    }
}

TEST_F(EdgeSummonerTest, ComesWithoutABarThatWasLeftOpen)
{
    hideShelf();
    store.toggleViewAll();
    ASSERT_TRUE(store.isViewAllOpen());
    push();
    desk.clock.advance(approachDelay);
    summoner->pointerIsInside(true);
    EXPECT_TRUE(isShown());
    EXPECT_FALSE(store.isViewAllOpen());
    leaveShelf();
    desk.clock.advance(leaveDelay);
    EXPECT_FALSE(isShown());
}

TEST_F(EdgeSummonerTest, AShelfThatIsUsedStaysAsIfOpenedByHand)
{
    summonShelf();
    summoner->shelfIsUsed();
    leaveShelf();
    desk.clock.advance(100);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(desk.clock.pendingCount(), 0U);
}

TEST_F(EdgeSummonerTest, AUseWhileItIsAboutToHideComesInTime)
{
    summonShelf();
    leaveShelf();
    desk.clock.advance(leaveDelay - moment);
    summoner->shelfIsUsed();
    desk.clock.advance(100);
    EXPECT_TRUE(isShown());
}

TEST_F(EdgeSummonerTest, ADragAnywhereMakesItStay)
{
    summonShelf();
    leaveShelf();
    store.dragBegan();
    store.dragEnded();
    desk.clock.advance(100);
    EXPECT_TRUE(isShown());
}

TEST_F(EdgeSummonerTest, AnItemThatArrivesOrLeavesMakesItStay)
{
    summonShelf();
    store.accept({ShelfDesk::textItem(QStringLiteral("c"))});
    leaveShelf();
    desk.clock.advance(100);
    EXPECT_TRUE(isShown());
}

TEST_F(EdgeSummonerTest, TheViewAllBarMakesItStay)
{
    summonShelf();
    store.toggleViewAll();
    store.toggleViewAll();
    leaveShelf();
    desk.clock.advance(100);
    EXPECT_TRUE(isShown());
}

TEST_F(EdgeSummonerTest, AThumbnailThatArrivesIsNoUse)
{
    summonShelf();
    publishItems();
    leaveShelf();
    desk.clock.advance(leaveDelay);
    EXPECT_FALSE(isShown());
}

TEST_F(EdgeSummonerTest, MeasuresTheHiddenShelfOnceAFrameWhilePicturesArrive)
{
    QList<DropItem> items;
    for (int i = 0; i < 100; ++i)
        items << ShelfDesk::fileItem(QString::number(i));
    store.accept(items);
    store.toggleManually();
    measurements = 0;
    for (const DropItem &item : items)
        store.describe(item.id(), QStringLiteral("now known"));
    desk.clock.advance(StoreFollower::detailDelay);
    EXPECT_EQ(measurements, 1);
}

TEST_F(EdgeSummonerTest, DoesNotHideTheShelfWhileAButtonIsHeld)
{
    summonShelf();
    leaveShelf();
    desktop.press();
    desk.clock.advance(10 * leaveDelay);
    EXPECT_TRUE(isShown());
    desktop.release();
    desk.clock.advance(leaveDelay);
    EXPECT_FALSE(isShown());
}

TEST_F(EdgeSummonerTest, NeverOpensAShelfThatTheUserClosedMeanwhile)
{
    summonShelf();
    leaveShelf();
    store.toggleManually();
    EXPECT_EQ(store.state(), ShelfState::Idle);
    desk.clock.advance(100);
    EXPECT_EQ(store.state(), ShelfState::Idle);
    EXPECT_EQ(stateChanges, 2);
}

TEST_F(EdgeSummonerTest, NeverHidesAShelfThatTheUserOpenedAnewMeanwhile)
{
    summonShelf();
    leaveShelf();
    store.toggleManually();
    store.toggleManually();
    desk.clock.advance(100);
    EXPECT_TRUE(isShown());
}

TEST_F(EdgeSummonerTest, NeverClosesAShelfThatWasOpenedWhileThePointerWasAtTheEdge)
{
    hideShelf();
    push();
    desk.clock.advance(approachDelay - moment);
    store.toggleManually();
    ASSERT_TRUE(isShown());
    desk.clock.advance(100);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
}

TEST_F(EdgeSummonerTest, HasNothingPendingWhileNobodyIsThere)
{
    hideShelf();
    EXPECT_EQ(desk.clock.pendingCount(), 0U);
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
    push();
    goAway();
    desk.clock.advance(approachDelay);
    EXPECT_EQ(desk.clock.pendingCount(), 0U);
    push();
    screens.detach(screen);
    screens.notifyChanges();
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U) << "no screen is there either";
}

TEST_F(EdgeSummonerTest, HasNothingPendingWhileThePointerRestsOnTheShelf)
{
    summonShelf();
    desk.clock.advance(leaveDelay);
    EXPECT_EQ(desk.clock.pendingCount(), 0U);
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
}

TEST_F(EdgeSummonerTest, DoesNothingOnceItIsGone)
{
    hideShelf();
    push();
    summoner.reset();
    EXPECT_FALSE(isWatching());
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
    desk.clock.advance(100);
    publishItems();
    screens.notifyChanges();
    trigger.push();
    desk.clock.advance(100);
    EXPECT_FALSE(isShown());
}

TEST_F(EdgeSummonerTest, OnceStoppedItWatchesNoEdgeAnyMore)
{
    hideShelf();
    ASSERT_TRUE(isWatching());
    summoner->stop();
    EXPECT_FALSE(isWatching());
    store.toggleManually();
    store.toggleManually();
    screens.notifyChanges();
    desk.clock.runPending();
    EXPECT_FALSE(isWatching());
}

TEST_F(EdgeSummonerTest, AShelfThatItShowedStaysWhenItIsStopped)
{
    summonShelf();
    summoner->stop();
    leaveShelf();
    desk.clock.advance(10);
    EXPECT_TRUE(isShown());
}

} // namespace corvane::test
