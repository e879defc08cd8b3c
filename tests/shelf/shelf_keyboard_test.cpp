// The shelf by keyboard alone.

#include "fakes/shelf_desk.h"
#include "shelf/accessible_items.h"
#include "shelf/shelf_view.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

class ShelfKeyboardTest : public testing::Test {
protected:
    ShelfKeyboardTest()
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
        view.onClose = [this] { log << QStringLiteral("close"); };
    }

    /// `total` texts, of which `inView` are in view from `first` on; that one is focused.
    void show(int total, int inView, int first = 0)
    {
        snapshot = {};
        snapshot.state = total > 0 ? ShelfState::Occupied : ShelfState::Expanded;
        snapshot.inViewCount = inView;
        snapshot.totalCount = total;
        snapshot.focusedIndex = first;
        for (int i = first; i < std::min(total, first + inView); ++i)
            snapshot.visible.emplace_back(i, ShelfDesk::textItem(QStringLiteral("item %1").arg(i)));
        snapshot.canScrollForward = first + inView < total;
        snapshot.canScrollBack = first > 0;
        ShelfDesk::fit(desk.panel, view, snapshot);
        view.apply(snapshot);
        desk.clock.advance(2);
        log.clear();
    }
    bool key(TypedKey code, Modifiers modifiers = {}, bool isRepeat = false)
    {
        return view.keyDown({code, modifiers, isRepeat});
    }
    bool tab() { return key(TypedKey::Tab); }
    bool backTab() { return key(TypedKey::Tab, Modifier::Shift); }
    /// What the keyboard is on, as a screen reader is told.
    static QString focusedIn(const AccessibleNode &node)
    {
        QString found = node.isFocused ? node.name : QString();
        for (const AccessibleNode &child : node.children)
            found += focusedIn(child);
        return found;
    }
    QString focused() const { return focusedIn(view.accessible()); }
    QStringList tabs(int count)
    {
        QStringList names;
        for (int i = 0; i < count; ++i) {
            tab();
            names << focused();
        }
        return names;
    }

    ShelfDesk desk;
    QStringList log;
    ShelfSnapshot snapshot;
    ShelfView view{desk.context()};
};

} // namespace

TEST_F(ShelfKeyboardTest, TabGoesThroughItemsTheirButtonsAndArrowsAndAround)
{
    show(3, 1, 1);
    EXPECT_EQ(focused(), QStringLiteral("item 1"));
    EXPECT_EQ(
        tabs(7).join(QStringLiteral(", ")),
        QStringLiteral("Preview, Copy, Remove, All items, Earlier items, Later items, item 1"));
    backTab();
    EXPECT_EQ(focused(), QStringLiteral("Later items"));
    backTab();
    EXPECT_EQ(focused(), QStringLiteral("Earlier items"));
}

TEST_F(ShelfKeyboardTest, TabFocusesOneItemInViewAfterTheOther)
{
    show(5, 3);
    EXPECT_EQ(tabs(5).join(QStringLiteral(", ")),
              QStringLiteral("item 1, item 2, All items, Later items, item 0"))
        << "arrows that lead nowhere are left out";
    EXPECT_EQ(log,
              (QStringList{QStringLiteral("focus 1"), QStringLiteral("focus 2"),
                           QStringLiteral("focus 0")}));
}

TEST_F(ShelfKeyboardTest, AFocusedItemThatIsOutOfViewLeavesTabWithTheFirst)
{
    show(5, 3);
    snapshot.focusedIndex = 4;
    view.apply(snapshot);
    tab();
    EXPECT_EQ(log, QStringList{QStringLiteral("focus 0")});
}

TEST_F(ShelfKeyboardTest, TheControlThatTheKeyboardIsOnHasARing)
{
    show(3, 1, 1);
    EXPECT_FALSE(view.layers().showsKeyboardRing()) << "the item has one of its own";
    const QImage before = ShelfDesk::paint(view, desk.panel);
    tab();
    EXPECT_TRUE(view.layers().showsKeyboardRing());
    EXPECT_NE(ShelfDesk::paint(view, desk.panel), before);
    view.keyboardLost();
    EXPECT_FALSE(view.layers().showsKeyboardRing());
    EXPECT_EQ(ShelfDesk::paint(view, desk.panel), before);
}

