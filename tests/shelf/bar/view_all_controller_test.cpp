#include "fakes/fake_drag_desktop.h"
#include "fakes/shelf_model.h"
#include "input/monitored_clicks.h"
#include "shelf/bar/view_all_controller.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// The bar below a shelf whose controller renders it, as in the program.
class ViewAllControllerTest : public testing::Test, protected ShelfModel {
protected:
    ViewAllControllerTest()
    {
        pointer.position = QPointF(700, 900);
        bar.emplace(context());
        HUDController::Context hud = controllerContext();
        hud.viewAll = &*bar;
        shelf.emplace(hud);
    }

    ViewAllController::Context context()
    {
        return {{panel, desk.clock, desk.motion, desk.theme, desk.keyboard, desk.dragWriter,
                 desk.savedPictures, desk.preparation},
                store,
                quickActions,
                clicks,
                feedback};
    }
    void accept(int count)
    {
        QList<DropItem> items;
        for (int i = 0; i < count; ++i)
            items << ShelfDesk::textItem(QStringLiteral("item %1").arg(i));
        store.accept(items);
    }
    void setOpen(bool open)
    {
        if (store.isViewAllOpen() != open)
            store.toggleViewAll();
    }
    void open(int count)
    {
        accept(count);
        setOpen(true);
    }
    const ViewAllView &view() { return bar->view(); }
    QRectF pill() const { return desk.panel.frame(); }
    int publications() { return std::exchange(m_published, 0); }
    void countPublications()
    {
        store.observeItems([this](const QList<DropItem> &) { ++m_published; });
    }
    QPointF middleOf(std::size_t tile) { return view().layout().tiles.at(tile).root.center(); }
    void drag(QPointF from) const
    {
        panel.content->mouseDown({from});
        panel.content->mouseDragged({from + QPointF(9, 0)});
    }

    FakePanelWindow panel;
    FakeDragDesktop desktop;
    MonitoredClicks clicks{desktop, desktop.pointer};
    std::optional<ViewAllController> bar;
    std::optional<HUDController> shelf;

private:
    int m_published = 0;
};

} // namespace

// Showing and hiding

TEST_F(ViewAllControllerTest, startsHiddenAndClickThrough)
{
    EXPECT_EQ(panel.frames.front(), QRectF(0, 0, 600, 132));
    EXPECT_TRUE(panel.content);
    EXPECT_FALSE(panel.visible);
    EXPECT_TRUE(panel.ignoresMouseEvents);
    EXPECT_FALSE(bar->isWatchingOutsideClicks());
}

TEST_F(ViewAllControllerTest, hangsBelowThePillInTheMiddleOfTheScreen)
{
    open(20);
    EXPECT_TRUE(panel.visible);
    EXPECT_FALSE(panel.ignoresMouseEvents);
    EXPECT_EQ(panel.frame(), QRectF(756 - 605, pill().y() - 10 - 132, 1210, 132));
    EXPECT_EQ(view().tileCount(), 12U);
}

TEST_F(ViewAllControllerTest, isAsMuchLargerAsTheShelf)
{
    open(20);
    bar->render(pill(), screen, 1.5);
    EXPECT_EQ(panel.frame(), QRectF(756 - 605, pill().y() - 15 - 198, 1210, 198));
    EXPECT_NEAR(view().layout().size.width(), 1210 / 1.5, 0.001);
    EXPECT_EQ(view().layout().size.height(), 132);
    EXPECT_EQ(view().tileCount(), 8U) << "as many as fit at their size";
    view().onScroll(1);
    EXPECT_EQ(panel.contentScale, 1.5) << "it pages at its size";
    bar->render(pill(), screen, 1);
    EXPECT_EQ(view().tileCount(), 12U);
}

TEST_F(ViewAllControllerTest, followsTheShelfToAnotherScreen)
{
    open(2);
    screens.attach(QRectF(1512, 200, 1000, 800));
    pointer.position = QPointF(1600, 300);
    publishItems();
    EXPECT_EQ(panel.frame().x(), 1512 + 100);
    EXPECT_EQ(panel.frame().width(), 800);
    EXPECT_EQ(panel.frame().y() + 132 + 10, pill().y());
}

