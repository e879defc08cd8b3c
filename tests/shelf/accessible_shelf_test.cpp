#include "fakes/shelf_desk.h"
#include "shelf/accessible_items.h"
#include "shelf/accessible_shelf.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using Role = AccessibleNode::Role;

const QString wayToFillIt
    = QStringLiteral("The shelf is empty. Ctrl+V puts what is on the clipboard here. ");

class AccessibleShelfTest : public testing::Test {
protected:
    AccessibleShelfTest()
    {
        view.onFocus = [this](int index) {
            log << QStringLiteral("focus %1").arg(index);
            snapshot.focusedIndex = index;
            view.apply(snapshot);
        };
        view.onRemove = [this](int index) { log << QStringLiteral("remove %1").arg(index); };
        view.onCopy = [this] { log << QStringLiteral("copy"); };
        view.onQuickLook = [this] { log << QStringLiteral("quickLook"); };
        view.onViewAll = [this] { log << QStringLiteral("viewAll"); };
        view.onScroll = [this](int steps) { log << QStringLiteral("scroll %1").arg(steps); };
        view.onEjected = [this](const QUuid &id, bool keep) {
            log << (keep ? QStringLiteral("keep ") : QStringLiteral("eject ")) + id.toString();
        };
    }

    /// `total` texts, of which `inView` are in view from `first` on, and the second one focused.
    void show(int total, int inView, int first = 0)
    {
        snapshot = {};
        snapshot.state = ShelfState::Occupied;
        snapshot.inViewCount = inView;
        snapshot.totalCount = total;
        snapshot.focusedIndex = std::min(first + 1, total - 1);
        for (int i = first; i < std::min(total, first + inView); ++i)
            snapshot.visible.emplace_back(i, ShelfDesk::textItem(QStringLiteral("item %1").arg(i)));
        snapshot.canScrollForward = first + inView < total;
        snapshot.canScrollBack = first > 0;
        apply();
    }
    void apply()
    {
        ShelfDesk::fit(desk.panel, view, snapshot);
        view.apply(snapshot);
        desk.clock.advance(2);
        log.clear();
    }
    /// As the store does it: the focus comes to the item that follows, or to the last one.
    void remove(int index)
    {
        snapshot.lastThatLeft = snapshot.visible.at(static_cast<std::size_t>(index)).second.title();
        snapshot.visible.erase(snapshot.visible.begin() + index);
        --snapshot.totalCount;
        for (int i = index; i < snapshot.totalCount; ++i)
            snapshot.visible[static_cast<std::size_t>(i)].first = i;
        snapshot.focusedIndex = std::min(index, snapshot.totalCount - 1);
        apply();
    }
    AccessibleNode tree() const { return view.accessible(); }
    const AccessibleNode *node(const AccessibleNode &in, const QString &name) const
    {
        for (const AccessibleNode &child : in.children) {
            if (child.name == name)
                return &child;
            if (const AccessibleNode *found = node(child, name))
                return found;
        }
        return nullptr;
    }
    AccessibleNode named(const QString &name) const
    {
        const AccessibleNode all = tree();
        const AccessibleNode *found = node(all, name);
        return found ? *found : AccessibleNode{};
    }
    QStringList names() const
    {
        QStringList found;
        for (const AccessibleNode &child : tree().children)
            found << child.name;
        return found;
    }
    void perform(const QString &name, const QString &action = AccessibleNode::press())
    {
        view.perform(named(name).key, action);
    }
    const AccessibleNode &list(const AccessibleNode &all) const { return all.children.front(); }

    ShelfDesk desk;
    QStringList log;
    ShelfSnapshot snapshot;
    ShelfView view{desk.context()};
};

} // namespace

TEST_F(AccessibleShelfTest, AClosedShelfHasNothingInIt)
{
    EXPECT_TRUE(tree().children.empty());
    EXPECT_EQ(tree().name, QStringLiteral("Shelf"));
    EXPECT_EQ(tree().role, Role::Window);
}

