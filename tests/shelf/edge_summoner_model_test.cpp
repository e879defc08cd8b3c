// The summoner at the screen's edge beside a model with a store of four numbers: pointer, buttons,
// screens, store and time come in any order, and the shelf is shown and hidden at the same times.

#include "fakes/fake_drag_desktop.h"
#include "fakes/fake_pointer_barriers.h"
#include "fakes/random_steps.h"
#include "fakes/shelf_model.h"
#include "input/barrier_edge_trigger.h"
#include "input/monitored_clicks.h"
#include "shelf/edge_summoner.h"
#include "shelf/edge_summoner_model.h"

#include <gtest/gtest.h>

#include <array>

namespace corvane::test {

namespace {

class SummonerAndModel : ShelfModel {
public:
    explicit SummonerAndModel(RandomSteps & /*steps*/)
    {
        store.observeState([this](ShelfState from, ShelfState to) {
            log << EdgeSummonerModel::stateEntry(from, to, desk.clock.now());
        });
        summoner.emplace(EdgeSummoner::Context{edge, clicks, screens, store, desk.clock,
                                               [this](const ScreenPointer &) { return width; },
                                               [this](double seconds) {
                                                   EXPECT_EQ(seconds, 0.3);
                                                   log << EdgeSummonerModel::entry(
                                                       "clicks go through", desk.clock.now());
                                               }});
        tellWorld();
    }

    void step(RandomSteps &steps)
    {
        static constexpr std::array<WeightedStep<SummonerAndModel>, 19> table{{
            {10, &SummonerAndModel::summon},
            {4, &SummonerAndModel::accept},
            {2, &SummonerAndModel::remove},
            {1, &SummonerAndModel::clear},
            {4, &SummonerAndModel::toggle},
            {2, &SummonerAndModel::toggleBar},
            {1, &SummonerAndModel::drag},
            {1, &SummonerAndModel::ownDrag},
            {1, &SummonerAndModel::picture},
            {14, &SummonerAndModel::push},
            {3, &SummonerAndModel::leave},
            {3, &SummonerAndModel::movePointer},
            {4, &SummonerAndModel::pressOrRelease},
            {6, &SummonerAndModel::pointerOnShelf},
            {1, &SummonerAndModel::use},
            {1, &SummonerAndModel::cover},
            {1, &SummonerAndModel::changeWidth},
            {2, &SummonerAndModel::changeScreens},
            {16, &SummonerAndModel::pass},
        }};
        playOneOf(*this, steps, table);
        ASSERT_EQ(lines(log), lines(model.log));
        log.clear();
        model.log.clear();
        ASSERT_EQ(store.state(), model.state);
        ASSERT_EQ(store.isViewAllOpen(), model.isBarOpen);
        ASSERT_EQ(store.items().size(), model.count);
        ASSERT_EQ(trigger.watched, model.watched);
        ASSERT_EQ(desktop.mouseDownMonitorCount(), model.watchesPresses() ? 1U : 0U);
    }

private:
    void tellWorld()
    {
        model.world.stretches.clear();
        for (const ScreenPointer &one : screens.screens()) {
            const double shown = std::min(width, one->frame.width());
            model.world.stretches.push_back({one, (one->frame.width() - shown) / 2, shown});
        }
        model.world.pointer = desktop.pointer.position;
        model.world.isButtonHeld = desktop.pressedMouseButtons() != 0;
        model.world.covered = fullScreenWindows.covered;
    }

