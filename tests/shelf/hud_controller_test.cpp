#include "core/item_presenter.h"
#include "fakes/asking_screen_locator.h"
#include "fakes/fake_appearance_preference.h"
#include "fakes/fake_drag_desktop.h"
#include "fakes/shelf_model.h"
#include "input/monitored_clicks.h"
#include "platform/base/geometry.h"
#include "shelf/view_all_bar.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

struct RecordingPresenter : ItemPresenter {
    void present(const DropItem &item) override { titles << item.title(); }
    QStringList titles;
};

struct RecordingViewAllBar : ViewAllBar {
    void render(const QRectF &pillFrame, const ScreenPointer &screen, double scale) override
    {
        scales.push_back(scale);
        frames.push_back(pillFrame);
        screens.push_back(screen);
        if (shelf)
            sizesSeen.push_back(shelf->look().layout.size);
    }
    bool isShown() const override { return isOpen; }
    void themeChanged() override { ++themeChanges; }
    void shelfIsToggledByHand() override { rendersBeforeHand = frames.size(); }
    void shelfWasPressed() override { ++presses; }
    void dragChanged(bool isGoingOn) override { isDragGoingOn = isGoingOn; }
    bool isDragGoingOn = false;
    bool isOpen = false;
    const ShelfView *shelf = nullptr;
    int presses = 0;
    std::optional<std::size_t> rendersBeforeHand;
    std::vector<QRectF> frames;
    std::vector<ScreenPointer> screens;
    std::vector<double> scales;
    int themeChanges = 0;
    std::vector<QSizeF> sizesSeen;
};

class HUDControllerTest : public testing::Test, protected ShelfModel {
protected:
    HUDControllerTest()
    {
        pointer.position = QPointF(700, 900);
        controller.emplace(context());
        bar.shelf = &view();
    }

    HUDController::Context context()
    {
        HUDController::Context context = controllerContext();
        context.presenter = &presenter;
        context.viewAll = &bar;
        context.appearance = &appearance;
        return context;
    }

    void accept(int count)
    {
        QList<DropItem> items;
        for (int i = 0; i < count; ++i)
            items << ShelfDesk::textItem(QStringLiteral("item %1").arg(i));
        store.accept(items);
    }
    ShelfView &view() { return dynamic_cast<ShelfView &>(*desk.panel.content); }
    const ShelfSnapshot &snapshot() { return view().look().snapshot; }
    QRectF frame() const { return desk.panel.frame(); }
    void settle() { desk.clock.advance(3); }
    void paint() { ShelfDesk::paint(view(), desk.panel); }

    RecordingPresenter presenter;
    RecordingViewAllBar bar;
    FakeAppearancePreference appearance;
    std::optional<HUDController> controller;
};

} // namespace

TEST_F(HUDControllerTest, StartsHiddenAndClickThrough)
{
    EXPECT_FALSE(desk.panel.visible);
    EXPECT_TRUE(desk.panel.ignoresMouseEvents);
    EXPECT_EQ(desk.panel.frames.front(), QRectF(0, 0, 560, 136));
}

TEST_F(HUDControllerTest, HangsFromTheTopCentreOfTheScreen)
{
    store.toggleManually();
    EXPECT_TRUE(desk.panel.visible);
    EXPECT_FALSE(desk.panel.ignoresMouseEvents);
    EXPECT_EQ(frame(), QRectF(756 - 146, 982 - 56, 292, 56));
}

TEST_F(HUDControllerTest, OpensOnTheScreenWithThePointer)
{
    screens.attach(QRectF(1512, 200, 1000, 800));
    pointer.position = QPointF(1600, 300);
    store.toggleManually();
    EXPECT_EQ(frame(), QRectF(2012 - 146, 1000 - 56, 292, 56));
}

TEST_F(HUDControllerTest, OpenedByHandItComesOnceTheDesktopHasSaidWhereTheUserIs)
{
    const auto second = screens.attach(QRectF(1512, 200, 1000, 800));
    AskingScreenLocator asking;
    asking.answer(screen);
    controller.emplace(HUDController::Context{desk.context(), store, settings, feedback, screens,
                                              asking, quickActions});
    controller->toggleByHand();
    EXPECT_TRUE(asking.isAsked());
    EXPECT_FALSE(desk.panel.visible);
    asking.answer(second);
    EXPECT_TRUE(desk.panel.visible);
    EXPECT_EQ(frame(), QRectF(2012 - 146, 1000 - 56, 292, 56));
    controller->toggleByHand();
    EXPECT_EQ(store.state(), ShelfState::Idle);
    EXPECT_FALSE(asking.isAsked()) << "it closes wherever the user is";
}

