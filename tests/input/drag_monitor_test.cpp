#include "fakes/fake_drag_desktop.h"
#include "fakes/test_clock.h"
#include "input/drag_monitor.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <memory>

namespace corvane {
namespace {

constexpr double pollInterval = DragMonitor::pollInterval;
constexpr double settleDelay = DragMonitor::settleDelay;

struct DragMonitorTest : testing::Test {
    DragMonitorTest()
    {
        monitor->onDragBegan = [this] { log << QStringLiteral("began"); };
        monitor->onDragEnded = [this](DragEnd end) {
            EXPECT_EQ(end, DragEnd::Seen);
            log << QStringLiteral("ended");
        };
    }

    test::FakeDragDesktop desk;
    test::TestClock clock;
    std::unique_ptr<DragMonitor> monitor = std::make_unique<DragMonitor>(desk, desk, desk, clock);
    QStringList log;

    const QStringList began = {QStringLiteral("began")};
    const QStringList beganAndEnded = {QStringLiteral("began"), QStringLiteral("ended")};
};

TEST_F(DragMonitorTest, ReportsADragAndItsEnd)
{
    monitor->start();
    desk.startDrag();
    EXPECT_EQ(log, began);
    EXPECT_TRUE(monitor->isDragging());
    desk.release();
    clock.advance(pollInterval + settleDelay);
    EXPECT_EQ(log, beganAndEnded);
    EXPECT_FALSE(monitor->isDragging());
}

TEST_F(DragMonitorTest, TakesNoMovementWithoutContentsForADrag)
{
    monitor->start();
    desk.press();
    for (int x = 0; x < 100; ++x)
        desk.moveTo(QPointF(x, 0));
    EXPECT_EQ(log, QStringList());
}

TEST_F(DragMonitorTest, TakesNoChangedPasteboardForADragBeforeThePointerMoves)
{
    monitor->start();
    desk.press();
    desk.pickUp();
    clock.advance(1);
    EXPECT_EQ(log, QStringList());
    desk.moveTo({1, 0});
    EXPECT_EQ(log, began);
}

TEST_F(DragMonitorTest, IgnoresADragThatBeganBeforeTheStart)
{
    desk.startDrag();
    monitor->start();
    desk.moveTo({2, 0});
    EXPECT_EQ(log, QStringList());
    desk.release();
    desk.startDrag();
    EXPECT_EQ(log, began);
}

TEST_F(DragMonitorTest, ReportsOneBeginningForHundredsOfEvents)
{
    monitor->start();
    desk.startDrag();
    const int reads = desk.changeCountReads;
    for (int x = 0; x < 500; ++x)
        desk.moveTo(QPointF(x, 0));
    EXPECT_EQ(log, began);
    EXPECT_EQ(desk.changeCountReads, reads) << "an event during a drag costs one test";
}

TEST_F(DragMonitorTest, ReportsTheEndNoSoonerThanTheSettleDelayAfterTheButtonIsSeenUp)
{
    monitor->start();
    desk.startDrag();
    desk.release();
    clock.advance(pollInterval);
    EXPECT_FALSE(monitor->isDragging());
    clock.advance(settleDelay - 0.001);
    EXPECT_EQ(log, began);
    clock.advance(0.001);
    EXPECT_EQ(log, beganAndEnded);
}

TEST_F(DragMonitorTest, LooksAtTheButtonOnlyEveryPollInterval)
{
    monitor->start();
    desk.startDrag();
    desk.release();
    clock.advance(pollInterval - 0.001);
    EXPECT_TRUE(monitor->isDragging());
    clock.advance(0.001);
    EXPECT_FALSE(monitor->isDragging());
}

TEST_F(DragMonitorTest, EndsOnceAndStopsPolling)
{
    monitor->start();
    desk.startDrag();
    clock.advance(1);
    EXPECT_EQ(log, began);
    desk.release();
    clock.advance(10);
    EXPECT_EQ(log, beganAndEnded);
    EXPECT_EQ(clock.pendingCount(), 0U);
}

TEST_F(DragMonitorTest, PollsBeforeItTellsThatADragBegan)
{
    bool isPolling = false;
    monitor->onDragBegan = [&] { isPolling = clock.pendingCount() > 0 && monitor->isDragging(); };
    monitor->start();
    desk.startDrag();
    EXPECT_TRUE(isPolling);
}

TEST_F(DragMonitorTest, ReportsADragThatBeginsWhileTheLastOneSettlesBeforeTheOldEnd)
{
    monitor->start();
    desk.startDrag();
    desk.release();
    clock.advance(pollInterval);
    desk.startDrag();
    clock.advance(settleDelay);
    EXPECT_EQ(
        log,
        (QStringList{QStringLiteral("began"), QStringLiteral("began"), QStringLiteral("ended")}));
    EXPECT_TRUE(monitor->isDragging());
    desk.release();
    clock.advance(1);
    EXPECT_EQ(log.count(QStringLiteral("ended")), 2);
}

TEST_F(DragMonitorTest, TakesNothingThatChangesWhileSettlingForADragLater)
{
    monitor->start();
    desk.startDrag();
    desk.release();
    clock.advance(pollInterval);
    desk.pickUp();
    clock.advance(settleDelay);
    desk.press();
    desk.moveTo({5, 5});
    EXPECT_EQ(log, beganAndEnded);
}

TEST_F(DragMonitorTest, TakesNoMovementWhileSettlingForASecondDragOfTheSameContents)
{
    // Nothing tells it of presses here, which would hide what it remembers itself.
    desk.refusesGlobalMonitor = true;
    monitor->start();
    desk.press();
    desk.pickUp();
    desk.moveInsideOwnWindow({1, 0});
    desk.release();
    clock.advance(pollInterval);
    desk.press();
    desk.moveInsideOwnWindow({2, 0});
    EXPECT_EQ(log, began);
    clock.advance(settleDelay);
    EXPECT_EQ(log, beganAndEnded);
}

TEST_F(DragMonitorTest, StaysDraggingWhenItIsStoppedInTheMiddle)
{
    monitor->start();
    desk.startDrag();
    monitor->stop();
    desk.release();
    clock.advance(10);
    EXPECT_EQ(log, began);
    EXPECT_TRUE(monitor->isDragging());
    EXPECT_EQ(desk.monitorCount(), 0U);
    EXPECT_EQ(clock.pendingCount(), 0U);
}

TEST_F(DragMonitorTest, RemovesEachMonitorOnce)
{
    monitor->start();
    monitor->stop();
    monitor->stop();
    monitor.reset();
    EXPECT_EQ(desk.removals, 3);
    EXPECT_EQ(desk.monitorCount(), 0U);
}

TEST_F(DragMonitorTest, CountsOnlyTheLeftButton)
{
    monitor->start();
    desk.startDrag();
    desk.press(test::FakeDragDesktop::rightButton);
    desk.release();
    clock.advance(pollInterval + settleDelay);
    EXPECT_EQ(log, beganAndEnded);
}

TEST_F(DragMonitorTest, TakesNoSelectionAfterADragWithTheRightButtonForADrag)
{
    monitor->start();
    desk.press(test::FakeDragDesktop::rightButton);
    desk.pickUp();
    desk.moveTo({1, 0});
    desk.release(test::FakeDragDesktop::rightButton);
    desk.press();
    desk.moveTo({2, 0});
    EXPECT_EQ(log, QStringList());
    desk.pickUp();
    desk.moveTo({3, 0});
    EXPECT_EQ(log, began);
}

TEST_F(DragMonitorTest, TakesNoSelectionForADragWhoseSourceWasReadyOnlyAfterTheRelease)
{
    monitor->start();
    desk.press();
    desk.moveTo({1, 0});
    desk.release();
    desk.pickUp();
    clock.advance(1);
    desk.press();
    desk.moveTo({2, 0});
    EXPECT_EQ(log, QStringList());
    // Nor in a window of our own.
    desk.release();
    desk.pickUp();
    desk.press();
    desk.moveInsideOwnWindow({3, 0});
    EXPECT_EQ(log, QStringList());
}

TEST_F(DragMonitorTest, GoesOnWithADragWhileFurtherButtonsArePressed)
{
    monitor->start();
    desk.press();
    desk.pickUp();
    desk.press(test::FakeDragDesktop::rightButton);
    desk.moveTo({1, 0});
    EXPECT_EQ(log, began);
    desk.press();
    desk.moveTo({2, 0});
    EXPECT_EQ(log, began);
    desk.release();
    clock.advance(1);
    EXPECT_EQ(log, beganAndEnded);
}

TEST_F(DragMonitorTest, HearsDragsInOurOwnWindowsToo)
{
    monitor->start();
    desk.press();
    desk.pickUp();
    desk.moveInsideOwnWindow({1, 0});
    EXPECT_EQ(log, began);
}

TEST_F(DragMonitorTest, WorksWithTheMonitorThatItIsGiven)
{
    desk.refusesLocalMonitor = true;
    monitor->start();
    desk.startDrag();
    EXPECT_EQ(log, began);
    monitor->stop();
    EXPECT_EQ(desk.removals, 2);
}

TEST_F(DragMonitorTest, WorksWithoutCallbacks)
{
    monitor->onDragBegan = {};
    monitor->onDragEnded = {};
    monitor->start();
    desk.startDrag();
    desk.release();
    clock.advance(1);
    EXPECT_FALSE(monitor->isDragging());
}

TEST_F(DragMonitorTest, DoesNothingOnceItIsGone)
{
    monitor->start();
    desk.startDrag();
    desk.release();
    clock.advance(pollInterval);
    monitor.reset();
    clock.advance(1);
    EXPECT_EQ(log, began);
    EXPECT_EQ(desk.monitorCount(), 0U);
}

TEST_F(DragMonitorTest, MayBeDestroyedByItsOwnCallback)
{
    monitor->onDragBegan = [this] { monitor.reset(); };
    monitor->start();
    desk.startDrag();
    EXPECT_EQ(monitor, nullptr);
    clock.advance(1);
}

} // namespace
} // namespace corvane
