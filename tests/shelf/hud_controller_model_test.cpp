// The shelf's controller beside its model: whatever happens to the store, the screens and the
// settings, each rendering and each showing and hiding of the panel is the same.

#include "fakes/random_steps.h"
#include "fakes/shelf_model.h"
#include "shelf/hud_controller_model.h"
#include "shelf/view_all_bar.h"

#include <gtest/gtest.h>

#include <array>

namespace corvane::test {

namespace {

struct TellingBar : ViewAllBar {
    void render(const QRectF &pill, const ScreenPointer &screen, double /*scale*/) override
    {
        if (onRendered)
            onRendered(pill, screen);
    }
    bool isShown() const override { return false; }
    void themeChanged() override { }
    void shelfIsToggledByHand() override { }
    void shelfWasPressed() override { }
    void dragChanged(bool /*isGoingOn*/) override { }

    std::function<void(const QRectF &, const ScreenPointer &)> onRendered;
};

class ControllerAndModel : ShelfModel {
public:
    explicit ControllerAndModel(RandomSteps &steps)
    {
        // With motion the panel is larger than the way's two ends, by what springs overshoot.
        desk.motion.reduces = !steps.oneIn(3);
        pointer.position = QPointF(700, 900);
        bar.onRendered
            = [this](const QRectF &pill, const ScreenPointer &on) { rendered(pill, on); };
        HUDController::Context context = controllerContext();
        context.viewAll = &bar;
        controller.emplace(context);
        // Short messages make room for themselves, which the model does not know.
        feedback.handler = nullptr;
        model.emplace(HUDControllerModel::World{
            store, settings, screens, pointer.position,
            [this](const ShelfSnapshot &snapshot) { return view().preferredSize(snapshot); }});
        model->render();
        store.observeState([this](ShelfState, ShelfState) { published(); });
        store.observeItems([this](const QList<DropItem> &) {
            ++publications;
            published();
        });
        store.observeEndOfOperation([this] { model->followed(); });
    }

    void step(RandomSteps &steps)
    {
        static constexpr std::array<WeightedStep<ControllerAndModel>, 18> table{{
            {8, &ControllerAndModel::accept},
            {5, &ControllerAndModel::toggle},
            {5, &ControllerAndModel::remove},
            {2, &ControllerAndModel::clear},
            {3, &ControllerAndModel::focus},
            {4, &ControllerAndModel::scroll},
            {4, &ControllerAndModel::viewAll},
            {3, &ControllerAndModel::eject},
            {3, &ControllerAndModel::dragBegins},
            {3, &ControllerAndModel::dragEnds},
            {3, &ControllerAndModel::ownDrag},
            {4, &ControllerAndModel::changeInView},
            {4, &ControllerAndModel::learn},
            {2, &ControllerAndModel::letClicksThrough},
            {3, &ControllerAndModel::movePointer},
            {3, &ControllerAndModel::changeScreens},
            {12, &ControllerAndModel::pass},
            {2, &ControllerAndModel::settle},
        }};
        playOneOf(*this, steps, table);
        compare();
    }

private:
    ShelfView &view() { return dynamic_cast<ShelfView &>(*desk.panel.content); }

    void rendered(const QRectF &pill, const ScreenPointer &on)
    {
        const bool isVisible = desk.panel.visible;
        const bool ignoresMouse = desk.panel.ignoresMouseEvents || !isVisible || !on;
        log << std::exchange(desk.panel.log, {})
            << HUDControllerModel::rendering(view().look().snapshot, pill, on, isVisible,
                                             ignoresMouse);
    }
    void published()
    {
        if (store.pace() == PublicationPace::AtOnce)
            model->followed();
        else if (store.pace() == PublicationPace::Detail)
            model->detailPublished();
    }

    void compare()
    {
        log << std::exchange(desk.panel.log, {});
        ASSERT_EQ(lines(log), lines(model->log));
        ASSERT_EQ(desk.panel.visible, model->isVisible);
        ASSERT_EQ(desk.panel.ignoresMouseEvents, model->ignoresMouse);
        if (model->isVisible)
            compareFrames();
        log.clear();
        model->log.clear();
    }
    void compareFrames() const
    {
        const QRectF is = desk.panel.frame();
        const QRectF wanted = model->frame;
        if (desk.motion.reduces || !model->hasRoom) {
            ASSERT_EQ(is, wanted) << is.x() << ' ' << is.y() << ' ' << is.width() << ' '
                                  << is.height();
            return;
        }
        ASSERT_EQ(maxY(is), maxY(wanted));
        ASSERT_LE(minX(is), minX(wanted));
        ASSERT_GE(maxX(is), maxX(wanted));
        ASSERT_LE(minY(is), minY(wanted));
        ASSERT_EQ(midX(is), midX(wanted));
    }