TEST_F(HUDControllerTest, ToggledByHandTwiceBeforeTheDesktopHasAnsweredItIsHidden)
{
    AskingScreenLocator asking;
    controller.emplace(HUDController::Context{desk.context(), store, settings, feedback, screens,
                                              asking, quickActions});
    controller->toggleByHand();
    controller->toggleByHand();
    asking.answer(screen);
    EXPECT_EQ(store.state(), ShelfState::Idle);
}

TEST_F(HUDControllerTest, WithoutAPointerItOpensOnTheMainScreen)
{
    pointer.position.reset();
    store.toggleManually();
    EXPECT_EQ(frame().y(), 982 - 56);
    EXPECT_TRUE(desk.panel.visible);
}

TEST_F(HUDControllerTest, WithNoScreenNothingIsPlacedOrShown)
{
    screens.detach(screen);
    const std::size_t placed = desk.panel.frames.size();
    accept(2);
    EXPECT_FALSE(desk.panel.visible);
    EXPECT_EQ(desk.panel.frames.size(), placed);
    EXPECT_EQ(snapshot().totalCount, 2) << "the view still gets the snapshot";
    EXPECT_EQ(snapshot().notch, QSizeF(0, 0));
    EXPECT_EQ(bar.frames.back(), QRectF());
    EXPECT_FALSE(bar.screens.back());
}

TEST_F(HUDControllerTest, InViewCountIsClampedWhateverIsStored)
{
    accept(3);
    for (const auto &[stored, used] :
         {std::pair(0, 1), std::pair(-4, 1), std::pair(9, 6), std::pair(4, 4)}) {
        defaults.setInteger(stored, QString::fromLatin1(Settings::inViewCountKey));
        publishItems();
        EXPECT_EQ(snapshot().inViewCount, used);
    }
}

TEST_F(HUDControllerTest, KnowsWhetherThereIsMoreOnEitherSide)
{
    settings.setInViewCount(3);
    accept(3);
    EXPECT_FALSE(snapshot().canScrollBack);
    EXPECT_FALSE(snapshot().canScrollForward);
    accept(2);
    EXPECT_EQ(store.scrollOffset(), 2);
    EXPECT_TRUE(snapshot().canScrollBack);
    EXPECT_FALSE(snapshot().canScrollForward);
}

TEST_F(HUDControllerTest, ScrollingStopsAtBothEnds)
{
    settings.setInViewCount(3);
    accept(5);
    store.focus(0);
    view().onScroll(10);
    EXPECT_EQ(store.scrollOffset(), 2);
    int published = 0;
    store.observeItems([&](const QList<DropItem> &) { ++published; });
    view().onScroll(10);
    EXPECT_EQ(published, 0) << "a step that changes nothing tells nobody";
    view().onScroll(-10);
    EXPECT_EQ(store.scrollOffset(), 0);
    EXPECT_EQ(published, 1);
    view().onScroll(1);
    EXPECT_DEATH(view().onScroll(std::numeric_limits<int>::max()), "overflowed");
}

TEST_F(HUDControllerTest, ALayoutChangeLowersTheOffsetAtMostThenPublishesAndRenders)
{
    settings.setInViewCount(1);
    accept(5);
    EXPECT_EQ(store.scrollOffset(), 4);
    int published = 0;
    store.observeItems([&](const QList<DropItem> &) { ++published; });
    const std::size_t renders = bar.frames.size();
    settings.setInViewCount(3);
    EXPECT_EQ(store.scrollOffset(), 2);
    EXPECT_EQ(published, 1);
    EXPECT_EQ(bar.frames.size() - renders, 2U);
    settings.setInViewCount(1);
    EXPECT_EQ(store.scrollOffset(), 2) << "never raised";
}

TEST_F(HUDControllerTest, HidesAfterTheSlideAndAMargin)
{
    store.toggleManually();
    store.toggleManually();
    EXPECT_TRUE(desk.panel.ignoresMouseEvents) << "clicks fall through at once";
    desk.clock.advance(0.36);
    EXPECT_TRUE(desk.panel.visible);
    desk.clock.advance(0.02);
    EXPECT_FALSE(desk.panel.visible);
}

TEST_F(HUDControllerTest, ReopeningInTimeLeavesThePanelOnScreen)
{
    store.toggleManually();
    store.toggleManually();
    desk.clock.advance(0.3);
    store.toggleManually();
    settle();
    EXPECT_TRUE(desk.panel.visible);
    EXPECT_FALSE(desk.panel.log.contains(QStringLiteral("orderOut")));
}

