#include "fakes/shelf_desk.h"
#include "shelf/bar/view_all_view.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using Role = AccessibleNode::Role;

class AccessibleBarTest : public testing::Test {
protected:
    AccessibleBarTest()
    {
        desk.panel.setFrame({100, 500, 600, 132});
        view.onToggleItem
            = [this](const DropItem &item) { log << QStringLiteral("toggle ") + item.title(); };
        view.onToggleSelectAll = [this] { log << QStringLiteral("all"); };
        view.onCopySelected = [this] { log << QStringLiteral("copy"); };
        view.onRemoveSelected = [this] { log << QStringLiteral("remove"); };
        view.onScroll = [this](int step) { log << QStringLiteral("scroll %1").arg(step); };
    }
    void show(int count, int offset = 0)
    {
        items.clear();
        for (int i = 0; i < count; ++i)
            items << ShelfDesk::textItem(QStringLiteral("item %1").arg(i));
        selection = {items.at(offset).id()};
        view.apply(items, selection, offset);
    }
    AccessibleNode tree() const { return view.accessible(); }
    AccessibleNode list() const { return tree().children.front(); }
    AccessibleNode named(const QString &name) const
    {
        for (const AccessibleNode &node : tree().children) {
            if (node.name == name)
                return node;
        }
        return {};
    }
    void press(const QString &key) { view.perform(key, AccessibleNode::press()); }

    ShelfDesk desk;
    QList<DropItem> items;
    QSet<QUuid> selection;
    QStringList log;
    ViewAllView view{{desk.panel, desk.clock, desk.motion, desk.theme, desk.keyboard,
                      desk.dragWriter, desk.savedPictures, desk.preparation}};
};

} // namespace

TEST_F(AccessibleBarTest, TilesAreListedWithTheirPlaceAndTheirTick)
{
    show(8, 2);
    ASSERT_EQ(list().role, Role::List);
    ASSERT_EQ(list().children.size(), 5U);
    EXPECT_EQ(list().name, QStringLiteral("All items: 8")) << "the five of this page are counted";
    const AccessibleNode first = list().children.front();
    EXPECT_EQ(first.role, Role::CheckBox) << "of others it is not said whether they are ticked";
    EXPECT_EQ(first.name, QStringLiteral("item 2"));
    EXPECT_EQ(first.description, QStringLiteral("Text, 5 characters, 3 of 8"));
    EXPECT_TRUE(first.isChecked);
    EXPECT_TRUE(first.isSelected);
    EXPECT_EQ(first.frame, view.layout().tiles.front().root);
    EXPECT_FALSE(list().children.at(1).isChecked);
}

TEST_F(AccessibleBarTest, PressingATileTogglesIt)
{
    show(8, 2);
    press(list().children.at(1).key);
    EXPECT_EQ(log, QStringList{QStringLiteral("toggle item 3")});
    EXPECT_TRUE(desk.panel.isKey) << "as after a click";
}

TEST_F(AccessibleBarTest, ItsControlsDoWhatAClickDoes)
{
    show(8, 0);
    const AccessibleNode all = tree();
    QStringList names;
    for (const AccessibleNode &node : all.children) {
        names << node.name;
        press(node.key);
    }
    EXPECT_EQ(names,
              (QStringList{QStringLiteral("All items: 8"), QStringLiteral("Earlier items"),
                           QStringLiteral("Later items"), QStringLiteral("Select all"),
                           QStringLiteral("Copy the selected items"),
                           QStringLiteral("Remove the selected items")}));
    EXPECT_EQ(log.join(QLatin1Char(' ')), QStringLiteral("scroll -1 scroll 1 all copy remove"));
}