    void accept(RandomSteps &steps)
    {
        QList<DropItem> items;
        for (int left = 1 + steps.below(3); left > 0; --left)
            items << ShelfDesk::textItem(QStringLiteral("i%1").arg(++made));
        steps.note(QStringLiteral("accept %1").arg(items.size()));
        view().onDropAccepted(items);
    }
    void toggle(RandomSteps &steps)
    {
        steps.note(QStringLiteral("toggle"));
        controller->toggleByHand();
    }
    int anyIndex(RandomSteps &steps)
    {
        return steps.below(static_cast<int>(store.items().size()) + 1);
    }
    void remove(RandomSteps &steps)
    {
        const int index = anyIndex(steps);
        steps.note(QStringLiteral("remove %1").arg(index));
        view().onRemove(index);
    }
    void clear(RandomSteps &steps)
    {
        steps.note(QStringLiteral("clear"));
        store.clearAll();
    }
    void focus(RandomSteps &steps)
    {
        const int index = anyIndex(steps);
        steps.note(QStringLiteral("focus %1").arg(index));
        view().onFocus(index);
    }
    void scroll(RandomSteps &steps)
    {
        const int by = steps.below(9) - 4;
        steps.note(QStringLiteral("scroll by %1").arg(by));
        const int last
            = std::max(static_cast<int>(store.items().size()) - settings.inViewCount(), 0);
        const int wanted = std::min(last, std::max(store.scrollOffset() + by, 0));
        const int expected = wanted == store.scrollOffset() ? 0 : 1;
        publications = 0;
        view().onScroll(by);
        EXPECT_EQ(store.scrollOffset(), wanted);
        EXPECT_EQ(publications, expected);
    }
    void viewAll(RandomSteps &steps)
    {
        steps.note(QStringLiteral("view all"));
        const bool isAllowed = store.isViewAllOpen() || store.items().size() >= 2;
        const bool wanted = store.isViewAllOpen() != isAllowed;
        publications = 0;
        view().onViewAll();
        EXPECT_EQ(store.isViewAllOpen(), wanted);
        EXPECT_EQ(publications, isAllowed ? 1 : 0);
    }
    void eject(RandomSteps &steps)
    {
        if (store.items().isEmpty())
            return;
        const DropItem item = steps.oneOf(store.items());
        const bool keep = steps.oneIn(2);
        const qsizetype left = store.items().size() - (keep ? 0 : 1);
        steps.note(QStringLiteral("eject %1, keep %2").arg(item.title()).arg(keep));
        view().onEjected(item.id(), keep);
        EXPECT_EQ(store.items().size(), left);
        EXPECT_EQ(store.indexOf(item.id()).has_value(), keep);
    }
    void dragBegins(RandomSteps &steps)
    {
        steps.note(QStringLiteral("drag begins"));
        store.dragBegan();
    }
    void dragEnds(RandomSteps &steps)
    {
        steps.note(QStringLiteral("drag ends"));
        store.dragEnded();
    }
    void ownDrag(RandomSteps &steps)
    {
        const bool isOut = steps.oneIn(2);
        steps.note(QStringLiteral("own drag %1").arg(isOut));
        const int expected = store.isOwnDrag() == isOut ? 0 : 1;
        publications = 0;
        view().onDragOutChanged(isOut);
        EXPECT_EQ(store.isOwnDrag(), isOut);
        EXPECT_EQ(publications, expected);
    }
    void changeInView(RandomSteps &steps)
    {
        const int count = steps.oneOf({0, 1, 2, 3, 4, 6, 9});
        steps.note(QStringLiteral("in view %1").arg(count));
        const int last
            = std::max(static_cast<int>(store.items().size()) - std::clamp(count, 1, 6), 0);
        const int wanted = std::min(store.scrollOffset(), last);
        publications = 0;
        settings.setInViewCount(count);
        // It renders once more than it publishes.
        model->render();
        EXPECT_EQ(store.scrollOffset(), wanted);
        EXPECT_EQ(publications, 1);
    }
    void learn(RandomSteps &steps)
    {
        if (store.items().isEmpty())
            return;
        const DropItem item = steps.oneOf(store.items());
        steps.note(QStringLiteral("learn about %1").arg(item.title()));
        store.describe(item.id(), QStringLiteral("d%1").arg(++made));
    }
    void letClicksThrough(RandomSteps &steps)
    {
        steps.note(QStringLiteral("let clicks through"));
        controller->letClicksThrough(0.3);
        model->letClicksThrough(0.3);
    }
    void movePointer(RandomSteps &steps)
    {
        steps.note(QStringLiteral("pointer moves"));
        pointer.position
            = steps.oneOf({std::optional(QPointF(700, 900)), std::optional(QPointF(1600, 300)),
                           std::optional<QPointF>()});
    }
    void changeScreens(RandomSteps &steps)
    {
        auto &any = steps.oneIn(2) ? screen : second;
        const bool wasThere = any != nullptr;
        steps.note(QStringLiteral("screen %1, %2").arg(&any == &second).arg(wasThere));
        if (!wasThere) {
            any = screens.attach(&any == &screen ? QRectF(0, 0, 1512, 982)
                                                 : QRectF(1512, 200, 1000, 800));
        } else if (steps.oneIn(2)) {
            screens.detach(any);
            any.reset();
        } else {
            any->safeAreaInsets.top = steps.oneOf({0.0, 32.0});
            any->auxiliaryTopLeftArea = QRectF(0, 0, 400, 32);
            any->auxiliaryTopRightArea.reset();
            if (steps.oneIn(2))
                any->auxiliaryTopRightArea = QRectF(0, 0, steps.oneOf({400.0, 5000.0}), 32);
        }
        screens.notifyChanges();
        model->render();
    }
    void pass(RandomSteps &steps) { passTime(steps, 0.01 * (1 + steps.below(40))); }
    void settle(RandomSteps &steps) { passTime(steps, 3); }
    void passTime(RandomSteps &steps, double seconds)
    {
        steps.note(QStringLiteral("%1 s").arg(seconds));
        desk.clock.advance(seconds);
        model->advance(seconds);
    }

    TellingBar bar;
    std::optional<HUDController> controller;
    std::optional<HUDControllerModel> model;
    std::shared_ptr<Screen> second;
    QStringList log;
    int publications = 0;
    int made = 0;
};

} // namespace

TEST(HUDControllerModel, RendersShowsAndHidesTheSameWhateverHappens)
{
    playAtRandom<ControllerAndModel>(60, 120);
}

} // namespace corvane::test
