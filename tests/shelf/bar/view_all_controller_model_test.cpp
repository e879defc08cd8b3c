// The controller of the view-all bar beside a model: whatever happens to the store, the shelf, the
// pointer and the keyboard, the bar is shown, placed, paged and watched the same.

#include "fakes/fake_drag_desktop.h"
#include "fakes/random_steps.h"
#include "fakes/shelf_model.h"
#include "input/monitored_clicks.h"
#include "platform/base/geometry.h"
#include "shelf/bar/view_all_controller.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace corvane::test {

namespace {

struct ViewAllModel {
    /// What the rendering is told, and what it finds in the store.
    struct World {
        QRectF pill;
        const Screen *screen = nullptr;
        bool isOpen = false;
        int count = 0;
        bool isDragged = false;
    };

    void render(const World &world)
    {
        rendered = world;
        const bool isDragged = world.isDragged || wasDragged;
        wasDragged = world.isDragged;
        const bool isNewlyOpen = world.isOpen && !wasOpen;
        wasOpen = world.isOpen;
        const bool isByHand = std::exchange(handIsExpected, false);
        if (!world.isOpen || !world.screen || world.count < 2) {
            isVisible = false;
            offset = 0;
            isMeantForKeys = false;
            log << QStringLiteral("orderOut");
            return;
        }
        isMeantForKeys = isMeantForKeys || isNewlyOpen || isByHand;
        const double width = std::round(world.screen->frame.width() * 0.8);
        frame = {midX(world.screen->frame) - width / 2, world.pill.y() - 10 - 132, width, 132};
        perPage = width <= 92 ? 1 : std::max(1, static_cast<int>((width - 92 + 10) / 90));
        offset = std::min(offset, std::max(0, world.count - perPage));
        const bool wasVisible = std::exchange(isVisible, true);
        log << QStringLiteral("orderFront");
        // From another program only when the bar comes, never from a drag.
        if (isMeantForKeys && !isDragged)
            hasKeys = !wasVisible || hasKeys || !othersHaveKeys;
    }
    void scroll(int step) { offset = std::max(0, offset + step); }
    /// Whether a click there closes the bar.
    bool closesOn(const std::optional<QPointF> &point) const
    {
        const bool isOurs = point && (contains(frame, *point) || contains(rendered.pill, *point));
        return isVisible && !isOurs;
    }

    World rendered;
    QRectF frame{0, 0, 600, 132};
    int perPage = 1;
    int offset = 0;
    bool isVisible = false;
    bool hasKeys = false;
    bool othersHaveKeys = false;
    bool wasDragged = false;
    bool wasOpen = false;
    bool handIsExpected = false;
    bool isMeantForKeys = false;
    QStringList log;
};

class BarAndModel : ShelfModel {
public:
    explicit BarAndModel(RandomSteps & /*steps*/)
    {
        bar.emplace(
            ViewAllController::Context{{panel, desk.clock, desk.motion, desk.theme, desk.keyboard,
                                        desk.dragWriter, desk.savedPictures, desk.preparation},
                                       store,
                                       quickActions,
                                       clicks,
                                       feedback});
        store.observeItems([this](const QList<DropItem> &) {
            ++publications;
            render();
        });
        store.observeState([this](ShelfState, ShelfState) { render(); });
        render();
    }

    void step(RandomSteps &steps)
    {
        static constexpr std::array<WeightedStep<BarAndModel>, 18> table{{
            {8, &BarAndModel::accept},
            {6, &BarAndModel::discard},
            {1, &BarAndModel::clear},
            {6, &BarAndModel::toggleBar},
            {3, &BarAndModel::toggleShelf},
            {4, &BarAndModel::tick},
            {1, &BarAndModel::tickAll},
            {1, &BarAndModel::removeTicked},
            {3, &BarAndModel::eject},
            {2, &BarAndModel::close},
            {12, &BarAndModel::scroll},
            {3, &BarAndModel::drag},
            {3, &BarAndModel::ownDrag},
            {6, &BarAndModel::clickElsewhere},
            {3, &BarAndModel::pressShelf},
            {3, &BarAndModel::otherPrograms},
            {3, &BarAndModel::moveShelf},
            {3, &BarAndModel::changeScreens},
        }};
        playOneOf(*this, steps, table);
        compare();
    }

private:
    const ViewAllView &view() const { return bar->view(); }