TEST_F(ShelfKeyboardTest, EnterPressesTheControlThatTheKeyboardIsOn)
{
    show(3, 1, 1);
    key(TypedKey::Return);
    EXPECT_TRUE(log.isEmpty()) << "as a click on the focused item does";
    for (const TypedKey enter : {TypedKey::Return, TypedKey::KeypadEnter, TypedKey::Return,
                                 TypedKey::Return, TypedKey::Return, TypedKey::Return}) {
        tab();
        EXPECT_TRUE(key(enter));
        EXPECT_TRUE(key(enter, {}, true)) << "a held key does it once";
    }
    EXPECT_EQ(log.join(QStringLiteral(", ")),
              QStringLiteral("quickLook, copy, remove 1, viewAll, scroll -1, scroll 1"));
}

TEST_F(ShelfKeyboardTest, KeysThatMeanTheItemMeanItWhereverTheKeyboardIs)
{
    show(3, 1, 1);
    tab();
    tab();
    key(TypedKey::Space);
    key(TypedKey::DeleteBackward);
    EXPECT_EQ(log, (QStringList{QStringLiteral("quickLook"), QStringLiteral("remove 1")}));
    key(TypedKey::RightArrow);
    EXPECT_FALSE(view.layers().showsKeyboardRing()) << "the arrow went to an item";
}

TEST_F(ShelfKeyboardTest, AControlThatGoesOrIsLeftByAPressGivesTheKeyboardToTheItem)
{
    show(3, 1, 1);
    backTab();
    ASSERT_EQ(focused(), QStringLiteral("Later items"));
    snapshot.canScrollForward = false;
    view.apply(snapshot);
    EXPECT_EQ(focused(), QStringLiteral("item 1"));
    tab();
    view.mouseDown({view.look().layout.cells[0].root.center()});
    EXPECT_EQ(focused(), QStringLiteral("item 1"));
}

TEST_F(ShelfKeyboardTest, OnlyWhatTabGoesToCanBeFocused)
{
    show(5, 3);
    for (const AccessibleNode &node : view.accessible().children) {
        const bool isControl = node.role == AccessibleNode::Role::Button;
        EXPECT_EQ(node.isFocusable, isControl && node.isEnabled) << node.name.toStdString();
    }
}

TEST_F(ShelfKeyboardTest, OfTabWithOtherModifiersNothingIsTaken)
{
    show(2, 1);
    EXPECT_FALSE(key(TypedKey::Tab, Modifier::Command));
    EXPECT_FALSE(key(TypedKey::Tab, Modifier::Option));
    EXPECT_TRUE(tab());
}

TEST_F(ShelfKeyboardTest, PastesWithAndWithoutItemsButNotByTheLetterAlone)
{
    show(0, 1);
    EXPECT_TRUE(view.takesPaste());
    EXPECT_FALSE(key(TypedKey::V));
    EXPECT_TRUE(key(TypedKey::V, Modifier::Command));
    EXPECT_TRUE(key(TypedKey::V, Modifier::Command, true)) << "a held key pastes once";
    EXPECT_EQ(desk.panel.pastes, 1);
    show(2, 1);
    EXPECT_TRUE(key(TypedKey::V, Modifier::Command));
    EXPECT_EQ(desk.panel.pastes, 2);
    view.apply({});
    EXPECT_FALSE(view.takesPaste());
    EXPECT_FALSE(key(TypedKey::V, Modifier::Command)) << "it is closing";
    EXPECT_EQ(desk.panel.pastes, 2);
}

TEST_F(ShelfKeyboardTest, EscapeClosesTheEmptyShelfUnlessADragWantsIt)
{
    show(0, 1);
    EXPECT_FALSE(tab()) << "there is nothing to go to";
    EXPECT_FALSE(key(TypedKey::Return));
    EXPECT_TRUE(key(TypedKey::Escape, {}, true));
    EXPECT_TRUE(log.isEmpty());
    EXPECT_TRUE(key(TypedKey::Escape));
    EXPECT_EQ(log, QStringList{QStringLiteral("close")});
    snapshot.receptive = true;
    view.apply(snapshot);
    EXPECT_FALSE(key(TypedKey::Escape));
    EXPECT_EQ(log.size(), 1);
}

TEST_F(ShelfKeyboardTest, WhatAScreenReaderFocusesIsNotPressed)
{
    show(3, 1, 1);
    view.perform(QStringLiteral("remove"), accessible_items::focus());
    EXPECT_EQ(focused(), QStringLiteral("Remove"));
    EXPECT_TRUE(desk.panel.isKey);
    EXPECT_TRUE(log.isEmpty());
    view.perform(accessible_items::keyOf(snapshot.visible.front().second.id()),
                 accessible_items::focus());
    EXPECT_EQ(focused(), QStringLiteral("item 1"));
}

} // namespace corvane::test