TEST_F(HUDControllerTest, KeysGoToTheProgramBehindFromTheMomentThatItCloses)
{
    accept(2);
    desk.panel.isKey = true;
    store.toggleManually();
    EXPECT_TRUE(desk.panel.visible);
    EXPECT_FALSE(desk.panel.isKey);
    EXPECT_FALSE(view().keyDown({TypedKey::DeleteBackward, {}, false}));
    EXPECT_EQ(store.items().size(), 2);
}

TEST_F(HUDControllerTest, APressOnTheShelfIsToldToTheBarOnceEverythingElseIsDone)
{
    accept(2);
    view().mouseDown({QPointF(1, -1)});
    EXPECT_EQ(bar.presses, 0) << "beside the body";
    view().mouseDown({view().look().layout.cells[0].root.center()});
    EXPECT_EQ(bar.presses, 1);
}

TEST_F(HUDControllerTest, TheBarIsToldThatTheUserTogglesBeforeItIsRendered)
{
    accept(2);
    store.toggleManually();
    EXPECT_FALSE(bar.rendersBeforeHand);
    const std::size_t renders = bar.frames.size();
    controller->toggleByHand();
    EXPECT_EQ(bar.rendersBeforeHand, renders);
    EXPECT_EQ(bar.frames.size(), renders + 1);
    EXPECT_EQ(store.state(), ShelfState::Occupied);
}

TEST_F(HUDControllerTest, LetsClicksThroughForAsLongAsItIsTold)
{
    accept(1);
    store.toggleManually();
    settle();
    controller->letClicksThrough(0.3);
    store.toggleManually();
    EXPECT_TRUE(desk.panel.visible);
    EXPECT_TRUE(desk.panel.ignoresMouseEvents);
    desk.clock.advance(0.29);
    publishItems();
    EXPECT_TRUE(desk.panel.ignoresMouseEvents) << "a picture that arrives changes nothing";
    desk.clock.advance(0.02);
    EXPECT_FALSE(desk.panel.ignoresMouseEvents);
}

TEST_F(HUDControllerTest, AShelfThatClosedWhileItLetClicksThroughTakesNone)
{
    accept(1);
    store.toggleManually();
    settle();
    controller->letClicksThrough(0.3);
    store.toggleManually();
    store.toggleManually();
    desk.clock.advance(0.31);
    EXPECT_TRUE(desk.panel.ignoresMouseEvents);
    store.toggleManually();
    EXPECT_FALSE(desk.panel.ignoresMouseEvents) << "opened by hand";
}

TEST_F(HUDControllerTest, ADragNeedsNoPatience)
{
    accept(1);
    store.toggleManually();
    settle();
    controller->letClicksThrough(0.3);
    store.toggleManually();
    store.dragBegan();
    EXPECT_FALSE(desk.panel.ignoresMouseEvents);
}

TEST_F(HUDControllerTest, WithOneInViewButtonsAndKeysActOnTheOneThatIsSeen)
{
    settings.setInViewCount(1);
    accept(4);
    view().onScroll(-2);
    ASSERT_EQ(snapshot().visible.front().first, 1);
    ASSERT_EQ(store.focusedIndex(), 3);
    const auto press = [this](ShelfAction action) {
        view().mouseDown(
            {view().look().layout.actionHits[static_cast<std::size_t>(action)].center()});
    };
    press(ShelfAction::Copy);
    ASSERT_EQ(clipboard.writes.size(), 1U);
    const PasteboardWriter &copied = clipboard.writes.back().writers.at(0);
    const auto *text = std::get_if<PasteboardWriter::Text>(&copied.content);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->string, QStringLiteral("item 1"));
    view().onScroll(1);
    press(ShelfAction::QuickLook);
    EXPECT_EQ(presenter.titles, QStringList{QStringLiteral("item 2")});
    view().onScroll(-2);
    press(ShelfAction::Clear);
    ASSERT_EQ(store.items().size(), 3);
    EXPECT_EQ(store.items().front().title(), QStringLiteral("item 1"));
}

TEST_F(HUDControllerTest, WithSeveralInViewTheFocusedItemIsShownBeforeItIsActedOn)
{
    settings.setInViewCount(2);
    accept(6);
    view().onScroll(-4);
    ASSERT_EQ(snapshot().visible.front().first, 0);
    for (const TypedKey code : {TypedKey::DeleteBackward, TypedKey::Escape, TypedKey::Space}) {
        store.focus(5);
        view().onScroll(-4);
        EXPECT_TRUE(view().keyDown({code, {}, false}));
        EXPECT_EQ(store.items().size(), 6);
        EXPECT_TRUE(presenter.titles.isEmpty());
        EXPECT_EQ(snapshot().visible.back().first, 5) << "it is in view now";
    }
    view().onScroll(-4);
    EXPECT_TRUE(view().keyDown({TypedKey::C, Modifier::Command, false}));
    EXPECT_TRUE(clipboard.writes.empty());
    EXPECT_TRUE(view().keyDown({TypedKey::DeleteForward, {}, false}));
    EXPECT_EQ(store.items().size(), 5) << "and can be removed";
}