    /// As the shelf's controller does, which passes no screen while the shelf is closed.
    void render()
    {
        const bool isClosed = store.state() == ShelfState::Idle;
        const QRectF frame = isClosed ? QRectF() : pill;
        const ScreenPointer on = isClosed ? nullptr : screen;
        bar->render(frame, on, 1);
        model.render({frame, on.get(), store.isViewAllOpen(),
                      static_cast<int>(store.items().size()),
                      store.isDragInFlight() || store.isOwnDrag()});
        // In the midst of an operation, too.
        compareWhatIsShown();
    }
    void compare()
    {
        compareWhatIsShown();
        ASSERT_EQ(lines(panel.log), lines(model.log));
        panel.log.clear();
        model.log.clear();
    }
    void compareWhatIsShown()
    {
        ASSERT_EQ(panel.visible, model.isVisible);
        ASSERT_EQ(panel.ignoresMouseEvents, !model.isVisible);
        ASSERT_EQ(bar->isWatchingOutsideClicks(), model.isVisible);
        ASSERT_EQ(desktop.mouseDownMonitorCount(), model.isVisible ? 1U : 0U);
        ASSERT_EQ(bar->offset(), model.offset);
        ASSERT_EQ(panel.isKey, model.hasKeys);
        if (!model.isVisible)
            return;
        ASSERT_EQ(panel.frame(), model.frame);
        ASSERT_EQ(view().offset(), model.offset);
        ASSERT_EQ(static_cast<int>(view().tileCount()),
                  std::min(model.perPage, model.rendered.count - model.offset));
    }