    void accept(RandomSteps &steps)
    {
        const int arrivals = 1 + steps.below(2);
        steps.note(QStringLiteral("accept %1").arg(arrivals));
        QList<DropItem> items;
        for (int i = 0; i < arrivals; ++i)
            items << ShelfDesk::textItem(QStringLiteral("a"));
        model.accept(arrivals);
        store.accept(items);
    }
    void remove(RandomSteps &steps)
    {
        if (model.count == 0)
            return;
        steps.note(QStringLiteral("remove"));
        model.remove(1);
        store.discard(0, true);
    }
    void clear(RandomSteps &steps)
    {
        steps.note(QStringLiteral("clear"));
        model.removeAll();
        store.clearAll();
    }
    void toggle(RandomSteps &steps)
    {
        steps.note(QStringLiteral("toggle"));
        model.toggle();
        store.toggleManually();
    }
    void toggleBar(RandomSteps &steps)
    {
        steps.note(QStringLiteral("toggle the bar"));
        model.toggleBar();
        store.toggleViewAll();
    }
    void drag(RandomSteps &steps)
    {
        if (model.isDragInFlight) {
            steps.note(QStringLiteral("drag ends"));
            model.dragEnds();
            return store.dragEnded();
        }
        steps.note(QStringLiteral("drag begins"));
        model.dragBegins();
        store.dragBegan();
    }
    void ownDrag(RandomSteps &steps)
    {
        model.isOwnDrag = !model.isOwnDrag;
        steps.note(QStringLiteral("own drag %1").arg(model.isOwnDrag));
        model.storeChanged();
        store.ownDragChanged(model.isOwnDrag);
    }
    void picture(RandomSteps &steps)
    {
        steps.note(QStringLiteral("items are published"));
        model.storeChanged();
        publishItems();
    }
    void push(RandomSteps &steps)
    {
        steps.note(QStringLiteral("push"));
        if (steps.oneIn(4) == 0)
            desktop.pointer.position = QPointF(760, 981.5);
        tellWorld();
        model.push();
        trigger.push();
    }
    /// What is needed for the shelf to be summoned, which chance alone seldom brings together.
    void summon(RandomSteps &steps)
    {
        if (model.count == 0)
            accept(steps);
        if (model.state != ShelfState::Idle)
            toggle(steps);
        steps.note(QStringLiteral("come anew, push, wait"));
        desktop.release(3U);
        tellWorld();
        model.leave();
        trigger.leave();
        desktop.pointer.position = QPointF(760, 981.5);
        tellWorld();
        model.push();
        trigger.push();
        model.advance(0.25);
        desk.clock.advance(0.25);
    }
    void leave(RandomSteps &steps)
    {
        steps.note(QStringLiteral("leave the edge"));
        desktop.pointer.position = QPointF(700, 300);
        tellWorld();
        model.leave();
        trigger.leave();
    }
    void movePointer(RandomSteps &steps)
    {
        const QList<QPointF> places{{760, 981.5},  {656, 979},   {656, 978.9}, {655.9, 981},
                                    {855.9, 981},  {856, 981},   {760, 982},   {1912, 599},
                                    {1812, 599.5}, {1811, 599.5}};
        desktop.pointer.position = steps.oneOf(places);
        if (steps.oneIn(10))
            desktop.pointer.position.reset();
        const auto place = desktop.pointer.position.value_or(QPointF());
        steps.note(QStringLiteral("pointer at %1, %2").arg(place.x()).arg(place.y()));
        tellWorld();
    }
    void pressOrRelease(RandomSteps &steps)
    {
        const unsigned button = steps.oneOf({1U, 2U});
        if ((desktop.pressedMouseButtons() & button) != 0) {
            steps.note(QStringLiteral("release %1").arg(button));
            desktop.release(button);
            return tellWorld();
        }
        steps.note(QStringLiteral("press %1").arg(button));
        model.world.isButtonHeld = true;
        model.pressElsewhere();
        desktop.pressElsewhere(desktop.pointer.position, button);
    }
    void pointerOnShelf(RandomSteps &steps)
    {
        const bool isInside = steps.oneIn(2);
        steps.note(QStringLiteral("pointer on the shelf %1").arg(isInside));
        model.pointerIsInside(isInside);
        summoner->pointerIsInside(isInside);
    }
    void use(RandomSteps &steps)
    {
        steps.note(QStringLiteral("use"));
        model.used();
        summoner->shelfIsUsed();
    }
    void cover(RandomSteps &steps)
    {
        const Screen *nothing = nullptr;
        const Screen *first = screen.get();
        const Screen *other = second.get();
        fullScreenWindows.covered = steps.oneOf({nothing, nothing, first, other});
        steps.note(QStringLiteral("full screen %1").arg(fullScreenWindows.covered != nullptr));
        tellWorld();
    }
    void changeWidth(RandomSteps &steps)
    {
        width = steps.oneOf({200.0, 200.0, 300.0, 5000.0});
        steps.note(QStringLiteral("width %1").arg(width));
        tellWorld();
        model.storeChanged();
        publishItems();
    }
    void changeScreens(RandomSteps &steps)
    {
        fullScreenWindows.covered = nullptr;
        if (steps.oneIn(3)) {
            steps.note(QStringLiteral("screens are elsewhere"));
        } else if (second) {
            steps.note(QStringLiteral("second screen goes"));
            screens.detach(second);
            second.reset();
        } else {
            steps.note(QStringLiteral("second screen comes"));
            second = screens.attach(QRectF(1512, 0, 800, 600));
        }
        tellWorld();
        model.screensChange();
        screens.notifyChanges();
    }
    void pass(RandomSteps &steps)
    {
        const double seconds = 0.01 * (1 + steps.below(steps.oneIn(3) ? 100 : 30));
        steps.note(QStringLiteral("%1 s").arg(seconds));
        model.advance(seconds);
        desk.clock.advance(seconds);
    }

    double width = 200;
    FakePointerBarriers trigger;
    FakeFullScreenWindows fullScreenWindows;
    BarrierEdgeTrigger edge{{trigger, fullScreenWindows, desktop, desktop.pointer}};
    FakeDragDesktop desktop;
    MonitoredClicks clicks{desktop, desktop.pointer};
    std::optional<EdgeSummoner> summoner;
    std::shared_ptr<Screen> second;
    EdgeSummonerModel model;
    QStringList log;
};

} // namespace

TEST(EdgeSummonerModel, ShowsAndHidesTheShelfAtTheSameTimesWhateverHappens)
{
    playAtRandom<SummonerAndModel>(200, 200);
}

} // namespace corvane::test
