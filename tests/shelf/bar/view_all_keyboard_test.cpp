// The bar by keyboard alone.

#include "fakes/shelf_desk.h"
#include "shelf/accessible_items.h"
#include "shelf/bar/view_all_view.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

class ViewAllKeyboardTest : public testing::Test {
protected:
    /// Room for five tiles.
    ViewAllKeyboardTest()
    {
        desk.panel.setFrame({100, 500, 600, 132});
        view.onToggleItem
            = [this](const DropItem &item) { log << QStringLiteral("toggle ") + item.title(); };
        view.onToggleSelectAll = [this] { log << QStringLiteral("select all"); };
        view.onCopySelected = [this] { log << QStringLiteral("copy"); };
        view.onRemoveSelected = [this] { log << QStringLiteral("remove"); };
        view.onScroll = [this](int step) {
            log << QStringLiteral("scroll %1").arg(step);
            view.apply(items, selection, view.offset() + step);
        };
    }

    void show(int count, int offset = 0)
    {
        items.clear();
        for (int i = 0; i < count; ++i)
            items << ShelfDesk::textItem(QStringLiteral("item %1").arg(i));
        view.apply(items, selection, offset);
    }
    void apply() { view.apply(items, selection, view.offset()); }
    bool key(TypedKey code, Modifiers modifiers = {}, bool isRepeat = false)
    {
        return view.keyDown({code, modifiers, isRepeat});
    }
    void keys(std::initializer_list<TypedKey> codes)
    {
        for (const TypedKey code : codes)
            key(code);
    }
    static QString focusedIn(const AccessibleNode &node)
    {
        QString found = node.isFocused ? node.name : QString();
        for (const AccessibleNode &child : node.children)
            found += focusedIn(child);
        return found;
    }
    /// What the keyboard is on, as a screen reader is told.
    QString focused() const { return focusedIn(view.accessible()); }
    QStringList takeLog() { return std::exchange(log, {}); }

    ShelfDesk desk;
    QList<DropItem> items;
    QSet<QUuid> selection;
    QStringList log;
    ViewAllView view{{desk.panel, desk.clock, desk.motion, desk.theme, desk.keyboard,
                      desk.dragWriter, desk.savedPictures, desk.preparation}};
};

} // namespace

TEST_F(ViewAllKeyboardTest, ArrowsMoveTheFocusAndStopAtTheEnds)
{
    show(3);
    EXPECT_EQ(focused(), QStringLiteral("item 0"));
    keys({TypedKey::RightArrow, TypedKey::RightArrow, TypedKey::RightArrow});
    EXPECT_EQ(focused(), QStringLiteral("item 2"));
    key(TypedKey::LeftArrow);
    EXPECT_EQ(focused(), QStringLiteral("item 1"));
    key(TypedKey::Home);
    EXPECT_EQ(focused(), QStringLiteral("item 0"));
    key(TypedKey::LeftArrow);
    EXPECT_EQ(focused(), QStringLiteral("item 0"));
    EXPECT_TRUE(takeLog().isEmpty());
}

TEST_F(ViewAllKeyboardTest, ArrowsGoWhereTheyPointAlsoWhereTheBarIsMirrored)
{
    desk.theme.direction = Qt::RightToLeft;
    show(3);
    keys({TypedKey::LeftArrow, TypedKey::LeftArrow, TypedKey::RightArrow});
    EXPECT_EQ(focused(), QStringLiteral("item 1"));
}

TEST_F(ViewAllKeyboardTest, TheFocusTakesThePageAlong)
{
    show(8);
    key(TypedKey::End);
    EXPECT_EQ(takeLog(), QStringList{QStringLiteral("scroll 3")});
    EXPECT_EQ(focused(), QStringLiteral("item 7"));
    keys({TypedKey::LeftArrow, TypedKey::LeftArrow, TypedKey::LeftArrow, TypedKey::LeftArrow});
    EXPECT_TRUE(takeLog().isEmpty());
    key(TypedKey::LeftArrow);
    EXPECT_EQ(takeLog(), QStringList{QStringLiteral("scroll -1")});
    EXPECT_EQ(focused(), QStringLiteral("item 2"));
}

TEST_F(ViewAllKeyboardTest, APageThatIsTurnedOtherwiseTakesTheFocusAlong)
{
    show(8);
    view.apply(items, selection, 3);
    EXPECT_EQ(focused(), QStringLiteral("item 3"));
}

