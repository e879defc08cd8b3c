#include "fakes/test_clock.h"
#include "input/timed_drag_watch.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <memory>

namespace corvane {
namespace {

constexpr double patience = TimedDragWatch::patience;
constexpr double grace = TimedDragWatch::grace;
constexpr double settling = TimedDragWatch::settleDelay;
constexpr double aMoment = 0.001;

struct TimedDragWatchTest : testing::Test {
    TimedDragWatchTest()
    {
        watch->onDragBegan = [this] { log << QStringLiteral("began"); };
        watch->onDragEnded = [this](DragEnd end) {
            log << (end == DragEnd::Seen ? QStringLiteral("seen") : QStringLiteral("assumed"));
        };
        watch->onUncertain = [this](bool mayGoOn) {
            log << (mayGoOn ? QStringLiteral("uncertain") : QStringLiteral("settled"));
        };
        watch->start();
    }
    QStringList taken() { return std::exchange(log, {}); }
    static QStringList words(const char *text)
    {
        return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }

    test::TestClock clock;
    std::unique_ptr<TimedDragWatch> watch = std::make_unique<TimedDragWatch>(clock);
    QStringList log;
};

TEST_F(TimedDragWatchTest, AssumesTheEndOfADragThatDoesNotComeToAPanel)
{
    watch->noticed();
    EXPECT_EQ(taken(), words("began"));
    clock.advance(patience - aMoment);
    EXPECT_EQ(taken(), words(""));
    clock.advance(aMoment);
    EXPECT_EQ(taken(), words("uncertain assumed"));
}

// It may be on another screen.
TEST_F(TimedDragWatchTest, TellsOfADragThatBeginsWhileTheEndOfAnotherIsAwaited)
{
    watch->noticed();
    watch->noticed();
    EXPECT_EQ(taken(), words("began began"));
    watch->overPanel(true);
    watch->overPanel(false);
    watch->noticed();
    EXPECT_EQ(taken(), words("began"));
    clock.advance(patience);
    EXPECT_EQ(taken(), words("uncertain assumed"));
}

TEST_F(TimedDragWatchTest, AssumesNoEndOfADragThatStaysOverAPanel)
{
    watch->noticed();
    watch->overPanel(true);
    clock.advance(100 * patience);
    EXPECT_EQ(taken(), words("began"));
}

TEST_F(TimedDragWatchTest, GivesADragThatLeftAPanelSomeTimeToComeBack)
{
    watch->noticed();
    watch->overPanel(true);
    watch->overPanel(false);
    clock.advance(grace - aMoment);
    watch->overPanel(true);
    clock.advance(2 * patience);
    EXPECT_EQ(taken(), words("began"));
    watch->overPanel(false);
    clock.advance(grace);
    EXPECT_EQ(taken(), words("uncertain assumed"));
}

TEST_F(TimedDragWatchTest, SeesTheEndOfADragThatIsLetGoOverAPanel)
{
    watch->noticed();
    watch->overPanel(true);
    watch->droppedOnPanel();
    watch->overPanel(false);
    EXPECT_EQ(taken(), words("began"));
    clock.advance(settling);
    EXPECT_EQ(taken(), words("seen"));
    clock.advance(2 * patience);
    EXPECT_EQ(taken(), words(""));
}

TEST_F(TimedDragWatchTest, KnowsThatADragIsOverWhereThePointerComesWithNothing)
{
    watch->noticed();
    watch->pointerIsFree();
    EXPECT_EQ(taken(), words("began seen"));
    clock.advance(2 * patience);
    EXPECT_EQ(taken(), words(""));
}

TEST_F(TimedDragWatchTest, SettlesWhatWasUncertainWhereThePointerComesWithNothing)
{
    watch->noticed();
    clock.advance(patience);
    taken();
    watch->pointerIsFree();
    EXPECT_EQ(taken(), words("settled"));
}

TEST_F(TimedDragWatchTest, ReportsTheEndOnceMoreOfADragThatGoesOn)
{
    watch->noticed();
    clock.advance(patience);
    taken();
    watch->overPanel(true);
    EXPECT_EQ(taken(), words("settled"));
    watch->overPanel(false);
    clock.advance(grace);
    EXPECT_EQ(taken(), words("uncertain assumed"));
}

TEST_F(TimedDragWatchTest, ReportsADragAnewThatComesBackToAnEdge)
{
    watch->noticed();
    clock.advance(patience);
    taken();
    watch->noticed();
    EXPECT_EQ(taken(), words("settled began"));
}

TEST_F(TimedDragWatchTest, WaitsAnewForADragThatIsNoticedTwice)
{
    watch->noticed();
    clock.advance(patience - aMoment);
    watch->noticed();
    clock.advance(patience - aMoment);
    EXPECT_EQ(taken(), words("began began"));
    clock.advance(aMoment);
    EXPECT_EQ(taken(), words("uncertain assumed"));
}

TEST_F(TimedDragWatchTest, NoticesADragOverAPanelThatNobodyToldOf)
{
    watch->overPanel(true);
    EXPECT_EQ(taken(), words("began"));
}

TEST_F(TimedDragWatchTest, AssumesNoEndWhereADragIsToldOfThatIsOverAPanelAlready)
{
    watch->overPanel(true);
    watch->noticed();
    clock.advance(2 * patience);
    EXPECT_EQ(taken(), words("began"));
}

TEST_F(TimedDragWatchTest, SeesNoEndWhereADragOfOurOwnIsLetGoOverAPanel)
{
    watch->ownDrag(true);
    watch->overPanel(true);
    watch->droppedOnPanel();
    clock.advance(2 * settling);
    EXPECT_EQ(taken(), words(""));
}

TEST_F(TimedDragWatchTest, SettlesWhatWasUncertainWhenItIsStopped)
{
    watch->noticed();
    clock.advance(patience);
    taken();
    watch->stop();
    EXPECT_EQ(taken(), words("settled"));
}

TEST_F(TimedDragWatchTest, TakesADragOfOurOwnForNone)
{
    watch->ownDrag(true);
    watch->noticed();
    watch->overPanel(true);
    watch->overPanel(false);
    clock.advance(2 * patience);
    EXPECT_EQ(taken(), words(""));
    watch->ownDrag(false);
    watch->noticed();
    EXPECT_EQ(taken(), words("began"));
}

TEST_F(TimedDragWatchTest, ReportsADragThatBeginsWhileTheLastOneSettles)
{
    watch->noticed();
    watch->overPanel(true);
    watch->droppedOnPanel();
    watch->noticed();
    EXPECT_EQ(taken(), words("began began"));
    clock.advance(patience);
    EXPECT_EQ(taken(), words("uncertain assumed"));
}

TEST_F(TimedDragWatchTest, SeesNothingBeforeItIsStartedAndAfterItIsStopped)
{
    watch->noticed();
    watch->stop();
    EXPECT_EQ(taken(), words("began"));
    clock.advance(2 * patience);
    watch->noticed();
    watch->overPanel(true);
    EXPECT_EQ(taken(), words(""));
}

TEST_F(TimedDragWatchTest, MayBeDestroyedByItsCallbacks)
{
    watch->onDragEnded = [this](DragEnd) { watch.reset(); };
    watch->noticed();
    clock.advance(patience);
    EXPECT_EQ(watch, nullptr);
    clock.advance(patience);
}

TEST_F(TimedDragWatchTest, MayBeDestroyedWhereItSaysThatItIsUncertain)
{
    watch->onUncertain = [this](bool) { watch.reset(); };
    watch->noticed();
    clock.advance(patience);
    EXPECT_EQ(watch, nullptr);
    EXPECT_EQ(taken(), words("began"));
}

} // namespace
} // namespace corvane
