#include "core/shelf_store.h"
#include "core/shelf_store_fixture.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

using test::exists;
using test::ShelfStoreTest;

const QString kept = QStringLiteral("Kept on the shelf");

TEST_F(ShelfStoreTest, BeginsClosedAndEmpty)
{
    EXPECT_EQ(store.state(), ShelfState::Idle);
    EXPECT_TRUE(store.items().isEmpty());
    EXPECT_EQ(store.focusedIndex(), 0);
    EXPECT_EQ(store.scrollOffset(), 0);
    EXPECT_TRUE(store.selection().isEmpty());
    EXPECT_FALSE(store.isViewAllOpen());
    EXPECT_FALSE(store.isDragInFlight());
    EXPECT_FALSE(store.isOwnDrag());
    EXPECT_FALSE(store.focusedItem().has_value());
    EXPECT_TRUE(store.visibleItems().empty());
}

using Accept = ShelfStoreTest;

TEST_F(Accept, OfNothingChangesNothing)
{
    EXPECT_FALSE(store.accept({}));
    EXPECT_EQ(log, QStringList());
    EXPECT_EQ(store.state(), ShelfState::Idle);
}

TEST_F(Accept, AppendsSelectsAndFocusesTheLast)
{
    fill(3);
    log.clear();
    EXPECT_TRUE(store.accept({text("d"), text("e")}));
    EXPECT_EQ(titles(), QStringLiteral("abcde"));
    EXPECT_EQ(store.selection().size(), 5);
    EXPECT_EQ(store.focusedIndex(), 4);
    EXPECT_EQ(store.focusedItem()->title(), QStringLiteral("e"));
    EXPECT_EQ(store.state(), ShelfState::Occupied);
}

TEST_F(Accept, PublishesItemsThenFocusThenState)
{
    store.observeItems([this](const QList<DropItem> &items) {
        detail << QStringLiteral("%1 items, %2 selected, focus %3, state %4")
                      .arg(items.size())
                      .arg(store.selection().size())
                      .arg(store.focusedIndex())
                      .arg(static_cast<int>(store.state()));
    });
    store.accept({text("a"), text("b")});
    EXPECT_EQ(log,
              (QStringList{QStringLiteral("items ab"), QStringLiteral("items ab"),
                           QStringLiteral("state 0 2")}));
    EXPECT_EQ(detail,
              (QStringList{QStringLiteral("2 items, 0 selected, focus 0, state 0"),
                           QStringLiteral("2 items, 2 selected, focus 1, state 0")}));
}

TEST_F(Accept, PublishesNoStateThatDidNotChange)
{
    fill(1);
    log.clear();
    store.accept({text("b")});
    EXPECT_EQ(log, (QStringList{QStringLiteral("items ab"), QStringLiteral("items ab")}));
}

TEST_F(Accept, KeepsTwoItemsOfTheSameFile)
{
    const DropItem first = file("a");
    store.accept({first, DropItem(first.payload(), first.title(), first.subtitle(), false)});
    EXPECT_EQ(store.items().size(), 2);
    EXPECT_EQ(store.selection().size(), 2);
}

TEST_F(Accept, WorksWithTheStoresOwnList)
{
    fill(2);
    store.accept(store.items());
    EXPECT_EQ(titles(), QStringLiteral("abab"));
}

using Focus = ShelfStoreTest;

TEST_F(Focus, ScrollsJustFarEnough)
{
    settings.setInViewCount(3);
    fill(5);
    store.focus(0);
    EXPECT_EQ(store.scrollOffset(), 0);
    store.focus(4);
    EXPECT_EQ(store.scrollOffset(), 2);
    store.focus(3);
    EXPECT_EQ(store.scrollOffset(), 2);
    store.focus(0);
    EXPECT_EQ(store.scrollOffset(), 0);
    store.focus(9);
    EXPECT_EQ(store.focusedIndex(), 4);
    EXPECT_EQ(store.scrollOffset(), 2);
}