TEST_F(ViewAllControllerTest, pagingLeavesItOnTheScreenThatTheShelfWentTo)
{
    open(20);
    screens.attach(QRectF(1512, 200, 1000, 800));
    pointer.position = QPointF(1600, 300);
    publishItems();
    const QRectF frame = panel.frame();
    ASSERT_GT(frame.x(), 1512);
    view().onScroll(1);
    EXPECT_EQ(bar->offset(), 1);
    EXPECT_EQ(panel.frame(), frame);
}

TEST_F(ViewAllControllerTest, aScreenTooNarrowForAnArrowShowsOneTile)
{
    screen->frame = {0, 0, 115, 982};
    open(4);
    EXPECT_EQ(panel.frame().width(), 92);
    EXPECT_EQ(view().tileCount(), 1U);
}

TEST_F(ViewAllControllerTest, withOneItemItStaysHiddenAndWatchesNothing)
{
    accept(1);
    setOpen(true);
    EXPECT_FALSE(panel.visible);
    EXPECT_FALSE(bar->isWatchingOutsideClicks());
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
}

TEST_F(ViewAllControllerTest, itHidesBelowTwoItemsWithoutClearingTheFlag)
{
    open(3);
    store.discard(0, true);
    EXPECT_TRUE(panel.visible);
    store.discard(0, true);
    EXPECT_FALSE(panel.visible);
    EXPECT_TRUE(panel.ignoresMouseEvents);
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
    EXPECT_TRUE(store.isViewAllOpen());
    accept(1);
    EXPECT_TRUE(panel.visible) << "still open as far as the store is concerned";
}

TEST_F(ViewAllControllerTest, itHidesWithTheShelf)
{
    open(3);
    store.toggleManually();
    EXPECT_FALSE(panel.visible);
    EXPECT_FALSE(bar->isWatchingOutsideClicks());
}

TEST_F(ViewAllControllerTest, withNoScreenItHides)
{
    open(3);
    screens.detach(screen);
    screen.reset();
    pointer.position.reset();
    publishItems();
    EXPECT_FALSE(panel.visible);
}

TEST_F(ViewAllControllerTest, aHiddenBarIsAtItsFirstPageAgain)
{
    open(20);
    view().onScroll(1);
    view().onScroll(1);
    ASSERT_EQ(bar->offset(), 2);
    setOpen(false);
    EXPECT_EQ(bar->offset(), 0);
    setOpen(true);
    EXPECT_EQ(view().offset(), 0);
}

TEST_F(ViewAllControllerTest, pagingStopsAtBothEnds)
{
    open(20);
    view().onScroll(-1);
    EXPECT_EQ(bar->offset(), 0);
    for (int i = 0; i < 30; ++i)
        view().onScroll(1);
    EXPECT_EQ(bar->offset(), 20 - 12);
    EXPECT_EQ(view().offset(), 8);
    view().onScroll(-1);
    EXPECT_EQ(bar->offset(), 7);
}

TEST_F(ViewAllControllerTest, whatIsInViewIsThePageThatIsShown)
{
    accept(30);
    EXPECT_TRUE(view().itemsInView().isEmpty()) << "nothing of a bar that is hidden";
    const auto idsFrom = [this](qsizetype first) {
        QList<QUuid> ids;
        for (const DropItem &item : store.items().sliced(first, 12))
            ids << item.id();
        return ids;
    };
    setOpen(true);
    EXPECT_EQ(view().itemsInView(), idsFrom(0));
    view().onScroll(12);
    EXPECT_EQ(view().itemsInView(), idsFrom(12));
    setOpen(false);
    EXPECT_TRUE(view().itemsInView().isEmpty());
}

TEST_F(ViewAllControllerTest, thePageFollowsItemsThatGo)
{
    open(20);
    for (int i = 0; i < 8; ++i)
        view().onScroll(1);
    for (int i = 0; i < 5; ++i)
        store.discard(19 - i, true);
    EXPECT_EQ(bar->offset(), 15 - 12);
}

// The keyboard