TEST_F(AccessibleShelfTest, ItemsHaveTheirKindWhatIsShownAndTheirPlace)
{
    show(5, 3, 1);
    const AccessibleNode all = tree();
    ASSERT_EQ(list(all).role, Role::List);
    ASSERT_EQ(list(all).children.size(), 3U);
    const AccessibleNode &first = list(all).children.front();
    EXPECT_EQ(first.role, Role::ListItem);
    EXPECT_EQ(first.name, QStringLiteral("item 1"));
    EXPECT_EQ(first.description, QStringLiteral("Text, 5 characters, 2 of 5"));
    EXPECT_FALSE(first.isFocused);
    EXPECT_FALSE(first.isSelected);
    const AccessibleNode &second = list(all).children.at(1);
    EXPECT_TRUE(second.isFocused);
    EXPECT_TRUE(second.isSelected);
    EXPECT_EQ(second.description, QStringLiteral("Text, 5 characters, 3 of 5"));
    EXPECT_EQ(list(all).name, QStringLiteral("Items on the shelf: 5"))
        << "screen readers count the three";
}

TEST_F(AccessibleShelfTest, TheSignBetweenWhatIsKnownOfAnItemIsNotHeard)
{
    const DropItem item(DropItem::Text{QStringLiteral("it")}, QStringLiteral("it"),
                        QStringLiteral("PNG · 278 bytes"), false);
    EXPECT_EQ(accessible_items::describe(item, {0, 1}).description,
              QStringLiteral("Text, PNG, 278 bytes, 1 of 1"));
}

TEST_F(AccessibleShelfTest, EveryKindOfItemIsCalledByItsName)
{
    const auto kindOf = [](const DropItem::Payload &payload) {
        const DropItem item(payload, QStringLiteral("it"), {}, false);
        return accessible_items::describe(item, {0, 1}).description;
    };
    const QUrl file = QUrl::fromLocalFile(QStringLiteral("/nowhere/it"));
    EXPECT_EQ(kindOf(DropItem::File{file, true}), QStringLiteral("Folder, 1 of 1"));
    EXPECT_EQ(kindOf(DropItem::File{file}), QStringLiteral("File, 1 of 1"));
    EXPECT_EQ(kindOf(DropItem::ImageBytes{"pixels", UTType::png()}),
              QStringLiteral("Picture, 1 of 1"));
    EXPECT_EQ(kindOf(DropItem::Text{QStringLiteral("it")}), QStringLiteral("Text, 1 of 1"));
    EXPECT_EQ(kindOf(DropItem::Link{QUrl(QStringLiteral("https://it.example"))}),
              QStringLiteral("Link, 1 of 1"));
}

TEST_F(AccessibleShelfTest, ANodeIsWhereItIsDrawn)
{
    show(1, 1);
    desk.panel.setFrame({100, 400, 600, 200});
    view.panelWasResized();
    const ShelfLayout &layout = view.look().layout;
    const QPointF body(300 - layout.size.width() / 2, 200 - layout.size.height());
    EXPECT_EQ(named(QStringLiteral("item 0")).frame, layout.cells.front().root.translated(body));
    EXPECT_EQ(named(QStringLiteral("Copy")).frame, layout.actionButtons->at(1).translated(body));
}

TEST_F(AccessibleShelfTest, AFolderIsNotCalledSoTwice)
{
    show(1, 1);
    snapshot.visible.front().second = ShelfDesk::folderItem(QStringLiteral("Papers"));
    apply();
    EXPECT_EQ(named(QStringLiteral("Papers")).description, QStringLiteral("Folder, 1 of 1"));
    snapshot.visible.front().second = ShelfDesk::fileItem(QStringLiteral("a.txt"));
    apply();
    EXPECT_EQ(named(QStringLiteral("a.txt")).description, QStringLiteral("File, TXT, 1 of 1"));
}