TEST_F(Focus, BelowTheFirstClampsAndPublishes)
{
    fill(2);
    log.clear();
    store.focus(-1);
    EXPECT_EQ(store.focusedIndex(), 0);
    EXPECT_EQ(log, QStringList{QStringLiteral("items ab")});
    store.focus(std::numeric_limits<int>::min());
    EXPECT_EQ(store.focusedIndex(), 0);
    store.focus(std::numeric_limits<int>::max());
    EXPECT_EQ(store.focusedIndex(), 1);
}

TEST_F(Focus, OnAnEmptyShelfPublishesNothing)
{
    store.focus(0);
    EXPECT_EQ(log, QStringList());
}

TEST_F(Focus, BringsAnOffsetBackIntoTheList)
{
    settings.setInViewCount(2);
    fill(9);
    EXPECT_EQ(store.scrollOffset(), 7);
    store.setItems(store.items().first(4));
    store.focus(3);
    EXPECT_EQ(store.scrollOffset(), 2);
}

using Scrolling = ShelfStoreTest;

TEST_F(Scrolling, StopsAtBothEndsAndPublishesWhatChanges)
{
    settings.setInViewCount(3);
    fill(5);
    store.focus(0);
    log.clear();
    store.scrollBy(1);
    EXPECT_EQ(store.scrollOffset(), 1);
    store.scrollBy(10);
    EXPECT_EQ(store.scrollOffset(), 2);
    store.scrollBy(-10);
    EXPECT_EQ(store.scrollOffset(), 0);
    EXPECT_EQ(log, QStringList(3, QStringLiteral("items abcde")));
    store.scrollBy(-1);
    store.scrollBy(0);
    EXPECT_EQ(log.size(), 3) << "a step that changes nothing tells nobody";
    EXPECT_EQ(store.focusedIndex(), 0) << "the focus stays where it is";
}

TEST_F(Scrolling, OfWhatFitsDoesNothing)
{
    settings.setInViewCount(3);
    fill(3);
    log.clear();
    store.scrollBy(1);
    EXPECT_EQ(store.scrollOffset(), 0);
    EXPECT_EQ(log, QStringList());
}

TEST_F(Scrolling, BeyondEveryNumberEndsTheProcess)
{
    fill(2);
    ASSERT_EQ(store.scrollOffset(), 1);
    EXPECT_DEATH(store.scrollBy(std::numeric_limits<int>::max()), "overflowed");
}

using InViewCountChanged = ShelfStoreTest;

TEST_F(InViewCountChanged, LowersTheOffsetAtMostAndAlwaysPublishes)
{
    settings.setInViewCount(1);
    fill(5);
    ASSERT_EQ(store.scrollOffset(), 4);
    log.clear();
    settings.setInViewCount(3);
    store.inViewCountChanged();
    EXPECT_EQ(store.scrollOffset(), 2);
    settings.setInViewCount(1);
    store.inViewCountChanged();
    EXPECT_EQ(store.scrollOffset(), 2);
    settings.setInViewCount(6);
    store.inViewCountChanged();
    EXPECT_EQ(store.scrollOffset(), 0);
    EXPECT_EQ(log, QStringList(3, QStringLiteral("items abcde")));
}

using VisibleItems = ShelfStoreTest;

TEST_F(VisibleItems, AreTheWindowOfTheCarousel)
{
    settings.setInViewCount(3);
    fill(5);
    EXPECT_EQ(visible(), QStringLiteral("2c 3d 4e"));
    store.scrollBy(-1);
    EXPECT_EQ(visible(), QStringLiteral("1b 2c 3d"));
}

TEST_F(VisibleItems, StartAtTheLastItemWhenTheOffsetIsBeyondTheList)
{
    settings.setInViewCount(3);
    fill(9);
    store.setItems(store.items().first(2));
    EXPECT_EQ(store.scrollOffset(), 6);
    EXPECT_EQ(visible(), QStringLiteral("1b"));
    store.setItems({});
    EXPECT_EQ(visible(), QString());
}