TEST_F(ViewAllControllerTest, takesTheKeyboardInEveryRenderThatShowsIt)
{
    open(3);
    EXPECT_TRUE(panel.isKey);
    panel.isKey = false;
    publishItems();
    EXPECT_TRUE(panel.isKey);
    panel.isKey = false;
    view().onScroll(1);
    EXPECT_TRUE(panel.isKey);
}

TEST_F(ViewAllControllerTest, aPictureThatArrivesTakesTheKeyboardFromNoOtherProgram)
{
    open(3);
    panel.isKey = false;
    panel.othersHaveKeyboard = true;
    publishItems();
    EXPECT_FALSE(panel.isKey);
    setOpen(false);
    setOpen(true);
    EXPECT_TRUE(panel.isKey) << "opened anew it is what the user wants";
}

TEST_F(ViewAllControllerTest, aShelfThatComesUnaskedBringsItWithoutTheKeyboard)
{
    open(3);
    store.toggleManually();
    panel.isKey = false;
    for (const bool othersHaveKeyboard : {true, false}) {
        panel.othersHaveKeyboard = othersHaveKeyboard;
        store.toggleManually();
        EXPECT_TRUE(panel.visible);
        publishItems();
        view().onScroll(1);
        EXPECT_FALSE(panel.isKey) << "nor does anything that arrives later bring it";
        store.toggleManually();
    }
    store.toggleManually();
    desk.panel.content->mouseDown({dynamic_cast<const ShelfView &>(*desk.panel.content)
                                       .look()
                                       .layout.cells[0]
                                       .root.center()});
    EXPECT_TRUE(panel.isKey) << "the user has turned to it";
    panel.isKey = false;
    publishItems();
    EXPECT_TRUE(panel.isKey);
}

TEST_F(ViewAllControllerTest, whatArrivesBringsItBackWithoutTheKeyboard)
{
    open(2);
    store.discard(0, true);
    ASSERT_FALSE(panel.visible);
    panel.isKey = false;
    panel.othersHaveKeyboard = true;
    accept(1);
    EXPECT_TRUE(panel.visible);
    EXPECT_FALSE(panel.isKey);
}

TEST_F(ViewAllControllerTest, aScreenThatComesBackBringsItWithoutTheKeyboard)
{
    open(3);
    pointer.position.reset();
    screens.detach(screen);
    screens.notifyChanges();
    ASSERT_FALSE(panel.visible);
    panel.isKey = false;
    panel.othersHaveKeyboard = true;
    screen = screens.attach(QRectF(0, 0, 1512, 982));
    screens.notifyChanges();
    EXPECT_TRUE(panel.visible);
    EXPECT_FALSE(panel.isKey);
}

TEST_F(ViewAllControllerTest, openedWhileTheShelfIsHiddenItWaitsForTheHandToo)
{
    accept(3);
    store.toggleManually();
    store.toggleViewAll();
    panel.othersHaveKeyboard = true;
    store.toggleManually();
    EXPECT_TRUE(panel.visible);
    EXPECT_FALSE(panel.isKey);
    // By hand: closed, and opened.
    shelf->toggleByHand();
    EXPECT_FALSE(panel.visible);
    EXPECT_FALSE(panel.isKey);
    shelf->toggleByHand();
    EXPECT_TRUE(panel.isKey);
}

TEST_F(ViewAllControllerTest, aHandThatClosedTheShelfDoesNotCountForWhatComesLater)
{
    open(3);
    shelf->toggleByHand();
    panel.isKey = false;
    store.toggleManually();
    EXPECT_TRUE(panel.visible);
    EXPECT_FALSE(panel.isKey);
}

TEST_F(ViewAllControllerTest, aPressOnTheShelfLeavesTheKeysWithTheBar)
{
    settings.setInViewCount(2);
    open(3);
    const auto &layout = dynamic_cast<const ShelfView &>(*desk.panel.content).look().layout;
    for (const QPointF point : {layout.arrowHits[1].center(), layout.cells[1].root.center(),
                                layout.cells[0].root.center(), QPointF(3, 30)}) {
        panel.isKey = false;
        panel.othersHaveKeyboard = true;
        desk.panel.content->mouseDown({point});
        EXPECT_TRUE(panel.isKey) << point.x();
        desk.panel.content->mouseUp({point});
    }
    panel.isKey = false;
    desk.panel.content->mouseDown({layout.viewAllHit.center()});
    EXPECT_FALSE(panel.visible);
    EXPECT_FALSE(panel.isKey) << "closed by that press";
}