TEST_F(AccessibleBarTest, SelectAllSaysHowManyAreSelected)
{
    show(2, 0);
    AccessibleNode box = named(QStringLiteral("Select all"));
    EXPECT_EQ(box.role, Role::CheckBox);
    EXPECT_EQ(box.description, QStringLiteral("1 of 2 selected"));
    EXPECT_FALSE(box.isChecked);
    selection.insert(items.at(1).id());
    view.apply(items, selection, 0);
    EXPECT_TRUE(named(QStringLiteral("Select all")).isChecked);
}

TEST_F(AccessibleBarTest, HowManyAreSelectedIsSaidOnceAfterAllOfThemWereAskedFor)
{
    show(3, 0);
    view.onToggleSelectAll = [this] {
        for (const DropItem &item : items)
            selection.insert(item.id());
        view.apply(items, selection, 0);
    };
    EXPECT_EQ(desk.panel.announced, QStringList());
    view.keyDown({TypedKey::A, Modifier::Command, false});
    EXPECT_EQ(desk.panel.announced, QStringList{QStringLiteral("3 of 3 selected")});
    view.apply(items, selection, 0);
    EXPECT_EQ(desk.panel.announced.size(), 1);
    press(named(QStringLiteral("Select all")).key);
    EXPECT_EQ(desk.panel.announced.size(), 2);
}

TEST_F(AccessibleBarTest, WhatAnArrowBringsIntoViewIsSaidAsTheKeyboardStaysOnTheArrow)
{
    show(8, 0);
    int offset = 0;
    view.onScroll = [&](int step) {
        offset = std::max(0, offset + step);
        view.apply(items, selection, offset);
    };
    press(named(QStringLiteral("Earlier items")).key);
    EXPECT_EQ(desk.panel.announced, QStringList()) << "it leads nowhere";
    press(named(QStringLiteral("Later items")).key);
    EXPECT_EQ(desk.panel.announced,
              QStringList{QStringLiteral("item 5, Text, 5 characters, 6 of 8")});
    press(named(QStringLiteral("Earlier items")).key);
    EXPECT_EQ(desk.panel.announced.last(), QStringLiteral("item 0, Text, 5 characters, 1 of 8"));
}

TEST_F(AccessibleBarTest, OfTilesThatAreTickedNothingIsSaidBesideTheirTick)
{
    show(3, 0);
    view.onToggleItem = [this](const DropItem &item) {
        selection.insert(item.id());
        view.apply(items, selection, 0);
    };
    press(list().children.at(1).key);
    EXPECT_EQ(desk.panel.announced, QStringList());
}

TEST_F(AccessibleBarTest, ABarThatWasHiddenMeanwhileSaysNothingWhenItIsShownAgain)
{
    show(3, 0);
    view.keyDown({TypedKey::A, Modifier::Command, false});
    view.wasHidden();
    view.apply(items, selection, 0);
    EXPECT_EQ(desk.panel.announced, QStringList());
}

TEST_F(AccessibleBarTest, WhatWouldDoNothingIsDisabled)
{
    show(8, 0);
    EXPECT_FALSE(named(QStringLiteral("Earlier items")).isEnabled);
    EXPECT_TRUE(named(QStringLiteral("Later items")).isEnabled);
    EXPECT_TRUE(named(QStringLiteral("Copy the selected items")).isEnabled);
    selection.clear();
    view.apply(items, selection, 3);
    EXPECT_TRUE(named(QStringLiteral("Earlier items")).isEnabled);
    EXPECT_FALSE(named(QStringLiteral("Later items")).isEnabled);
    EXPECT_FALSE(named(QStringLiteral("Remove the selected items")).isEnabled);
}

TEST_F(AccessibleBarTest, AHiddenBarHasNothingInIt)
{
    show(8, 0);
    const QString tile = list().children.front().key;
    const int before = desk.panel.accessibleChanges;
    view.wasHidden();
    EXPECT_TRUE(tree().children.empty());
    EXPECT_GT(desk.panel.accessibleChanges, before);
    press(tile);
    press(QStringLiteral("remove"));
    EXPECT_TRUE(log.isEmpty());
}

} // namespace corvane::test