    void accept(RandomSteps &steps)
    {
        QList<DropItem> items;
        for (int left = 1 + steps.below(5); left > 0; --left)
            items << ShelfDesk::textItem(QStringLiteral("i%1").arg(++made));
        steps.note(QStringLiteral("accept %1").arg(items.size()));
        store.accept(items);
    }
    void discard(RandomSteps &steps)
    {
        const int index = steps.below(static_cast<int>(store.items().size()) + 1);
        steps.note(QStringLiteral("discard %1").arg(index));
        store.discard(index, true);
    }
    void clear(RandomSteps &steps)
    {
        steps.note(QStringLiteral("clear"));
        store.clearAll();
    }
    void toggleBar(RandomSteps &steps)
    {
        steps.note(QStringLiteral("toggle the bar"));
        store.toggleViewAll();
    }
    void toggleShelf(RandomSteps &steps)
    {
        const bool isByHand = steps.oneIn(2);
        steps.note(QStringLiteral("toggle the shelf, by hand %1").arg(isByHand));
        if (isByHand) {
            bar->shelfIsToggledByHand();
            model.handIsExpected = true;
        }
        store.toggleManually();
    }
    void tick(RandomSteps &steps)
    {
        if (store.items().isEmpty())
            return;
        const DropItem item = steps.oneOf(store.items());
        steps.note(QStringLiteral("tick %1").arg(item.title()));
        const bool wasTicked = store.selection().contains(item.id());
        view().onToggleItem(item);
        EXPECT_NE(store.selection().contains(item.id()), wasTicked);
    }
    void tickAll(RandomSteps &steps)
    {
        steps.note(QStringLiteral("tick all"));
        const bool areAll = store.selection().size() == store.items().size();
        view().onToggleSelectAll();
        EXPECT_EQ(store.selection().size(), areAll ? 0 : store.items().size());
    }
    void removeTicked(RandomSteps &steps)
    {
        steps.note(QStringLiteral("remove the ticked"));
        const qsizetype left = store.items().size() - store.selectedItems().size();
        view().onRemoveSelected();
        EXPECT_EQ(store.items().size(), left);
    }
    void eject(RandomSteps &steps)
    {
        if (store.items().isEmpty())
            return;
        const DropItem item = steps.oneOf(store.items());
        const bool keep = steps.oneIn(2);
        steps.note(QStringLiteral("eject %1, keep %2").arg(item.title()).arg(keep));
        view().onEjected({item.id()}, keep);
        EXPECT_EQ(store.indexOf(item.id()).has_value(), keep);
    }
    void close(RandomSteps &steps)
    {
        steps.note(QStringLiteral("close"));
        expectPublications(store.isViewAllOpen() ? 1 : 0, [this] { view().onClose(); });
        EXPECT_FALSE(store.isViewAllOpen());
    }
    void scroll(RandomSteps &steps)
    {
        const int by = steps.oneOf({-1, 1, 1});
        steps.note(QStringLiteral("scroll by %1").arg(by));
        model.scroll(by);
        // With what it was given last, as far as that is still there.
        auto world = model.rendered;
        world.count = static_cast<int>(store.items().size());
        world.isDragged = store.isDragInFlight() || store.isOwnDrag();
        world.isOpen = store.isViewAllOpen();
        model.render(world);
        expectPublications(0, [&] { view().onScroll(by); });
    }
    void drag(RandomSteps &steps)
    {
        if (store.isDragInFlight()) {
            steps.note(QStringLiteral("drag ends"));
            return store.dragEnded();
        }
        steps.note(QStringLiteral("drag begins"));
        store.dragBegan();
    }
    void ownDrag(RandomSteps &steps)
    {
        const bool isOut = steps.oneIn(2);
        steps.note(QStringLiteral("own drag %1").arg(isOut));
        expectPublications(isOut == store.isOwnDrag() ? 0 : 1,
                           [&] { view().onDragOutChanged(isOut); });
        EXPECT_EQ(store.isOwnDrag(), isOut);
    }
    template<typename Work>
    void expectPublications(int expected, Work doing)
    {
        publications = 0;
        doing();
        EXPECT_EQ(publications, expected);
    }
    void clickElsewhere(RandomSteps &steps)
    {
        const auto point = steps.oneOf(
            {std::optional(panel.frame().center()), std::optional(pill.center()),
             std::optional(QPointF(midX(pill), minY(pill) - 5)), std::optional(QPointF(3, 3)),
             std::optional(QPointF(maxX(panel.frame()), minY(panel.frame()))),
             std::optional<QPointF>()});
        steps.note(point ? QStringLiteral("click at %1, %2").arg(point->x()).arg(point->y())
                         : QStringLiteral("click somewhere"));
        const bool closes = model.closesOn(point);
        const bool wanted = store.isViewAllOpen() && !closes;
        if (closes)
            model.log << QStringLiteral("userWentOn");
        expectPublications(closes ? 1 : 0, [&] {
            desktop.pressElsewhere(point, steps.oneOf({1U, 2U, 4U}));
        });
        desktop.release(7U);
        EXPECT_EQ(store.isViewAllOpen(), wanted);
    }
    void pressShelf(RandomSteps &steps)
    {
        steps.note(QStringLiteral("press the shelf"));
        bar->shelfWasPressed();
        if (!model.isVisible)
            return;
        model.isMeantForKeys = true;
        model.hasKeys = true;
    }
    void otherPrograms(RandomSteps &steps)
    {
        panel.othersHaveKeyboard = steps.oneIn(2);
        steps.note(QStringLiteral("keys elsewhere %1").arg(panel.othersHaveKeyboard));
        panel.isKey = false;
        model.othersHaveKeys = panel.othersHaveKeyboard;
        model.hasKeys = false;
    }
    void moveShelf(RandomSteps &steps)
    {
        pill = {700, 982.0 - steps.oneOf({56, 90}), 292, 56};
        steps.note(QStringLiteral("the shelf moves to %1").arg(pill.y()));
        render();
    }
    void changeScreens(RandomSteps &steps)
    {
        if (screen)
            screens.detach(screen);
        screen.reset();
        const int width = steps.oneOf({0, 100, 115, 116, 300, 1512});
        steps.note(QStringLiteral("screen of %1").arg(width));
        if (width > 0)
            screen = screens.attach(QRectF(steps.oneOf({0, 1512}), 0, width, 982));
        render();
    }

    FakePanelWindow panel;
    FakeDragDesktop desktop;
    MonitoredClicks clicks{desktop, desktop.pointer};
    std::optional<ViewAllController> bar;
    ViewAllModel model;
    QRectF pill{700, 926, 292, 56};
    int publications = 0;
    int made = 0;
};

} // namespace

TEST(ViewAllControllerModel, ShowsPlacesAndPagesTheSameWhateverHappens)
{
    playAtRandom<BarAndModel>(60, 120);
}

} // namespace corvane::test