TEST_F(ViewAllControllerTest, takesNoKeyboardFromADragThatTheShelfDoesNotOpenFor)
{
    accept(3);
    bar->dragChanged(true);
    setOpen(true);
    EXPECT_TRUE(panel.visible);
    EXPECT_FALSE(panel.isKey);
    bar->dragChanged(false);
    publishItems();
    EXPECT_FALSE(panel.isKey);
    panel.othersHaveKeyboard = true;
    publishItems();
    EXPECT_FALSE(panel.isKey) << "nor later, without the user having turned to it";
    setOpen(false);
    setOpen(true);
    EXPECT_TRUE(panel.isKey);
}

TEST_F(ViewAllControllerTest, takesNoKeyboardFromADragThatGoesOnNorAtItsEnd)
{
    accept(3);
    store.dragBegan();
    setOpen(true);
    EXPECT_TRUE(panel.visible);
    EXPECT_FALSE(panel.isKey);
    publishItems();
    EXPECT_FALSE(panel.isKey);
    store.dragEnded();
    EXPECT_FALSE(panel.isKey);
}

TEST_F(ViewAllControllerTest, aDragThatOpensTheShelfOpensTheBarWithoutTheKeyboard)
{
    open(3);
    store.toggleManually();
    panel.isKey = false;
    store.dragBegan();
    EXPECT_EQ(store.state(), ShelfState::Expanded);
    EXPECT_TRUE(panel.visible);
    store.dragEnded();
    EXPECT_EQ(store.state(), ShelfState::Occupied);
    EXPECT_TRUE(panel.visible);
    EXPECT_FALSE(panel.isKey);
}

TEST_F(ViewAllControllerTest, itsOwnDragTakesNoKeyboardEither)
{
    open(3);
    store.toggleSelection(store.items()[0]);
    panel.isKey = false;
    panel.othersHaveKeyboard = true;
    drag(middleOf(0));
    panel.isKey = false;
    panel.endDragOut(DragOperation::Copy);
    EXPECT_TRUE(panel.visible) << "two are left";
    EXPECT_FALSE(panel.isKey);
}

TEST_F(ViewAllControllerTest, aPressThatTheEndOfTheBarInterruptsTogglesNothing)
{
    open(3);
    panel.content->mouseDown({middleOf(1)});
    setOpen(false);
    setOpen(true);
    panel.content->mouseUp({middleOf(1)});
    EXPECT_EQ(store.selection().size(), 3);
}

// Clicks elsewhere

TEST_F(ViewAllControllerTest, aClickElsewhereClosesIt)
{
    open(3);
    ASSERT_EQ(desktop.mouseDownMonitorCount(), 1U);
    panel.log.clear();
    desktop.pressElsewhere(QPointF(20, 20));
    EXPECT_FALSE(store.isViewAllOpen());
    EXPECT_FALSE(panel.visible);
    EXPECT_EQ(panel.log, (QStringList{QStringLiteral("userWentOn"), QStringLiteral("orderOut")}))
        << "the keyboard is left to what was clicked";
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
}

TEST_F(ViewAllControllerTest, aClickOnTheShelfsRectangleDoesNotCloseIt)
{
    open(3);
    desktop.pressElsewhere(pill().center());
    EXPECT_TRUE(store.isViewAllOpen());
    desktop.pressElsewhere(panel.frame().center());
    EXPECT_TRUE(store.isViewAllOpen());
    desktop.pressElsewhere(QPointF(756, pill().y() - 5));
    EXPECT_FALSE(store.isViewAllOpen()) << "between the two is elsewhere";
}

TEST_F(ViewAllControllerTest, whereNobodyTellsWhereThePointerIsAnyClickElsewhereCloses)
{
    open(3);
    desktop.pressElsewhere(std::nullopt);
    EXPECT_FALSE(store.isViewAllOpen());
}

TEST_F(ViewAllControllerTest, watchesOnceHoweverOftenItIsRendered)
{
    open(3);
    publishItems();
    publishItems();
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 1U);
}