TEST_F(ViewAllKeyboardTest, SpaceAndEnterTickWhatIsFocusedOnceForEachPress)
{
    show(3);
    key(TypedKey::RightArrow);
    EXPECT_TRUE(key(TypedKey::Space));
    EXPECT_TRUE(key(TypedKey::Space, {}, true));
    EXPECT_TRUE(key(TypedKey::Return));
    EXPECT_EQ(takeLog(),
              (QStringList{QStringLiteral("toggle item 1"), QStringLiteral("toggle item 1")}));
}

TEST_F(ViewAllKeyboardTest, TabGoesToTheControlsThatDoSomethingAndEnterPressesThem)
{
    show(8, 2);
    selection.insert(items.at(2).id());
    apply();
    QStringList names;
    for (int i = 0; i < 6; ++i) {
        key(TypedKey::Tab);
        names << focused();
        if (view.focus().control)
            key(TypedKey::Space);
    }
    EXPECT_EQ(names.join(QStringLiteral(", ")),
              QStringLiteral("Select all, Copy the selected items, Remove the selected items, "
                             "Earlier items, Later items, item 2"));
    EXPECT_EQ(takeLog().join(QStringLiteral(", ")),
              QStringLiteral("select all, copy, remove, scroll -1, scroll 1"));
    selection.clear();
    apply();
    key(TypedKey::Tab, Modifier::Shift);
    EXPECT_EQ(focused(), QStringLiteral("Later items"));
    EXPECT_FALSE(key(TypedKey::Tab, Modifier::Command));
}

TEST_F(ViewAllKeyboardTest, AControlThatLeadsNowhereAnyMoreGivesTheFocusToTheTile)
{
    show(8, 1);
    key(TypedKey::Tab, Modifier::Shift);
    key(TypedKey::Tab, Modifier::Shift);
    ASSERT_EQ(focused(), QStringLiteral("Earlier items"));
    key(TypedKey::Return);
    EXPECT_EQ(view.offset(), 0);
    EXPECT_EQ(focused(), QStringLiteral("item 1"));
}

TEST_F(ViewAllKeyboardTest, TabPassesOverAnArrowThatLeadsNowhere)
{
    show(5);
    key(TypedKey::Tab, Modifier::Shift);
    EXPECT_EQ(focused(), QStringLiteral("Select all")) << "all of them are on this page";
    show(6, 1);
    key(TypedKey::Tab, Modifier::Shift);
    key(TypedKey::Tab, Modifier::Shift);
    EXPECT_EQ(focused(), QStringLiteral("Earlier items")) << "the last one is on this page";
}

TEST_F(ViewAllKeyboardTest, TheFocusIsSeenFromTheFirstKeyToTheNextPress)
{
    show(3);
    const auto picture = [this] {
        QImage image(600, 132, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        view.paint(painter, {600, 132}, 1);
        return image;
    };
    const QImage before = picture();
    EXPECT_FALSE(view.focus().isVisible);
    key(TypedKey::RightArrow);
    EXPECT_TRUE(view.focus().isVisible);
    EXPECT_NE(picture(), before);
    view.keyboardLost();
    EXPECT_EQ(picture(), before);
    key(TypedKey::LeftArrow);
    view.mouseDown({view.layout().tiles.at(0).root.center()});
    EXPECT_FALSE(view.focus().isVisible);
}

TEST_F(ViewAllKeyboardTest, TheFocusStaysOnItsItemAndGoesToTheNextOnceThatIsGone)
{
    show(4);
    keys({TypedKey::RightArrow, TypedKey::RightArrow});
    items.removeFirst();
    apply();
    EXPECT_EQ(focused(), QStringLiteral("item 2"));
    items.removeAt(1);
    apply();
    EXPECT_EQ(focused(), QStringLiteral("item 3"));
    items.removeLast();
    apply();
    EXPECT_EQ(focused(), QStringLiteral("item 1"));
}

TEST_F(ViewAllKeyboardTest, ItBeginsAnewEachTimeThatTheBarOpens)
{
    show(3);
    key(TypedKey::End);
    view.wasHidden();
    EXPECT_FALSE(key(TypedKey::Space)) << "it is closing";
    apply();
    EXPECT_EQ(focused(), QStringLiteral("item 0"));
    EXPECT_FALSE(view.focus().isVisible);
}

TEST_F(ViewAllKeyboardTest, WhatAScreenReaderFocusesIsNeitherTickedNorPressed)
{
    show(3);
    view.perform(accessible_items::keyOf(items.at(2).id()), accessible_items::focus());
    EXPECT_EQ(focused(), QStringLiteral("item 2"));
    EXPECT_TRUE(desk.panel.isKey);
    view.perform(QStringLiteral("select all"), accessible_items::focus());
    EXPECT_EQ(focused(), QStringLiteral("Select all"));
    EXPECT_TRUE(log.isEmpty());
}

} // namespace corvane::test