TEST_F(AccessibleShelfTest, AnItemThatIsBeingMadeSaysSo)
{
    show(1, 1);
    snapshot.visible.front().second
        = DropItem::beingMade({QUrl::fromLocalFile(QStringLiteral("/nowhere/a.png"))},
                              QStringLiteral("a"), QStringLiteral("Converting"), std::nullopt);
    apply();
    const AccessibleNode made = named(QStringLiteral("a"));
    EXPECT_TRUE(made.isBusy);
    EXPECT_EQ(made.description, QStringLiteral("Picture, Converting, 1 of 1, being made ready"));
}

TEST_F(AccessibleShelfTest, ATitleCannotDisguiseItself)
{
    show(1, 1);
    snapshot.visible.front().second = ShelfDesk::fileItem(QStringLiteral("photo\u202egpj.exe"));
    apply();
    EXPECT_FALSE(tree().children.front().children.front().name.contains(QChar(0x202e)));
}

TEST_F(AccessibleShelfTest, ASingleItemHasButtons)
{
    show(1, 1);
    EXPECT_EQ(names(),
              (QStringList{QStringLiteral("Items on the shelf: 1"), QStringLiteral("Preview"),
                           QStringLiteral("Copy"), QStringLiteral("Remove")}));
    EXPECT_EQ(named(QStringLiteral("Remove")).role, Role::Button);
    perform(QStringLiteral("Preview"));
    perform(QStringLiteral("Copy"));
    perform(QStringLiteral("Remove"));
    EXPECT_EQ(log.join(QLatin1Char(' ')), QStringLiteral("quickLook copy remove 0"));
    EXPECT_TRUE(desk.panel.isKey) << "as after a click";
}

TEST_F(AccessibleShelfTest, ArrowsCanBePressedWhereThereIsMore)
{
    show(5, 3);
    EXPECT_FALSE(named(QStringLiteral("Earlier items")).isEnabled);
    EXPECT_TRUE(named(QStringLiteral("Later items")).isEnabled);
    perform(QStringLiteral("Later items"));
    perform(QStringLiteral("Earlier items"));
    perform(QStringLiteral("All items"));
    EXPECT_EQ(log.join(QLatin1Char(' ')), QStringLiteral("scroll 1 scroll -1 viewAll"));
}

TEST_F(AccessibleShelfTest, PressingAnItemFocusesItAndDragsNothing)
{
    show(3, 3);
    perform(QStringLiteral("item 2"));
    EXPECT_EQ(log, QStringList{QStringLiteral("focus 2")});
    view.mouseDragged({{50, 20}});
    EXPECT_FALSE(desk.panel.dragOut);
}

TEST_F(AccessibleShelfTest, AnItemIsPreviewedCopiedAndRemovedWhetherOrNotItHasTheFocus)
{
    show(3, 3);
    perform(QStringLiteral("item 2"), accessible_shelf::preview());
    EXPECT_EQ(log.join(QLatin1Char(' ')), QStringLiteral("focus 2 quickLook"));
    log.clear();
    perform(QStringLiteral("item 0"), accessible_shelf::copy());
    EXPECT_EQ(log.join(QLatin1Char(' ')), QStringLiteral("focus 0 copy"));
    log.clear();
    perform(QStringLiteral("item 1"), accessible_shelf::remove());
    EXPECT_EQ(log.join(QLatin1Char(' ')), QStringLiteral("remove 1"));
}

TEST_F(AccessibleShelfTest, AnItemMovesOutByBeingCopiedAndTakenOff)
{
    show(3, 3);
    const QUuid id = snapshot.visible.at(2).second.id();
    perform(QStringLiteral("item 2"), accessible_shelf::moveOut());
    EXPECT_EQ(log,
              (QStringList{QStringLiteral("focus 2"), QStringLiteral("copy"),
                           QStringLiteral("eject ") + id.toString()}));
}