TEST_F(VisibleItems, FollowAClampedSetting)
{
    fill(8);
    store.focus(0);
    defaults.setRaw(QStringLiteral("settings.inViewCount"), 0);
    EXPECT_EQ(store.visibleItems().size(), 1U);
    defaults.setRaw(QStringLiteral("settings.inViewCount"), 10);
    EXPECT_EQ(store.visibleItems().size(), 6U);
}

using Discard = ShelfStoreTest;

TEST_F(Discard, FocusesWhatSlidIntoThePlaceInTheMiddle)
{
    fill(5);
    store.discard(1, false);
    EXPECT_EQ(store.focusedIndex(), 1);
    store.discard(0, false);
    EXPECT_EQ(store.focusedIndex(), 0);
}

TEST_F(Discard, FocusesWhatSlidIntoThePlace)
{
    fill(3);
    store.discard(1, false);
    EXPECT_EQ(titles(), QStringLiteral("ac"));
    EXPECT_EQ(store.focusedIndex(), 1);
    store.discard(1, false);
    EXPECT_EQ(store.focusedIndex(), 0);
    EXPECT_EQ(store.selection().size(), 1);
}

// What is read stands in a file's text: for ten thousand items that took a quarter of the time.
TEST_F(Discard, ReadsNoSettingForItemsThatLeaveFromTheFront)
{
    fill(5);
    int reads = 0;
    defaults.onRead = [&reads](const QString & /*key*/) { ++reads; };
    store.removeSelected();
    EXPECT_TRUE(store.items().isEmpty());
    EXPECT_EQ(reads, 0);
}

TEST_F(Discard, IgnoresAnIndexOutOfRange)
{
    fill(1);
    log.clear();
    store.discard(-1, true);
    store.discard(1, true);
    EXPECT_EQ(log, QStringList());
}

TEST_F(Discard, PublishesWhileStateAndViewAllAreStillOld)
{
    fill(2);
    store.toggleViewAll();
    store.discard(1, false);
    log.clear();
    store.observeItems([this](const QList<DropItem> &items) {
        detail << QStringLiteral("%1 items, %2 selected, view all %3, state %4")
                      .arg(items.size())
                      .arg(store.selection().size())
                      .arg(store.isViewAllOpen())
                      .arg(static_cast<int>(store.state()));
    });
    store.discard(0, false);
    EXPECT_EQ(log, (QStringList{QStringLiteral("items "), QStringLiteral("state 2 0")}));
    EXPECT_EQ(detail, QStringList{QStringLiteral("0 items, 1 selected, view all 1, state 2")});
    EXPECT_FALSE(store.isViewAllOpen());
    EXPECT_EQ(store.focusedIndex(), 0);
    EXPECT_EQ(store.scrollOffset(), 0);
    EXPECT_TRUE(store.selection().isEmpty());
}

TEST_F(Discard, PublishesTheRemovalAndThenTheFocus)
{
    fill(2);
    log.clear();
    store.discard(0, false);
    EXPECT_EQ(log, (QStringList{QStringLiteral("items b"), QStringLiteral("items b")}));
}

TEST_F(Discard, DeletesASpooledFileOnlyWhenTold)
{
    const DropItem first = spooled("1");
    const DropItem second = spooled("2");
    store.accept({first, second, text("c")});
    store.discard(0, false);
    EXPECT_TRUE(exists(urlOf(first)));
    store.discard(0, true);
    EXPECT_FALSE(exists(urlOf(second)));
}

TEST_F(Discard, NeverDeletesAFileOfTheUser)
{
    const DropItem item = file("a");
    const DropItem pretender(item.payload(), {}, {}, true);
    store.accept({item, pretender});
    store.discard(0, true);
    store.discard(0, true);
    EXPECT_TRUE(exists(urlOf(item)));
}

