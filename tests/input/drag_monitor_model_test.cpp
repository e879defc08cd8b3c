// The drag monitor beside a model that knows only ticks of a hundredth of a second: buttons,
// contents and movements come in any order, and both tell the same at the same time.

#include "fakes/fake_drag_desktop.h"
#include "fakes/random_steps.h"
#include "fakes/test_clock.h"
#include "input/drag_monitor.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <vector>

namespace corvane::test {

namespace {

struct DragMonitorModel {
    static constexpr int pollTicks = 5;
    static constexpr int settleTicks = 12;

    void start()
    {
        isListening = true;
        seenContents = contents;
    }
    void stop()
    {
        isListening = false;
        nextPoll.reset();
    }
    /// What changed before the press counts for nothing.
    void leftPressed()
    {
        if (isListening && hearsOthers)
            seenContents = contents;
    }
    void moved(bool isOurs)
    {
        const bool isHeard = isListening && (isOurs ? hearsOurs : hearsOthers);
        if (!isHeard || !isLeftDown || isDragging || contents == seenContents)
            return;
        seenContents = contents;
        isDragging = true;
        nextPoll = now + pollTicks;
        log << QStringLiteral("began");
    }
    void tick()
    {
        ++now;
        for (const int due : settling) {
            if (due != now)
                continue;
            seenContents = contents;
            log << QStringLiteral("ended at %1").arg(now);
        }
        if (nextPoll != now)
            return;
        nextPoll = now + pollTicks;
        if (isLeftDown)
            return;
        isDragging = false;
        nextPoll.reset();
        settling.push_back(now + settleTicks);
    }

    bool hearsOthers = true;
    bool hearsOurs = true;
    bool isListening = false;
    int now = 0;
    int contents = 0;
    int seenContents = 0;
    bool isLeftDown = false;
    bool isDragging = false;
    std::optional<int> nextPoll;
    std::vector<int> settling;
    QStringList log;
};

class MonitorAndModel {
public:
    explicit MonitorAndModel(RandomSteps &steps)
    {
        desk.refusesGlobalMonitor = steps.oneIn(10);
        desk.refusesLocalMonitor = steps.oneIn(10);
        model.hearsOthers = !desk.refusesGlobalMonitor;
        model.hearsOurs = !desk.refusesLocalMonitor;
        monitor->onDragBegan = [this] { log << QStringLiteral("began"); };
        monitor->onDragEnded = [this](DragEnd) {
            log << QStringLiteral("ended at %1").arg(qRound(clock.now() * 100));
        };
    }

    void step(RandomSteps &steps)
    {
        static constexpr std::array<WeightedStep<MonitorAndModel>, 11> table{{
            {8, &MonitorAndModel::pressLeft},
            {8, &MonitorAndModel::releaseLeft},
            {1, &MonitorAndModel::pressRight},
            {1, &MonitorAndModel::releaseRight},
            {8, &MonitorAndModel::pickUp},
            {12, &MonitorAndModel::moveElsewhere},
            {5, &MonitorAndModel::moveInOurs},
            {12, &MonitorAndModel::pass},
            {2, &MonitorAndModel::passLong},
            {3, &MonitorAndModel::start},
            {1, &MonitorAndModel::stopOrDestroy},
        }};
        playOneOf(*this, steps, table);
        ASSERT_EQ(lines(log), lines(model.log));
        if (!monitor)
            return;
        ASSERT_EQ(monitor->isDragging(), model.isDragging);
        ASSERT_EQ(desk.monitorCount(),
                  model.isListening ? 2U * model.hearsOthers + 1U * model.hearsOurs : 0U);
    }

private:
    void pressLeft(RandomSteps &steps)
    {
        steps.note(QStringLiteral("press left"));
        if (!model.isLeftDown)
            model.leftPressed();
        model.isLeftDown = true;
        desk.press();
    }
    void releaseLeft(RandomSteps &steps)
    {
        steps.note(QStringLiteral("release left"));
        model.isLeftDown = false;
        desk.release();
    }
    void pressRight(RandomSteps &steps)
    {
        steps.note(QStringLiteral("press right"));
        desk.press(FakeDragDesktop::rightButton);
    }
    void releaseRight(RandomSteps &steps)
    {
        steps.note(QStringLiteral("release right"));
        desk.release(FakeDragDesktop::rightButton);
    }
    void pickUp(RandomSteps &steps)
    {
        steps.note(QStringLiteral("contents change"));
        ++model.contents;
        desk.pickUp();
    }
    void moveElsewhere(RandomSteps &steps)
    {
        steps.note(QStringLiteral("move"));
        model.moved(false);
        desk.moveTo({1, 0});
    }
    void moveInOurs(RandomSteps &steps)
    {
        steps.note(QStringLiteral("move in our own window"));
        model.moved(true);
        desk.moveInsideOwnWindow({1, 0});
    }
    void pass(RandomSteps &steps) { passTicks(steps, 1 + steps.below(20)); }
    void passLong(RandomSteps &steps) { passTicks(steps, 1 + steps.below(200)); }
    void passTicks(RandomSteps &steps, int ticks)
    {
        steps.note(QStringLiteral("%1 ticks").arg(ticks));
        for (int i = 0; i < ticks; ++i)
            model.tick();
        clock.advance(ticks / 100.0);
    }
    /// Once only.
    void start(RandomSteps &steps)
    {
        if (!monitor || std::exchange(wasStarted, true))
            return;
        steps.note(QStringLiteral("start"));
        model.start();
        monitor->start();
    }
    void stopOrDestroy(RandomSteps &steps)
    {
        if (!wasStarted || !steps.oneIn(3))
            return;
        model.stop();
        if (steps.oneIn(2)) {
            steps.note(QStringLiteral("stop"));
            if (monitor)
                monitor->stop();
            return;
        }
        steps.note(QStringLiteral("destroy"));
        monitor.reset();
        model.settling.clear();
    }

    FakeDragDesktop desk;
    TestClock clock;
    std::unique_ptr<DragMonitor> monitor = std::make_unique<DragMonitor>(desk, desk, desk, clock);
    DragMonitorModel model;
    QStringList log;
    bool wasStarted = false;
};

} // namespace

TEST(DragMonitorModel, TellsTheSameInWhateverOrderButtonsAndContentsCome)
{
    playAtRandom<MonitorAndModel>(3000, 120);
}

} // namespace corvane::test