TEST_F(AccessibleShelfTest, AllActionsOfAnItemHaveWordsForPeople)
{
    show(1, 1);
    const auto actions = named(QStringLiteral("item 0")).actions;
    ASSERT_EQ(actions.size(), 5U);
    EXPECT_EQ(actions.front().name, AccessibleNode::press());
    for (const AccessibleNode::Action &action : actions)
        EXPECT_FALSE(action.text.isEmpty());
}

TEST_F(AccessibleShelfTest, WhatIsGoneOrUnknownDoesNothing)
{
    show(3, 3);
    const QString gone = named(QStringLiteral("item 2")).key;
    snapshot.visible.pop_back();
    snapshot.totalCount = 2;
    apply();
    view.perform(gone, AccessibleNode::press());
    view.perform(gone, accessible_shelf::moveOut());
    view.perform(QStringLiteral("copy"), AccessibleNode::press());
    view.perform(named(QStringLiteral("item 0")).key, QStringLiteral("Fly"));
    snapshot.state = ShelfState::Idle;
    apply();
    view.perform(accessible_items::keyOf(snapshot.visible.front().second.id()),
                 AccessibleNode::press());
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(AccessibleShelfTest, ADropTargetSaysWhetherLettingGoIsEnough)
{
    snapshot.state = ShelfState::Expanded;
    apply();
    EXPECT_EQ(names(), QStringList{wayToFillIt + QStringLiteral("Drop to hold")});
    FakePasteboard pasteboard;
    pasteboard.offered = QStringList{QStringLiteral("text/plain")};
    pasteboard.text = QStringLiteral("hello");
    view.draggingEntered({pasteboard, {}, false});
    EXPECT_EQ(names(), QStringList{wayToFillIt + QStringLiteral("Release to hold")});
}

TEST_F(AccessibleShelfTest, TheEmptyShelfSaysSoWhereTheKeyboardIsAndHowToFillIt)
{
    snapshot.state = ShelfState::Expanded;
    apply();
    const AccessibleNode target = named(wayToFillIt + QStringLiteral("Drop to hold"));
    EXPECT_TRUE(target.isFocused);
    EXPECT_TRUE(target.isFocusable);
    show(1, 1);
    snapshot.receptive = true;
    apply();
    const AccessibleNode other = named(QStringLiteral("Drop to hold"));
    EXPECT_EQ(other.name, QStringLiteral("Drop to hold"));
    EXPECT_FALSE(other.isFocused) << "the item is";
    EXPECT_FALSE(other.isFocusable);
}

TEST_F(AccessibleShelfTest, ThePanelHearsOfEveryChange)
{
    show(3, 3);
    const int before = desk.panel.accessibleChanges;
    view.onFocus(2);
    EXPECT_GT(desk.panel.accessibleChanges, before);
}

TEST_F(AccessibleShelfTest, WhatCameAndWhatLeftIsAnnounced)
{
    show(1, 3);
    ASSERT_EQ(desk.panel.announced, QStringList{QStringLiteral("item 0 was added")});
    show(3, 3);
    EXPECT_EQ(desk.panel.announced.last(), QStringLiteral("2 items were added"));
    show(6, 3);
    show(3, 3);
    EXPECT_EQ(desk.panel.announced.last(), QStringLiteral("Removed; 3 items are left"));
    show(1, 3);
    EXPECT_EQ(desk.panel.announced.last(), QStringLiteral("Removed; 1 item is left"));
    show(3, 3);
    snapshot = {};
    apply();
    EXPECT_EQ(desk.panel.announced.last(), QStringLiteral("The shelf is empty"));
    EXPECT_EQ(desk.panel.announced.size(), 7);
}

TEST_F(AccessibleShelfTest, TheOneThatLeftIsNamed)
{
    show(3, 3);
    remove(1);
    EXPECT_EQ(desk.panel.announced.last(), QStringLiteral("item 1 was removed; 2 items are left"));
    remove(1);
    EXPECT_EQ(desk.panel.announced.last(), QStringLiteral("item 2 was removed; 1 item is left"));
    snapshot.lastThatLeft = QStringLiteral("item 0");
    snapshot.visible.clear();
    snapshot.totalCount = 0;
    snapshot.focusedIndex = 0;
    snapshot.state = ShelfState::Idle;
    apply();
    EXPECT_EQ(desk.panel.announced.last(),
              QStringLiteral("item 0 was removed; the shelf is empty"));
}

TEST_F(AccessibleShelfTest, OneThatLeftUnseenIsNamedToo)
{
    // The first of five leaves, which is not in view, and the view goes to where it was.
    show(5, 2, 2);
    const auto third = snapshot.visible.front();
    snapshot.lastThatLeft = QStringLiteral("first");
    snapshot.totalCount = 4;
    snapshot.focusedIndex = 0;
    snapshot.visible = {{0, ShelfDesk::textItem(QStringLiteral("second"))}, {1, third.second}};
    apply();
    EXPECT_EQ(desk.panel.announced.last(), QStringLiteral("first was removed; 4 items are left"));
}

TEST_F(AccessibleShelfTest, OfSeveralThatLeftNoneIsNamed)
{
    show(5, 2);
    snapshot.lastThatLeft = QStringLiteral("one of them");
    snapshot.totalCount = 3;
    apply();
    EXPECT_EQ(desk.panel.announced.last(), QStringLiteral("Removed; 3 items are left"));
}

TEST_F(AccessibleShelfTest, ATitleOfOneThatLeftCannotDisguiseItself)
{
    show(2, 2);
    snapshot.visible.back().second = ShelfDesk::fileItem(QStringLiteral("photo\u202egpj.exe"));
    apply();
    remove(1);
    EXPECT_TRUE(desk.panel.announced.last().startsWith(QStringLiteral("photo")));
    EXPECT_FALSE(desk.panel.announced.last().contains(QChar(0x202e)));
}

TEST_F(AccessibleShelfTest, ScrollingAndFocusingAnnounceNothing)
{
    show(5, 3);
    desk.panel.announced.clear();
    show(5, 3, 2);
    view.onFocus(3);
    EXPECT_TRUE(desk.panel.announced.isEmpty());
}

TEST_F(AccessibleShelfTest, WhatAnArrowBringsIntoViewIsSaidAsTheKeyboardStaysOnTheArrow)
{
    show(5, 3);
    desk.panel.announced.clear();
    view.onScroll = [this](int steps) {
        const int first = snapshot.visible.front().first + steps;
        if (first < 0)
            return;
        snapshot.visible.erase(snapshot.visible.begin());
        snapshot.visible.emplace_back(first + 2, ShelfDesk::textItem(QStringLiteral("came")));
        snapshot.canScrollBack = true;
        view.apply(snapshot);
    };
    perform(QStringLiteral("Earlier items"));
    EXPECT_EQ(desk.panel.announced, QStringList()) << "it leads nowhere";
    perform(QStringLiteral("Later items"));
    EXPECT_EQ(desk.panel.announced,
              QStringList{QStringLiteral("came, Text, 5 characters, 4 of 5")});
}

TEST_F(AccessibleShelfTest, AMessageIsAnnouncedWhenItIsShown)
{
    show(1, 1);
    desk.panel.announced.clear();
    view.flash(QStringLiteral("Text copied"));
    EXPECT_EQ(desk.panel.announced, QStringList{QStringLiteral("Text copied")});
    snapshot.receptive = true;
    apply();
    view.flash(QStringLiteral("Link copied"));
    EXPECT_EQ(desk.panel.announced.size(), 1) << "this one is not shown";
}

} // namespace corvane::test