TEST_F(Discard, IsToldWithWhetherFilesGoToo)
{
    fill(4);
    const QList<DropItem> items = store.items();
    QList<QUuid> left;
    QList<bool> deleting;
    store.onLeft = [&](const QUuid &id, bool deletingFiles) {
        left << id;
        deleting << deletingFiles;
    };
    store.ejected(0, true);
    store.ejected(0, false);
    store.discard(0, true);
    store.clearAll();
    EXPECT_EQ(left, (QList<QUuid>{items[0].id(), items[1].id(), items[2].id(), items[3].id()}));
    EXPECT_EQ(deleting, (QList<bool>{false, true, true, true}));
}

using Ejected = ShelfStoreTest;

TEST_F(Ejected, OnlyItemLeavesAndClosesTheShelfButKeepsItsFile)
{
    const DropItem item = spooled("1");
    store.accept({item});
    store.ejected(0, false);
    EXPECT_TRUE(store.items().isEmpty());
    EXPECT_EQ(store.state(), ShelfState::Idle);
    EXPECT_TRUE(exists(urlOf(item)));
    EXPECT_TRUE(messages.isEmpty());
}

TEST_F(Ejected, ItemStaysWhenItIsToBeKept)
{
    fill(1);
    log.clear();
    store.ejected(0, true);
    EXPECT_EQ(titles(), QStringLiteral("a"));
    EXPECT_EQ(log, QStringList());
    EXPECT_EQ(messages, QStringList{kept});
}

TEST_F(Ejected, ItemsLeaveById)
{
    const DropItem item = spooled("1");
    store.accept({text("a"), item, text("c"), text("d")});
    const QList<QUuid> ids
        = {store.items()[3].id(), QUuid::createUuid(), store.items()[0].id(), item.id(), item.id()};
    log.clear();
    store.ejected(ids, false);
    EXPECT_EQ(titles(), QStringLiteral("c"));
    EXPECT_TRUE(exists(urlOf(item)));
    EXPECT_EQ(log.size(), 6) << "each removal publishes on its own";
    EXPECT_TRUE(messages.isEmpty());
}

TEST_F(Ejected, ItemsStayWhenTheyAreToBeKept)
{
    fill(2);
    log.clear();
    store.ejected({store.items()[0].id()}, true);
    EXPECT_EQ(store.items().size(), 2);
    EXPECT_EQ(log, QStringList());
    EXPECT_EQ(messages, QStringList{kept});
}

TEST_F(Ejected, NothingWhereNothingIsNamed)
{
    fill(1);
    log.clear();
    store.ejected(QList<QUuid>(), false);
    EXPECT_EQ(log, QStringList());
}

TEST_F(Ejected, ItemsMayBeTheSelectionItself)
{
    fill(4);
    store.ejected(store.selection().values(), false);
    EXPECT_EQ(store.state(), ShelfState::Idle);
}

TEST_F(ShelfStoreTest, DropsMessagesThatNobodyShows)
{
    feedback.handler = {};
    fill(1);
    store.ejected(0, true);
    EXPECT_EQ(store.items().size(), 1);
}

TEST_F(ShelfStoreTest, PublishesEachOfManyRemovalsAndThenItsFocus)
{
    fill(4);
    store.toggleSelection(store.items()[1]);
    store.observeEndOfOperation([this] { log << QStringLiteral("end"); });
    log.clear();
    store.removeSelected();
    EXPECT_EQ(
        log,
        (QStringList{QStringLiteral("items bcd"), QStringLiteral("items bcd"),
                     QStringLiteral("items bd"), QStringLiteral("items bd"),
                     QStringLiteral("items b"), QStringLiteral("items b"), QStringLiteral("end")}));
    log.clear();
    store.ejected(QList<QUuid>{store.items()[0].id()}, false);
    EXPECT_EQ(log,
              (QStringList{QStringLiteral("items "), QStringLiteral("state 2 0"),
                           QStringLiteral("end")}));
}

