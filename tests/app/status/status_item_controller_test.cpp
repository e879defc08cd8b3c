#include "app/status/status_icon.h"
#include "app/status/status_item_controller.h"
#include "fakes/fake_status_item.h"
#include "fakes/fake_updater.h"
#include "fakes/shelf_model.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

class StatusItemControllerTest : public testing::Test, protected ShelfModel {
protected:
    StatusItemControllerTest() { make(); }

    void make(Updater *updater = nullptr)
    {
        controller.reset();
        controller.emplace(
            StatusItemController::Context{panel, store, settings, desk.clock,
                                          [this] { log << QStringLiteral("terminate"); }, updater});
        controller->onShowShelf = [this] { log << QStringLiteral("shelf"); };
        controller->onPreferences = [this] { log << QStringLiteral("preferences"); };
        controller->onWelcome = [this] { log << QStringLiteral("welcome"); };
    }
    void hold(int count)
    {
        QList<DropItem> items;
        for (int i = 0; i < count; ++i)
            items << ShelfDesk::textItem(QString::number(i));
        store.setItems(items);
        desk.clock.runPending();
    }
    bool showsIcon(int cards) const
    {
        return panel.icon(22, Qt::white) == status_icon::image(cards, 22, Qt::white);
    }

    FakeStatusItem panel;
    std::optional<StatusItemController> controller;
    QStringList log;
};

} // namespace

TEST_F(StatusItemControllerTest, BeginsWithTheEmptyIconAndThePlainToolTip)
{
    EXPECT_TRUE(showsIcon(0));
    EXPECT_EQ(panel.toolTip, QStringLiteral("Corvane"));
}

TEST_F(StatusItemControllerTest, TheIconShowsTheNumberOfItemsUpToThree)
{
    for (const auto &[count, cards] : {std::pair{1, 1}, {2, 2}, {3, 3}, {5, 3}, {0, 0}}) {
        hold(count);
        EXPECT_TRUE(showsIcon(cards)) << count;
    }
}

TEST_F(StatusItemControllerTest, TheToolTipFollowsTheItems)
{
    hold(1);
    EXPECT_EQ(panel.toolTip, QStringLiteral("Corvane — 1 item"));
    hold(5);
    EXPECT_EQ(panel.toolTip, QStringLiteral("Corvane — 5 items"));
    hold(0);
    EXPECT_EQ(panel.toolTip, QStringLiteral("Corvane"));
}

TEST_F(StatusItemControllerTest, ItemsThatOnlyChangeLeaveThePanelAlone)
{
    hold(2);
    panel.iconChanges = 0;
    panel.menuChanges = 0;
    publishItems();
    EXPECT_EQ(panel.iconChanges, 0);
    EXPECT_EQ(panel.menuChanges, 0);
    hold(3);
    EXPECT_EQ(panel.iconChanges, 1);
    EXPECT_EQ(panel.menuChanges, 1);
}

