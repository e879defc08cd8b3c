#include "platform/freedesktop/dbus_menu.h"
#include "platform/menu.h"
#include "platform/qt/menu_popup.h"

#include <QAction>
#include <QApplication>
#include <QMenu>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

KeyEquivalent keys(const char16_t *key, Modifiers modifiers = {})
{
    return {QString::fromUtf16(key), modifiers};
}

MenuRow row(int id, const char *title, std::function<void()> action = {})
{
    return {id, QString::fromLatin1(title), {}, std::move(action)};
}

/// A panel that has a copy of the menu.
class DBusMenuTest : public testing::Test {
protected:
    DBusMenuTest()
    {
        menu.setBuilder([this] { return rows; });
        QObject::connect(&menu, &DBusMenu::LayoutUpdated, &menu, [this] { ++updates; });
    }

    DBusMenuLayout layout(const QStringList &properties = {})
    {
        DBusMenuLayout root;
        menu.GetLayout(0, -1, properties, root);
        return root;
    }
    static DBusMenuLayout child(const DBusMenuLayout &root, int index)
    {
        return root.children.value(index).variant().value<DBusMenuLayout>();
    }
    void click(int id)
    {
        menu.Event(id, QStringLiteral("clicked"), {}, 0);
        QCoreApplication::processEvents();
    }

    MenuRows rows{row(1, "one"), row(2, ""), row(3, "three")};
    DBusMenu menu;
    int updates = 0;
};

QMenu *openMenu()
{
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

} // namespace

TEST(KeyEquivalent, isSpelledAsMenusOnTheBusDo)
{
    EXPECT_EQ(keys(u"k", Modifier::Control | Modifier::Option).names(),
              (QStringList{QStringLiteral("Control"), QStringLiteral("Alt"), QStringLiteral("k")}));
    EXPECT_EQ(keys(u"d", Modifier::Command | Modifier::Shift).names(),
              (QStringList{QStringLiteral("Super"), QStringLiteral("Shift"), QStringLiteral("d")}));
    EXPECT_EQ(keys(u"+").names(), QStringList{QStringLiteral("plus")});
    EXPECT_EQ(keys(u"f5").names(), QStringList{QStringLiteral("F5")});
    EXPECT_EQ(keys(u"↩").names(), QStringList{QStringLiteral("Return")});
    EXPECT_TRUE(keys(u"", Modifier::Control).names().isEmpty());
}

TEST(KeyEquivalent, isReadAsPeopleWriteIt)
{
    EXPECT_EQ(keys(u"k", Modifier::Control | Modifier::Option).text(),
              QStringLiteral("Ctrl+Alt+K"));
    EXPECT_EQ(keys(u"d", Modifier::Command | Modifier::Shift).text(),
              QStringLiteral("Meta+Shift+D"));
    EXPECT_EQ(keys(u",", Modifier::Control).text(), QStringLiteral("Ctrl+,"));
    EXPECT_EQ(keys(u"+", Modifier::Control).text(), QStringLiteral("Ctrl++"));
    EXPECT_EQ(keys(u"⎋", Modifier::Command).text(), QStringLiteral("Meta+Esc"));
    EXPECT_EQ(keys(u"").text(), QString());
}

TEST(KeyEquivalent, everySignHasAName)
{
    for (const char16_t *sign : {u"↩", u"⇥", u"␣", u"⌫", u"⌦", u"⎋", u"←", u"→", u"↑", u"↓", u"↖",
                                 u"↘", u"⇞", u"⇟", u"⌤"}) {
        EXPECT_NE(keys(sign).names().value(0), QString::fromUtf16(sign));
        EXPECT_FALSE(keys(sign).text().isEmpty()) << qPrintable(QString::fromUtf16(sign));
    }
}

TEST_F(DBusMenuTest, hasItsRowsUnderTheirIds)
{
    rows[0].title = QStringLiteral("a_b");
    rows[0].keyEquivalent = keys(u"q", Modifier::Control);
    const DBusMenuLayout root = layout();
    EXPECT_EQ(root.id, 0);
    ASSERT_EQ(root.children.size(), 3);
    EXPECT_EQ(child(root, 0).id, 1);
    EXPECT_EQ(child(root, 0).properties.value(QStringLiteral("label")), QStringLiteral("a__b"));
    EXPECT_EQ(child(root, 0).properties.value(QStringLiteral("shortcut")).value<DBusMenuShortcut>(),
              (DBusMenuShortcut{{QStringLiteral("Control"), QStringLiteral("q")}}));
    EXPECT_EQ(child(root, 1).properties.value(QStringLiteral("type")), QStringLiteral("separator"));
    EXPECT_EQ(child(root, 2).id, 3);
    EXPECT_FALSE(child(root, 2).properties.contains(QStringLiteral("shortcut")));
}