TEST_F(ShelfStoreTest, TellsWhatAPublicationIsPartOf)
{
    QList<PublicationPace> paces;
    store.observeItems([&](const QList<DropItem> &) { paces << store.pace(); });
    store.accept({file("a")});
    EXPECT_EQ(paces, QList<PublicationPace>(2, PublicationPace::WithinOperation));
    paces.clear();
    store.focus(0);
    store.describe(store.items()[0].id(), QStringLiteral("now known"));
    store.toggleSelectAll();
    EXPECT_EQ(paces,
              (QList<PublicationPace>{PublicationPace::AtOnce, PublicationPace::Detail,
                                      PublicationPace::AtOnce}));
}

TEST_F(ShelfStoreTest, RemovesTheSelectionWithItsSpooledFiles)
{
    const DropItem first = spooled("1");
    const DropItem second = spooled("2");
    store.accept({first, text("b"), second});
    store.toggleSelection(second);
    store.removeSelected();
    ASSERT_EQ(store.items().size(), 1);
    EXPECT_EQ(store.items()[0].id(), second.id());
    EXPECT_FALSE(exists(urlOf(first)));
    EXPECT_TRUE(exists(urlOf(second)));
    log.clear();
    store.removeSelected();
    EXPECT_EQ(log, QStringList());
}

using ClearAll = ShelfStoreTest;

TEST_F(ClearAll, DeletesSpooledFilesInsideTheSpoolAlone)
{
    const DropItem inside = spooled("1");
    const DropItem users = file("a");
    const DropItem pretender(users.payload(), {}, {}, true);
    const DropItem unspooled(DropItem::File{urlOf(spooled("2"))}, {}, {}, false);
    store.accept({inside, users, pretender, unspooled});
    store.clearAll();
    EXPECT_FALSE(exists(urlOf(inside)));
    EXPECT_TRUE(exists(urlOf(users)));
    EXPECT_TRUE(exists(urlOf(unspooled)));
}

TEST_F(ClearAll, PublishesOnceThenTheState)
{
    settings.setInViewCount(2);
    fill(4);
    store.toggleViewAll();
    log.clear();
    store.clearAll();
    EXPECT_EQ(log, (QStringList{QStringLiteral("items "), QStringLiteral("state 2 0")}));
    EXPECT_TRUE(store.selection().isEmpty());
    EXPECT_FALSE(store.isViewAllOpen());
    EXPECT_EQ(store.focusedIndex(), 0);
    EXPECT_EQ(store.scrollOffset(), 0);
}

using Selection = ShelfStoreTest;

TEST_F(Selection, IsToggledAndPublished)
{
    fill(2);
    log.clear();
    store.toggleSelection(store.items()[0]);
    EXPECT_EQ(store.selectedItems().size(), 1);
    EXPECT_EQ(store.selectedItems()[0].title(), QStringLiteral("b"));
    store.toggleSelection(store.items()[0]);
    EXPECT_EQ(store.selectedItems().size(), 2);
    EXPECT_EQ(store.selectedItems()[0].title(), QStringLiteral("a")) << "in the shelf's order";
    EXPECT_EQ(log.size(), 2);
}

TEST_F(Selection, OfEverythingIsEmptiedAndFilled)
{
    fill(3);
    store.toggleSelectAll();
    EXPECT_TRUE(store.selection().isEmpty());
    store.toggleSelection(store.items()[1]);
    store.toggleSelectAll();
    EXPECT_EQ(store.selection().size(), 3);
}

TEST_F(Selection, CountsAsEverythingByItsNumber)
{
    fill(2);
    store.toggleSelection(store.items()[0]);
    store.toggleSelection(text("a stranger"));
    store.toggleSelectAll();
    EXPECT_TRUE(store.selection().isEmpty());
}