TEST_F(StatusItemControllerTest, OfAllThatHappensInOneTurnThePanelHearsTheOutcome)
{
    QList<DropItem> items;
    for (int i = 0; i < 1'000; ++i)
        items << ShelfDesk::textItem(QString::number(i));
    store.accept(items);
    desk.clock.runPending();
    store.toggleSelection(items[0]);
    store.toggleSelection(items[1]);
    panel.iconChanges = 0;
    panel.toolTipChanges = 0;
    panel.menuChanges = 0;
    store.removeSelected();
    EXPECT_EQ(panel.toolTipChanges, 0);
    desk.clock.runPending();
    EXPECT_EQ(panel.iconChanges, 1);
    EXPECT_EQ(panel.toolTipChanges, 1);
    EXPECT_EQ(panel.menuChanges, 1);
    EXPECT_TRUE(showsIcon(2));
    EXPECT_EQ(panel.toolTip, QStringLiteral("Corvane — 2 items"));
}

TEST_F(StatusItemControllerTest, WhatIsTheSameAtTheEndOfATurnTellsThePanelNothing)
{
    hold(2);
    panel.toolTipChanges = 0;
    const DropItem item = store.items()[0];
    store.discard(0, false);
    store.accept({item});
    desk.clock.runPending();
    EXPECT_EQ(panel.toolTipChanges, 0);
    hold(1);
    EXPECT_EQ(panel.toolTip, QStringLiteral("Corvane — 1 item"));
}

TEST_F(StatusItemControllerTest, AMenuThatOpensInTheSameTurnIsUpToDate)
{
    store.accept({ShelfDesk::textItem(QStringLiteral("a"))});
    panel.open();
    EXPECT_TRUE(panel.titles().contains(QStringLiteral("Clear Shelf (1 item)")));
}

TEST_F(StatusItemControllerTest, TheMenuIsBuiltAnewEachTimeItOpens)
{
    panel.open();
    EXPECT_EQ(panel.titles().size(), 6);
    hold(5);
    EXPECT_EQ(panel.titles().size(), 6) << "one that is open stays as it is";
    panel.open();
    EXPECT_TRUE(panel.titles().contains(QStringLiteral("Clear Shelf (5 items)")));
}

TEST_F(StatusItemControllerTest, AChangedShortcutShowsTheNextTimeTheMenuOpens)
{
    panel.open();
    ASSERT_TRUE(panel.row(u"Show Shelf"));
    EXPECT_EQ(panel.row(u"Show Shelf")->keyEquivalent.sequence(),
              QKeySequence(QStringLiteral("Meta+Shift+D")));
    settings.setShortcut(
        Shortcut{KeyPosition{40}, Shortcut::control | Shortcut::option, QStringLiteral("K")});
    panel.open();
    EXPECT_EQ(panel.row(u"Show Shelf")->keyEquivalent,
              (KeyEquivalent{QStringLiteral("k"), Modifier::Control | Modifier::Option}));
    settings.setShortcut(std::nullopt);
    panel.open();
    EXPECT_EQ(panel.row(u"Show Shelf")->keyEquivalent, KeyEquivalent());
}

TEST_F(StatusItemControllerTest, EachRowDoesItsWork)
{
    hold(2);
    panel.open();
    for (const QStringView title : {u"Show Shelf", u"Preferences", u"How It Works", u"Quit"})
        EXPECT_TRUE(panel.choose(title));
    EXPECT_EQ(log,
              (QStringList{QStringLiteral("shelf"), QStringLiteral("preferences"),
                           QStringLiteral("welcome"), QStringLiteral("terminate")}));
    EXPECT_TRUE(panel.choose(u"View All"));
    EXPECT_TRUE(store.isViewAllOpen());
    EXPECT_TRUE(panel.choose(u"View All"));
    EXPECT_FALSE(store.isViewAllOpen());
    EXPECT_TRUE(panel.choose(u"Clear Shelf"));
    EXPECT_TRUE(store.items().isEmpty());
}

TEST_F(StatusItemControllerTest, ViewingAllOfASingleItemInAMenuThatIsOutOfDateDoesNothing)
{
    hold(2);
    panel.open();
    hold(1);
    int publications = 0;
    store.observeItems([&publications](const QList<DropItem> &) { ++publications; });
    EXPECT_TRUE(panel.choose(u"View All"));
    EXPECT_FALSE(store.isViewAllOpen());
    EXPECT_EQ(publications, 0);
}

TEST_F(StatusItemControllerTest, AnUnsetCallbackMakesItsRowDoNothing)
{
    controller->onShowShelf = nullptr;
    controller->onPreferences = nullptr;
    controller->onWelcome = nullptr;
    panel.open();
    EXPECT_TRUE(panel.choose(u"Show Shelf"));
    EXPECT_TRUE(panel.choose(u"Preferences"));
    EXPECT_TRUE(panel.choose(u"How It Works"));
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(StatusItemControllerTest, WhatIsWrongWithUpdatesStandsInTheMenuAsLongAsItIs)
{
    FakeUpdater updater;
    make(&updater);
    panel.open();
    const qsizetype before = panel.rows.size();
    const int changes = panel.menuChanges;
    UpdateReport report{UpdateReport::Stage::Failed};
    report.failure = UpdateFailure::WentBack;
    updater.wrong.set(report);
    EXPECT_EQ(panel.menuChanges, changes + 1);
    panel.open();
    EXPECT_TRUE(panel.choose(u"Updates Go Back in Time…"));
    EXPECT_EQ(updater.noticesShown, 1);
    EXPECT_EQ(updater.checks, 0);
    updater.wrong.set(report);
    EXPECT_EQ(panel.menuChanges, changes + 1) << "the same as before";
    updater.wrong.set(std::nullopt);
    panel.open();
    EXPECT_EQ(panel.rows.size(), before);
    controller.reset();
    updater.wrong.set(report);
}

TEST_F(StatusItemControllerTest, UpdatesAreLookedForWhereTheBuildHasThem)
{
    panel.open();
    EXPECT_FALSE(panel.row(u"Check for Updates"));
    FakeUpdater updater;
    make(&updater);
    panel.open();
    EXPECT_TRUE(panel.choose(u"Check for Updates"));
    EXPECT_EQ(updater.checks, 1);
}

TEST_F(StatusItemControllerTest, OnceItIsGoneItsMenuAndItsRowsDoNothing)
{
    hold(2);
    panel.open();
    controller.reset();
    for (const MenuRow &row : panel.rows) {
        if (row.action)
            row.action();
    }
    EXPECT_TRUE(log.isEmpty());
    EXPECT_EQ(store.items().size(), 2);
    hold(5);
    EXPECT_EQ(panel.toolTip, QStringLiteral("Corvane — 2 items"));
    panel.open();
    EXPECT_TRUE(panel.rows.isEmpty());
}

} // namespace corvane::test