TEST_F(DBusMenuTest, givesOnlyWhatItIsAskedFor)
{
    const DBusMenuLayout root = layout({QStringLiteral("type")});
    EXPECT_TRUE(root.properties.isEmpty());
    EXPECT_TRUE(child(root, 0).properties.isEmpty());
    EXPECT_EQ(child(root, 1).properties.size(), 1);
    const auto some = menu.GetGroupProperties({3}, {});
    ASSERT_EQ(some.size(), 1);
    EXPECT_EQ(some.constFirst().id, 3);
    EXPECT_EQ(menu.GetProperty(3, QStringLiteral("label")).variant(), QStringLiteral("three"));
    EXPECT_EQ(menu.GetProperty(77, QStringLiteral("nonsense")).variant(), QString());
}

TEST_F(DBusMenuTest, isBuiltAnewWhenItOpensAndTellsWhetherItChanged)
{
    layout();
    EXPECT_FALSE(menu.AboutToShow(0));
    rows << row(4, "four");
    EXPECT_TRUE(menu.AboutToShow(0));
    EXPECT_EQ(updates, 1);
    EXPECT_FALSE(menu.AboutToShow(0));
    EXPECT_EQ(layout().children.size(), 4);
    EXPECT_EQ(updates, 1);
}

TEST_F(DBusMenuTest, aChangeIsToldOnlyToThoseWhoHaveACopy)
{
    menu.announceChange();
    EXPECT_EQ(updates, 0);
    layout();
    menu.announceChange();
    EXPECT_EQ(updates, 0) << "nothing has changed";
    rows.removeLast();
    menu.announceChange();
    EXPECT_EQ(updates, 1);
}

TEST_F(DBusMenuTest, aClickDoesTheRowsWorkAfterThePanelHasItsAnswer)
{
    int calls = 0;
    rows[2].action = [&calls] { ++calls; };
    layout();
    menu.Event(3, QStringLiteral("clicked"), {}, 0);
    EXPECT_EQ(calls, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(calls, 1);
    menu.Event(3, QStringLiteral("hovered"), {}, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(calls, 1);
}

TEST_F(DBusMenuTest, aClickInACopyThatIsOutOfDateStillMeansItsRow)
{
    QStringList done;
    rows[0].action = [&done] { done << QStringLiteral("one"); };
    rows[2].action = [&done] { done << QStringLiteral("three"); };
    layout();
    rows.removeAt(1);
    rows.prepend(row(9, "nine", [&done] { done << QStringLiteral("nine"); }));
    menu.announceChange();
    click(3);
    click(1);
    EXPECT_EQ(done, (QStringList{QStringLiteral("three"), QStringLiteral("one")}));
}

TEST_F(DBusMenuTest, nonsenseFromThePanelDoesNothing)
{
    layout();
    click(77);
    click(-1);
    click(2);
    EXPECT_EQ(menu.EventGroup({{77, QStringLiteral("clicked"), {}, 0}}), QList<int>{77});
    QList<int> errors;
    EXPECT_TRUE(menu.AboutToShowGroup({0, 77}, errors).isEmpty());
    EXPECT_EQ(errors, QList<int>{77});
    DBusMenuLayout none;
    menu.GetLayout(77, -1, {}, none);
    EXPECT_TRUE(none.children.isEmpty());
}

TEST(MenuPopup, showsKeysBesideTheRowsWithoutMakingShortcutsOfThem)
{
    MenuPopup popup;
    MenuRow quit = row(1, "Quit & go");
    quit.keyEquivalent = keys(u"q", Modifier::Control);
    popup.open({quit, row(2, ""), row(3, "Other")}, {300, 200, 24, 24});
    QMenu *menu = openMenu();
    ASSERT_TRUE(menu);
    const QList<QAction *> actions = menu->actions();
    ASSERT_EQ(actions.size(), 3);
    EXPECT_EQ(actions.at(0)->text(), QStringLiteral("Quit && go\tCtrl+Q"));
    EXPECT_TRUE(actions.at(1)->isSeparator());
    EXPECT_EQ(actions.at(2)->text(), QStringLiteral("Other"));
    for (const QAction *action : actions)
        EXPECT_TRUE(action->shortcuts().isEmpty());
    menu->close();
}

TEST(MenuPopup, opensBesideItsPlaceAndDoesTheRowsWork)
{
    int calls = 0;
    MenuPopup popup;
    const QRect upper(300, 10, 24, 24);
    popup.open({row(1, "One", [&calls] { ++calls; })}, upper);
    ASSERT_TRUE(openMenu());
    EXPECT_EQ(openMenu()->geometry().top(), upper.top() + upper.height());
    openMenu()->actions().constFirst()->trigger();
    EXPECT_EQ(calls, 1);
    const QRect lower(300, 940, 24, 24);
    popup.open({row(1, "One")}, lower);
    ASSERT_TRUE(openMenu());
    EXPECT_LE(openMenu()->geometry().bottom(), lower.top());
    openMenu()->close();
}

} // namespace corvane::test