TEST_F(Selection, OnAnEmptyShelfStaysEmptyAndPublishes)
{
    store.toggleSelectAll();
    EXPECT_TRUE(store.selection().isEmpty());
    EXPECT_EQ(log, QStringList{QStringLiteral("items ")});
}

using ToggleManually = ShelfStoreTest;

TEST_F(ToggleManually, OpensAndClosesAnEmptyShelf)
{
    store.toggleManually();
    store.toggleManually();
    EXPECT_EQ(log, (QStringList{QStringLiteral("state 0 1"), QStringLiteral("state 1 0")}));
}

TEST_F(ToggleManually, ClosesAndOpensAShelfWithItems)
{
    fill(1);
    log.clear();
    store.toggleManually();
    store.toggleManually();
    EXPECT_EQ(log, (QStringList{QStringLiteral("state 2 0"), QStringLiteral("state 0 2")}));
}

TEST_F(ToggleManually, FromExpandedWithItemsGivesOccupied)
{
    fill(1);
    store.toggleManually();
    store.dragBegan();
    ASSERT_EQ(store.state(), ShelfState::Expanded);
    store.toggleManually();
    EXPECT_EQ(store.state(), ShelfState::Occupied);
}

using ToggleViewAll = ShelfStoreTest;

TEST_F(ToggleViewAll, OpensAndClosesTheBarAndPublishes)
{
    fill(2);
    log.clear();
    store.toggleViewAll();
    EXPECT_TRUE(store.isViewAllOpen());
    store.toggleViewAll();
    EXPECT_FALSE(store.isViewAllOpen());
    EXPECT_EQ(log.size(), 2);
}