TEST_F(ViewAllControllerTest, aMonitorThatWasRefusedIsTriedAgain)
{
    desktop.refusesGlobalMonitor = true;
    open(3);
    EXPECT_TRUE(panel.visible);
    EXPECT_FALSE(bar->isWatchingOutsideClicks());
    desktop.refusesGlobalMonitor = false;
    publishItems();
    EXPECT_TRUE(bar->isWatchingOutsideClicks());
}

TEST_F(ViewAllControllerTest, itsEndRemovesTheMonitorAndTheContent)
{
    open(3);
    shelf.reset();
    bar.reset();
    EXPECT_EQ(desktop.mouseDownMonitorCount(), 0U);
    EXPECT_FALSE(panel.content);
}

// What the view asks for

TEST_F(ViewAllControllerTest, aTileTogglesItsItemInTheStore)
{
    open(3);
    ASSERT_EQ(store.selection().size(), 3) << "what arrives is selected";
    panel.content->mouseDown({middleOf(1)});
    panel.content->mouseUp({middleOf(1)});
    EXPECT_FALSE(store.selection().contains(store.items()[1].id()));
    EXPECT_EQ(view().layout().selectionText, QStringLiteral("2 of 3 selected"));
    EXPECT_EQ(view().layout().tiles[1].thumbOpacity, 0.38);
}

TEST_F(ViewAllControllerTest, selectAllRemoveAndCopyActOnTheStore)
{
    open(3);
    view().onToggleSelectAll();
    EXPECT_TRUE(store.selection().isEmpty());
    view().onCopySelected();
    EXPECT_TRUE(clipboard.writes.empty());
    view().onRemoveSelected();
    EXPECT_EQ(store.items().size(), 3);
    view().onToggleSelectAll();
    view().onCopySelected();
    ASSERT_EQ(clipboard.writes.size(), 1U);
    EXPECT_EQ(clipboard.writes[0].writers.size(), 3U);
    view().onRemoveSelected();
    EXPECT_TRUE(store.items().isEmpty());
    EXPECT_FALSE(panel.visible);
}

TEST_F(ViewAllControllerTest, closingTwiceTellsOnce)
{
    open(3);
    countPublications();
    view().onClose();
    EXPECT_EQ(publications(), 1);
    EXPECT_FALSE(panel.visible);
    view().onClose();
    EXPECT_EQ(publications(), 0);
}

TEST_F(ViewAllControllerTest, anEqualOnDragOutChangedTellsNobody)
{
    open(3);
    countPublications();
    view().onDragOutChanged(false);
    EXPECT_EQ(publications(), 0);
    view().onDragOutChanged(true);
    EXPECT_EQ(publications(), 1);
    EXPECT_TRUE(store.isOwnDrag());
    view().onDragOutChanged(true);
    EXPECT_EQ(publications(), 0);
}

TEST_F(ViewAllControllerTest, whatIsDroppedElsewhereLeavesAndWhatIsKeptStays)
{
    open(4);
    store.toggleSelection(store.items()[0]);
    drag(middleOf(1));
    EXPECT_TRUE(store.isOwnDrag());
    desk.keyboard.modifiers = Modifier::Shift;
    panel.endDragOut(DragOperation::Copy);
    EXPECT_EQ(store.items().size(), 4);
    desk.keyboard.modifiers = {};
    drag(middleOf(1));
    panel.endDragOut(DragOperation::Copy);
    EXPECT_FALSE(store.isOwnDrag());
    ASSERT_EQ(store.items().size(), 1);
    EXPECT_EQ(store.items()[0].title(), QStringLiteral("item 0"));
    EXPECT_FALSE(panel.visible);
}

TEST_F(ViewAllControllerTest, tellsWhenTheFileToBeDraggedIsGone)
{
    QStringList messages;
    store.accept({ShelfDesk::fileItem(QStringLiteral("gone.txt"))});
    open(1);
    feedback.handler = [&](const Message &message) { messages << message.text(); };
    store.toggleSelection(store.items()[0]);
    drag(middleOf(0));
    EXPECT_EQ(messages, QStringList{QStringLiteral("The file is no longer there")});
    EXPECT_FALSE(store.isOwnDrag());
}

} // namespace corvane::test