TEST_F(HUDControllerTest, EveryIdleRenderRestartsTheDelay)
{
    store.toggleManually();
    store.toggleManually();
    desk.clock.advance(0.3);
    publishItems();
    desk.clock.advance(0.3);
    EXPECT_TRUE(desk.panel.visible);
    desk.clock.advance(0.1);
    EXPECT_FALSE(desk.panel.visible);
}

TEST_F(HUDControllerTest, AVisiblePanelCoversOldAndNewUntilTheSpringHasSettled)
{
    settings.setInViewCount(3);
    accept(1);
    const QRectF small = frame();
    EXPECT_EQ(small.width(), 104);
    accept(4);
    EXPECT_EQ(frame().width(), 326) << "316, and 5 points beyond it on each side";
    store.clearAll();
    store.toggleManually();
    EXPECT_EQ(frame().size(), QSizeF(326, 62)) << "a panel about to hide still counts as visible";
    desk.clock.advance(Theme::Motion::spring().settlingDuration() + 0.001);
    EXPECT_EQ(frame().size(), QSizeF(292, 56));
    EXPECT_EQ(desk.panel.body, QRectF(0, 0, 292, 56)) << "clicks follow the new frame";
}

TEST_F(HUDControllerTest, AVisiblePanelHasRoomForWhatTheSpringGoesBeyondItsTarget)
{
    settings.setInViewCount(6);
    accept(1);
    settle();
    paint();
    // The second one while the first one's spring is fast, so that it takes its speed along.
    accept(2);
    bool wentBeyond = false;
    const auto expectRoomUntil = [&](int frames, double width) {
        for (int i = 0; i < frames; ++i) {
            desk.clock.advance(1.0 / 60);
            paint();
            const QRectF outline = desk.panel.outline.boundingRect();
            const QRectF room(QPointF(), frame().size());
            EXPECT_TRUE(room.adjusted(-0.01, -0.01, 0.01, 0.01).contains(outline)) << i;
            wentBeyond = wentBeyond || outline.width() > width + 1;
        }
    };
    expectRoomUntil(4, 10'000);
    accept(3);
    const double width = desk.panel.body.width();
    expectRoomUntil(40, width);
    EXPECT_TRUE(wentBeyond);
    EXPECT_EQ(frame().width(), width);
}

TEST_F(HUDControllerTest, WithoutMotionThereIsNothingToLeaveRoomFor)
{
    desk.motion.reduces = true;
    settings.setInViewCount(3);
    accept(1);
    accept(4);
    EXPECT_EQ(frame().width(), 316);
}

TEST_F(HUDControllerTest, ALaterResizeVoidsAnEarlierShrink)
{
    settings.setInViewCount(3);
    accept(5);
    store.discard(4, true);
    store.discard(3, true);
    store.discard(2, true);
    const double settled = Theme::Motion::spring().settlingDuration();
    desk.clock.advance(settled / 2);
    accept(3);
    const std::size_t before = desk.panel.frames.size();
    desk.clock.advance(settled / 2 + 0.01);
    EXPECT_EQ(desk.panel.frames.size(), before) << "the first shrink does nothing";
    desk.clock.advance(settled);
    EXPECT_EQ(frame().width(), 316);
}

TEST_F(HUDControllerTest, AShrinkNeedsAnOpenShelf)
{
    settings.setInViewCount(3);
    accept(5);
    settle();
    store.discard(4, true);
    store.discard(3, true);
    store.toggleManually();
    const QRectF closing = frame();
    settle();
    EXPECT_EQ(frame(), closing);
}

TEST_F(HUDControllerTest, AnotherScreenGetsItsFrameAtOnce)
{
    screens.attach(QRectF(1512, 0, 1000, 800));
    settings.setInViewCount(3);
    accept(5);
    settle();
    pointer.position = QPointF(1700, 100);
    publishItems();
    EXPECT_EQ(frame(), QRectF(2012 - 158, 800 - 62, 316, 62));
}

TEST_F(HUDControllerTest, ScreenChangesRender)
{
    store.toggleManually();
    settle();
    screen->frame = {0, 0, 800, 600};
    screens.notifyChanges();
    EXPECT_EQ(frame(), QRectF(254, 600 - 56, 648, 982 - 544)) << "covers both until it has settled";
    settle();
    EXPECT_EQ(frame(), QRectF(400 - 146, 600 - 56, 292, 56));
}

TEST_F(HUDControllerTest, RendersOnceForAnOperationHoweverOftenItPublishes)
{
    bar.frames.clear();
    accept(1'000);
    EXPECT_EQ(bar.frames.size(), 1U);
    store.discard(0, true);
    EXPECT_EQ(bar.frames.size(), 2U);
    store.toggleSelection(store.items()[10]);
    bar.frames.clear();
    store.removeSelected();
    EXPECT_EQ(bar.frames.size(), 1U);
    // Before anybody can press anything.
    EXPECT_EQ(snapshot().totalCount, 1);
    EXPECT_EQ(snapshot().focusedIndex, 0);
    ASSERT_EQ(snapshot().visible.size(), 1U);
    EXPECT_EQ(snapshot().visible[0].second.title(), QStringLiteral("item 11"));
    store.clearAll();
    EXPECT_EQ(bar.frames.size(), 2U);
    EXPECT_TRUE(snapshot().visible.empty());
    EXPECT_TRUE(desk.panel.ignoresMouseEvents);
}

TEST_F(HUDControllerTest, RendersOnceAFrameForPicturesThatArrive)
{
    QList<DropItem> items;
    for (int i = 0; i < 100; ++i)
        items << ShelfDesk::fileItem(QString::number(i));
    store.accept(items);
    settle();
    bar.frames.clear();
    QImage picture(2, 2, QImage::Format_RGB32);
    picture.fill(Qt::red);
    for (const auto &request : thumbnails.requests)
        request.completion(Image{picture, {30, 30}});
    EXPECT_EQ(bar.frames.size(), 0U);
    desk.clock.advance(StoreFollower::detailDelay);
    EXPECT_EQ(bar.frames.size(), 1U);
    EXPECT_TRUE(snapshot().visible[0].second.thumbnail());
}

TEST_F(HUDControllerTest, AMessageThatDoesNotFitWidensItForAsLongAsItIsRead)
{
    settings.setInViewCount(1);
    accept(1);
    settle();
    const double usual = frame().width();
    feedback.show({Message::Kind::SomeNotTaken, 2, 5});
    const double message = desk.fakeMeasurer.width(
        Message{Message::Kind::SomeNotTaken, 2, 5}.text(), desk.theme.typography.secondary);
    EXPECT_GE(view().look().layout.cells[0].subtitle->width(), message);
    EXPECT_GE(frame().width(), view().look().layout.size.width());
    EXPECT_GT(view().look().layout.size.width(), usual);
    settle();
    EXPECT_EQ(frame().width(), usual);
    EXPECT_EQ(view().look().layout.size.width(), usual);
}

TEST_F(HUDControllerTest, AMessageOverTheOnlyOfSeveralCellsHasRoom)
{
    settings.setInViewCount(3);
    accept(1);
    settle();
    const double usual = frame().width();
    const double cell = view().look().layout.cells[0].root.x();
    feedback.show({Message::Kind::FileIsGone});
    const ShelfLayout &layout = view().look().layout;
    EXPECT_GE(layout.flash.width(),
              desk.fakeMeasurer.width(Message{Message::Kind::FileIsGone}.text(),
                                      desk.theme.typography.hint));
    EXPECT_GT(layout.cells[0].root.x(), cell) << "it stays in the middle";
    EXPECT_GE(frame().width(), layout.size.width());
    settle();
    EXPECT_EQ(frame().width(), usual);
}

TEST_F(HUDControllerTest, LargerTextEnlargesItAndTheBar)
{
    appearance.scale = 1.5;
    store.toggleManually();
    EXPECT_EQ(frame(), QRectF(756 - 219, 982 - 84, 438, 84));
    EXPECT_EQ(desk.panel.contentSize(), QSizeF(292, 56));
    EXPECT_EQ(desk.panel.body, QRectF(0, 0, 292, 56));
    EXPECT_EQ(bar.frames.back(), frame());
    EXPECT_EQ(bar.scales.back(), 1.5);
    EXPECT_EQ(controller->openWidth(screen), 438);
}

TEST_F(HUDControllerTest, FollowsALargerTextAtOnceWhileItIsShown)
{
    store.toggleManually();
    appearance.scale = 1.25;
    controller->appearanceChanged();
    EXPECT_EQ(frame(), QRectF(756 - 182.5, 982 - 70, 365, 70));
    EXPECT_EQ(desk.panel.contentScale, 1.25);
    appearance.scale = 1;
    controller->appearanceChanged();
    EXPECT_EQ(frame(), QRectF(756 - 146, 982 - 56, 292, 56));
    EXPECT_EQ(desk.panel.contentScale, 1);
    settle();
    EXPECT_EQ(frame(), QRectF(756 - 146, 982 - 56, 292, 56));
}

TEST_F(HUDControllerTest, GrowsAndShrinksAtTheScaleOfLargerText)
{
    appearance.scale = 2;
    store.toggleManually();
    accept(3);
    EXPECT_EQ(desk.panel.contentScale, 2);
    settle();
    EXPECT_EQ(desk.panel.contentScale, 2);
    EXPECT_EQ(desk.panel.contentSize(), view().look().layout.size);
}

TEST_F(HUDControllerTest, EnlargesNoFurtherThanTheWidestShelfFitsOnTheScreen)
{
    appearance.scale = 2;
    screen->frame = {0, 0, 762, 500};
    settings.setInViewCount(6);
    accept(7);
    settle();
    EXPECT_EQ(frame(), QRectF(0, 500 - 93, 762, 93));
    screen->frame = {0, 0, 400, 500};
    screens.notifyChanges();
    settle();
    EXPECT_EQ(desk.panel.contentScale, 1);
}

TEST_F(HUDControllerTest, ANotchIsAsLargeAsItIsWhateverTheTexts)
{
    screen->safeAreaInsets.top = 32;
    screen->auxiliaryTopLeftArea = QRectF(0, 950, 606, 32);
    screen->auxiliaryTopRightArea = QRectF(906, 950, 606, 32);
    appearance.scale = 2;
    store.toggleManually();
    EXPECT_EQ(snapshot().notch, QSizeF(150, 16));
}

TEST_F(HUDControllerTest, OtherColoursAreShownAtOnceInItAndInTheBar)
{
    settings.setInViewCount(3);
    accept(2);
    settle();
    paint();
    desk.theme.setContrast(Theme::Contrast::More);
    controller->appearanceChanged();
    EXPECT_FALSE(view().isMoving());
    EXPECT_EQ(view().cellCount(), 2U);
    EXPECT_EQ(desk.panel.body, QRectF({}, frame().size()));
    EXPECT_EQ(bar.themeChanges, 1);
}

TEST_F(HUDControllerTest, TheNotchWidensTheShelf)
{
    screen->safeAreaInsets.top = 32;
    screen->auxiliaryTopLeftArea = QRectF(0, 950, 651, 32);
    screen->auxiliaryTopRightArea = QRectF(861, 950, 651, 32);
    store.toggleManually();
    EXPECT_EQ(snapshot().notch, QSizeF(210, 32));
    EXPECT_EQ(frame().size(), QSizeF(294, 88));
    screen->auxiliaryTopLeftArea.reset();
    publishItems();
    EXPECT_EQ(snapshot().notch, QSizeF(0, 32));
}

TEST_F(HUDControllerTest, OnlyADragFromElsewhereMakesItReceptive)
{
    accept(1);
    store.dragBegan();
    EXPECT_TRUE(snapshot().receptive);
    view().onDragOutChanged(true);
    EXPECT_FALSE(snapshot().receptive);
    int published = 0;
    store.observeItems([&](const QList<DropItem> &) { ++published; });
    view().onDragOutChanged(true);
    EXPECT_EQ(published, 0) << "an equal value tells nobody";
    view().onDragOutChanged(false);
    EXPECT_EQ(published, 1);
}

TEST_F(HUDControllerTest, TheViewAllBarIsRenderedAfterTheViewHasItsSnapshot)
{
    settings.setInViewCount(3);
    accept(5);
    EXPECT_EQ(bar.sizesSeen.back(), QSizeF(316, 62));
    EXPECT_EQ(bar.frames.back().size(), QSizeF(316, 62));
    EXPECT_TRUE(bar.screens.back());
    store.toggleManually();
    EXPECT_EQ(bar.frames.back(), QRectF());
    EXPECT_FALSE(bar.screens.back());
}

TEST_F(HUDControllerTest, TheBarOpensWithTwoItemsAndAlwaysCloses)
{
    accept(1);
    view().onViewAll();
    EXPECT_FALSE(store.isViewAllOpen());
    accept(1);
    view().onViewAll();
    EXPECT_TRUE(store.isViewAllOpen());
    store.discard(0, true);
    EXPECT_TRUE(store.isViewAllOpen()) << "not tidied up by itself";
    view().onViewAll();
    EXPECT_FALSE(store.isViewAllOpen());
}

TEST_F(HUDControllerTest, GesturesBecomeOperationsOfTheStore)
{
    accept(3);
    view().onFocus(1);
    EXPECT_EQ(store.focusedIndex(), 1);
    view().onQuickLook();
    EXPECT_EQ(presenter.titles, QStringList{QStringLiteral("item 1")});
    view().onRemove(0);
    EXPECT_EQ(store.items().size(), 2);
    const QUuid last = store.items().last().id();
    view().onEjected(last, true);
    EXPECT_EQ(store.items().size(), 2);
    EXPECT_EQ(view().look().flashMessage, QStringLiteral("Kept on the shelf"));
    view().onDropAccepted({ShelfDesk::textItem(QStringLiteral("new"))});
    view().onEjected(last, false);
    EXPECT_FALSE(store.indexOf(last));
    EXPECT_EQ(store.items().size(), 2) << "found again by its id although indices moved";
    view().onEjected(QUuid::createUuid(), false);
    EXPECT_EQ(store.items().size(), 2);
}

TEST_F(HUDControllerTest, APictureThatIsBeingMadeIsPreviewedByTheFileThatItIsMadeFrom)
{
    const DropItem::File place{QUrl(QStringLiteral("file:///spool/a.png"))};
    const QUrl original(QStringLiteral("file:///home/a.tiff"));
    store.accept({DropItem::beingMade(place, QStringLiteral("a.png"), {}, original)});
    view().onQuickLook();
    EXPECT_EQ(presenter.titles, QStringList{QStringLiteral("a.png")});
}

TEST_F(HUDControllerTest, APictureWithoutAFileIsPreviewedOnceItHasOne)
{
    const auto finish = [this] {
        desk.work.runAll();
        desk.clock.runPending();
    };
    const auto drop = [this] { store.accept({desk.pictures.ofBytes("png", UTType::png())}); };
    drop();
    view().onQuickLook();
    EXPECT_TRUE(presenter.titles.isEmpty()) << "there is nothing to look at yet";
    finish();
    EXPECT_EQ(presenter.titles, QStringList{QStringLiteral("Image.png")});
    drop();
    view().onQuickLook();
    view().onQuickLook();
    finish();
    EXPECT_EQ(presenter.titles.size(), 1) << "it was taken back";
    drop();
    view().onQuickLook();
    store.focus(0);
    finish();
    EXPECT_EQ(presenter.titles.size(), 1) << "the user looks at another one";
}

TEST_F(HUDControllerTest, OptionCopiesAsADataUri)
{
    accept(1);
    view().onCopy();
    EXPECT_EQ(view().look().flashMessage, QStringLiteral("Text copied"));
    desk.keyboard.modifiers = Modifier::Option;
    view().onCopy();
    work.runAll();
    desk.clock.runPending();
    EXPECT_EQ(view().look().flashMessage, QStringLiteral("Data URI copied"));
}

TEST_F(HUDControllerTest, WithoutAFocusedItemCopyAndPreviewDoNothing)
{
    view().onCopy();
    view().onQuickLook();
    EXPECT_TRUE(presenter.titles.isEmpty());
    EXPECT_TRUE(clipboard.writes.empty());
}

TEST_F(HUDControllerTest, WorksWithoutPresenterAndBar)
{
    controller.reset();
    HUDController::Context bare = context();
    bare.presenter = nullptr;
    bare.viewAll = nullptr;
    controller.emplace(bare);
    accept(2);
    view().onQuickLook();
    view().onViewAll();
    EXPECT_TRUE(desk.panel.visible);
}

TEST_F(HUDControllerTest, WhatOutlivesItDoesNothing)
{
    store.toggleManually();
    store.toggleManually();
    controller.reset();
    EXPECT_EQ(desk.panel.content, nullptr);
    accept(1);
    settings.setInViewCount(2);
    screens.notifyChanges();
    feedback.show({Message::Kind::Kept});
    desk.clock.advance(5);
    EXPECT_TRUE(desk.panel.visible) << "the pending hide is void";
}

// The keyboard

TEST_F(HUDControllerTest, OpenedByHandItHasTheKeyboardAndClosedByHandItGivesItBack)
{
    controller->toggleByHand();
    EXPECT_TRUE(desk.panel.isKey);
    controller->toggleByHand();
    EXPECT_FALSE(desk.panel.isKey);
}

TEST_F(HUDControllerTest, HiddenByHandItSaysSo)
{
    const QString hidden = QStringLiteral("The shelf is hidden");
    controller->toggleByHand();
    EXPECT_FALSE(desk.panel.announced.contains(hidden));
    controller->toggleByHand();
    EXPECT_EQ(desk.panel.announced.count(hidden), 1);
    controller->toggleByHand();
    EXPECT_TRUE(view().keyDown({TypedKey::Escape, {}, false}));
    ASSERT_EQ(store.state(), ShelfState::Idle);
    EXPECT_EQ(desk.panel.announced.count(hidden), 1) << "that key was pressed on it";
    accept(1);
    controller->toggleByHand();
    ASSERT_EQ(store.state(), ShelfState::Idle);
    EXPECT_EQ(desk.panel.announced.count(hidden), 2);
    controller->toggleByHand();
    ASSERT_EQ(store.state(), ShelfState::Occupied);
    EXPECT_EQ(desk.panel.announced.count(hidden), 2) << "it is not";
}

TEST_F(HUDControllerTest, WhatTheBarRemovesOutOfSightIsNamed)
{
    accept(3);
    settings.setInViewCount(1);
    const DropItem first = store.items().front();
    ASSERT_NE(store.focusedIndex(), 0);
    for (const DropItem &item : {store.items()[1], store.items()[2]})
        store.toggleSelection(item);
    store.removeSelected();
    EXPECT_EQ(desk.panel.announced.last(),
              first.title() + QStringLiteral(" was removed; 2 items are left"));
}

TEST_F(HUDControllerTest, TheOnlyItemOfAClearedShelfIsNamed)
{
    accept(1);
    store.clearAll();
    EXPECT_EQ(desk.panel.announced.last(),
              QStringLiteral("item 0 was removed; the shelf is empty"));
    accept(2);
    store.clearAll();
    EXPECT_EQ(desk.panel.announced.last(), QStringLiteral("The shelf is empty"));
}

TEST_F(HUDControllerTest, OpenedInTheMiddleOfADragItLeavesTheKeyboardWhereItIs)
{
    controller->dragChanged(true);
    controller->toggleByHand();
    EXPECT_TRUE(desk.panel.visible);
    EXPECT_FALSE(desk.panel.isKey) << "the shelf does not open for drags, and is not told of them";
    EXPECT_TRUE(bar.isDragGoingOn);
    controller->dragChanged(false);
    EXPECT_FALSE(bar.isDragGoingOn);
    controller->toggleByHand();
    accept(1);
    store.ownDragChanged(true);
    controller->toggleByHand();
    controller->toggleByHand();
    EXPECT_FALSE(desk.panel.isKey) << "what is dragged came from the shelf";
}

TEST_F(HUDControllerTest, WhatIsPastedIntoTheBarComesToTheShelf)
{
    accept(2);
    bar.onPaste();
    EXPECT_EQ(desk.panel.pastes, 1);
    controller.reset();
    bar.onPaste();
    EXPECT_EQ(desk.panel.pastes, 1) << "it may outlive the shelf";
}

TEST_F(HUDControllerTest, ABarThatOpensWithItHasTheKeyboardInItsPlace)
{
    accept(2);
    controller->toggleByHand();
    bar.isOpen = true;
    controller->toggleByHand();
    EXPECT_FALSE(desk.panel.isKey);
}

TEST_F(HUDControllerTest, EscapeClosesTheEmptyShelfOnly)
{
    controller->toggleByHand();
    EXPECT_TRUE(view().keyDown({TypedKey::Escape, {}, false}));
    EXPECT_EQ(store.state(), ShelfState::Idle);
    EXPECT_FALSE(desk.panel.isKey);
    accept(2);
    EXPECT_TRUE(view().keyDown({TypedKey::Escape, {}, false}));
    EXPECT_EQ(store.items().size(), 1) << "it removes what is focused";
    EXPECT_EQ(store.state(), ShelfState::Occupied);
}

TEST_F(HUDControllerTest, AClickElsewhereIsToldToThePanelOnceForEachTimeThatItHasTheKeyboard)
{
    const QString wentOn = QStringLiteral("userWentOn");
    FakeDragDesktop desktop;
    MonitoredClicks clicks(desktop, desktop.pointer);
    HUDController::Context listening = context();
    listening.outsideClicks = &clicks;
    controller.emplace(listening);
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
    controller->toggleByHand();
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 1U);
    desktop.pressElsewhere(desk.panel.frame().center());
    EXPECT_FALSE(desk.panel.log.contains(wentOn)) << "the shelf itself was clicked";
    desktop.pressElsewhere(QPointF(5, 5));
    desktop.pressElsewhere(QPointF(5, 5));
    EXPECT_EQ(desk.panel.log.count(wentOn), 1);
    EXPECT_EQ(store.state(), ShelfState::Expanded) << "it stays open";
    accept(1);
    view().mouseDown({view().look().layout.cells[0].root.center()});
    desktop.pressElsewhere(std::nullopt);
    EXPECT_EQ(desk.panel.log.count(wentOn), 2);
    view().mouseDown({view().look().layout.cells[0].root.center()});
    controller->toggleByHand();
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
}

} // namespace corvane::test