TEST_F(ToggleViewAll, IsNotOfferedForASingleItem)
{
    fill(1);
    log.clear();
    store.toggleViewAll();
    EXPECT_FALSE(store.isViewAllOpen());
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(ToggleViewAll, ClosesAnOpenBarWhateverTheNumberOfItems)
{
    fill(2);
    store.toggleViewAll();
    store.discard(0, false);
    ASSERT_TRUE(store.isViewAllOpen());
    log.clear();
    store.toggleViewAll();
    EXPECT_FALSE(store.isViewAllOpen());
    EXPECT_EQ(log.size(), 1);
}

using CloseViewAll = ShelfStoreTest;

TEST_F(CloseViewAll, ClosesAnOpenBarAndPublishesOnce)
{
    fill(2);
    store.toggleViewAll();
    log.clear();
    store.closeViewAll();
    EXPECT_FALSE(store.isViewAllOpen());
    EXPECT_EQ(log, QStringList{QStringLiteral("items ab")});
    store.closeViewAll();
    EXPECT_EQ(log.size(), 1) << "one that is closed tells nobody";
}

using DragBegan = ShelfStoreTest;

TEST_F(DragBegan, OpensAClosedShelfAndTellsItsStateAlone)
{
    store.dragBegan();
    EXPECT_TRUE(store.isDragInFlight());
    EXPECT_EQ(log, QStringList{QStringLiteral("state 0 1")});
}

TEST_F(DragBegan, OpensAClosedShelfWithItemsForADropToo)
{
    fill(1);
    store.toggleManually();
    log.clear();
    store.dragBegan();
    EXPECT_EQ(log, QStringList{QStringLiteral("state 0 1")});
}

TEST_F(DragBegan, PublishesTheItemsOfAnOpenShelf)
{
    fill(1);
    log.clear();
    store.dragBegan();
    EXPECT_TRUE(store.isDragInFlight());
    EXPECT_EQ(store.state(), ShelfState::Occupied);
    EXPECT_EQ(log, QStringList{QStringLiteral("items a")});
    store.clearAll();
    store.toggleManually();
    log.clear();
    store.dragBegan();
    EXPECT_EQ(log, QStringList{QStringLiteral("items ")}) << "an empty one, open for a drop";
}

using OwnDragChanged = ShelfStoreTest;

TEST_F(OwnDragChanged, PublishesWhatIsNew)
{
    fill(1);
    log.clear();
    store.ownDragChanged(false);
    EXPECT_EQ(log, QStringList());
    store.ownDragChanged(true);
    EXPECT_TRUE(store.isOwnDrag());
    store.ownDragChanged(true);
    EXPECT_EQ(log.size(), 1);
    store.ownDragChanged(false);
    EXPECT_FALSE(store.isOwnDrag());
    EXPECT_EQ(log, QStringList(2, QStringLiteral("items a")));
}

using DragEnded = ShelfStoreTest;

TEST_F(DragEnded, ClosesAnEmptyShelfThatIsOpenAlsoByHand)
{
    store.toggleManually();
    store.dragBegan();
    log.clear();
    store.dragEnded();
    EXPECT_FALSE(store.isDragInFlight());
    EXPECT_EQ(log, QStringList{QStringLiteral("state 1 0")});
}

TEST_F(DragEnded, OnExpandedWithItemsGivesOccupied)
{
    fill(1);
    store.toggleManually();
    store.dragBegan();
    log.clear();
    store.dragEnded();
    EXPECT_EQ(log, QStringList{QStringLiteral("state 1 2")});
}

TEST_F(DragEnded, OtherwisePublishesTheItems)
{
    fill(1);
    store.dragBegan();
    log.clear();
    store.dragEnded();
    EXPECT_FALSE(store.isDragInFlight());
    EXPECT_EQ(log, QStringList{QStringLiteral("items a")});
    store.clearAll();
    log.clear();
    store.dragEnded();
    EXPECT_EQ(log, QStringList{QStringLiteral("items ")});
}

using Observers = ShelfStoreTest;

TEST_F(Observers, AreCalledInTheirOrder)
{
    QStringList order;
    store.observeItems([&](const QList<DropItem> &) { order << QStringLiteral("first"); });
    store.observeItems([&](const QList<DropItem> &) { order << QStringLiteral("second"); });
    store.setItems({});
    EXPECT_EQ(order, (QStringList{QStringLiteral("first"), QStringLiteral("second")}));
}

TEST_F(Observers, HearOfAListThatIsWritten)
{
    store.setItems({text("a")});
    EXPECT_EQ(log, QStringList{QStringLiteral("items a")});
}

TEST_F(Observers, MayEmptyTheShelfWhileAnItemIsRemoved)
{
    fill(3);
    bool isFirst = true;
    store.observeItems([&](const QList<DropItem> &) {
        if (std::exchange(isFirst, false))
            store.clearAll();
    });
    store.ejected(store.selection().values(), false);
    EXPECT_TRUE(store.items().isEmpty());
    EXPECT_EQ(store.state(), ShelfState::Idle);
}

TEST_F(ShelfStoreTest, FindsItemsByIdAfterAnyOrderOfRemovals)
{
    fill(26);
    QString expected = titles();
    quint32 random = 7;
    while (expected.size() > 1) {
        random = random * 1664525 + 1013904223;
        const int index = static_cast<int>((random >> 16) % static_cast<quint32>(expected.size()));
        store.ejected({store.items()[index].id()}, false);
        expected.remove(index, 1);
        ASSERT_EQ(titles(), expected);
    }
}

TEST_F(ShelfStoreTest, FindsTheFirstOfTwoItemsWithOneId)
{
    const DropItem twin = text("t");
    store.setItems({text("a"), twin, text("b"), twin});
    store.ejected({twin.id()}, false);
    EXPECT_EQ(titles(), QStringLiteral("abt"));
    store.ejected({twin.id()}, false);
    EXPECT_EQ(titles(), QStringLiteral("ab"));
}

} // namespace
} // namespace corvane
