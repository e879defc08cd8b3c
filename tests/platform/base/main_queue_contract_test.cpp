#include "fakes/test_clock.h"
#include "platform/display.h"
#include "platform/qt/base/qt_main_queue.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QStringList>

#include <gtest/gtest.h>

#include <thread>

namespace corvane::test {

namespace {

/// Lets time pass on either kind of queue.
void pass(TestClock &queue, double seconds)
{
    queue.advance(seconds);
}
void pass(QtMainQueue &queue, double seconds)
{
    const double end = queue.now() + seconds;
    eventually([&] { return queue.now() >= end; });
    QCoreApplication::processEvents();
}

template<typename Queue>
class MainQueueContract : public testing::Test {
protected:
    Queue queue;
    QStringList log;

    MainQueue::Work note(const QString &text)
    {
        return [this, text] { log << text; };
    }
};

using Queues = testing::Types<TestClock, QtMainQueue>;
TYPED_TEST_SUITE(MainQueueContract, Queues);

} // namespace

TYPED_TEST(MainQueueContract, runsWorkLaterAndInOrder)
{
    this->queue.async(this->note(QStringLiteral("one")));
    this->queue.async(this->note(QStringLiteral("two")));
    EXPECT_TRUE(this->log.isEmpty());
    pass(this->queue, 0.01);
    EXPECT_EQ(this->log, QStringList({QStringLiteral("one"), QStringLiteral("two")}));
}

TYPED_TEST(MainQueueContract, runsWorkGivenByWork)
{
    this->queue.async([this] { this->queue.async(this->note(QStringLiteral("inner"))); });
    pass(this->queue, 0.01);
    EXPECT_EQ(this->log, QStringList(QStringLiteral("inner")));
}

TYPED_TEST(MainQueueContract, takesWorkFromAnyThread)
{
    std::thread other([this] {
        for (int i = 0; i < 100; ++i)
            this->queue.async(this->note(QString::number(i)));
    });
    other.join();
    pass(this->queue, 0.05);
    ASSERT_EQ(this->log.size(), 100);
    EXPECT_EQ(this->log.constFirst(), QStringLiteral("0"));
    EXPECT_EQ(this->log.constLast(), QStringLiteral("99"));
}

TYPED_TEST(MainQueueContract, runsDelayedWorkOnceItsTimeHasCome)
{
    this->queue.asyncAfter(0.08, this->note(QStringLiteral("late")));
    this->queue.asyncAfter(0.02, this->note(QStringLiteral("early")));
    pass(this->queue, 0.01);
    EXPECT_TRUE(this->log.isEmpty());
    pass(this->queue, 0.2);
    EXPECT_EQ(this->log, QStringList({QStringLiteral("early"), QStringLiteral("late")}));
}

TYPED_TEST(MainQueueContract, repeatsUntilTheTimerIsDestroyed)
{
    auto timer = this->queue.repeating(0.02, this->note(QStringLiteral("tick")));
    pass(this->queue, 0.11);
    EXPECT_GE(this->log.size(), 3);
    timer.reset();
    this->log.clear();
    pass(this->queue, 0.1);
    EXPECT_TRUE(this->log.isEmpty());
}

TYPED_TEST(MainQueueContract, aTimerMayBeDestroyedByItsOwnWork)
{
    std::unique_ptr<MainQueue::Timer> timer;
    // What the work holds must outlive its timer.
    const auto held = std::make_shared<QString>(QStringLiteral("tick"));
    timer = this->queue.repeating(0.01, [this, &timer, held] {
        timer.reset();
        this->log << *held;
    });
    pass(this->queue, 0.1);
    EXPECT_EQ(this->log, QStringList(QStringLiteral("tick")));
}

TYPED_TEST(MainQueueContract, itsClockOnlyGoesForward)
{
    const double before = this->queue.now();
    pass(this->queue, 0.02);
    EXPECT_GE(this->queue.now() - before, 0.02 - 1e-9);
}

TEST(QtMainQueue, aFloodOfWorkLeavesTheEventLoopRoomToBreathe)
{
    QtMainQueue queue;
    int done = 0;
    for (int i = 0; i < 200; ++i) {
        queue.async([&] {
            QElapsedTimer busy;
            busy.start();
            while (busy.nsecsElapsed() < 500'000) { }
            ++done;
        });
    }
    int doneAtFirstTick = -1;
    const auto timer = queue.repeating(0.005, [&] {
        if (doneAtFirstTick < 0)
            doneAtFirstTick = done;
    });
    ASSERT_TRUE(eventually([&] { return done == 200; }));
    EXPECT_GT(doneAtFirstTick, 0);
    EXPECT_LT(doneAtFirstTick, 100);
}

TEST(QtMainQueue, workThatRunsAnEventLoopDoesNotKeepTheRestWaiting)
{
    QtMainQueue queue;
    QEventLoop inner;
    bool wasInside = false;
    queue.async([&] { inner.exec(); });
    queue.async([&] {
        wasInside = inner.isRunning();
        inner.quit();
    });
    ASSERT_TRUE(eventually([&] { return wasInside && !inner.isRunning(); }));
}

TEST(QtMainQueue, aTimerKeepsToFractionsOfAMillisecond)
{
    // Rounded to 17 ms, ticks would be 7 to 13 ms late by then.
    QtMainQueue queue;
    constexpr double frame = 1.0 / 60;
    constexpr int first = 20;
    constexpr int last = 40;
    const double start = queue.now();
    double leastLate = frame;
    int number = 0;
    const auto timer = queue.repeating(frame, [&] {
        const double passed = queue.now() - start;
        number = static_cast<int>(std::round(passed / frame));
        if (number >= first && number <= last)
            leastLate = std::min(leastLate, std::abs(passed - number * frame));
    });
    ASSERT_TRUE(eventually([&] { return number > last; }));
    EXPECT_LT(leastLate, 0.003);
}

TEST(QtMainQueue, timersTickInsideANestedLoop)
{
    QtMainQueue queue;
    QEventLoop inner;
    int ticks = 0;
    const auto timer = queue.repeating(0.01, [&] {
        if (++ticks == 3)
            inner.quit();
    });
    inner.exec();
    EXPECT_EQ(ticks, 3);
}

} // namespace corvane::test
