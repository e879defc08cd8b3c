#include "app/announced_texts.h"
#include "fakes/test_clock.h"
#include "platform/qt/desktop/announcements.h"
#include "platform/qt/desktop/window_roles.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QMenu>
#include <QWidget>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// As at the program's start: the roles of all windows of these tests.
class InstalledRoles : public testing::Environment {
public:
    void SetUp() override { installWindowRoles(); }
};
const testing::Environment *const installedRoles
    = testing::AddGlobalTestEnvironment(new InstalledRoles);

QAccessible::Role roleOf(QWidget &widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->role();
}

} // namespace

TEST(WindowRoles, PlainWidgetsThatAreWindowsOrDialogsAreCalledSo)
{
    QWidget window(nullptr, Qt::Window);
    QWidget dialog(nullptr, Qt::Dialog | Qt::WindowTitleHint);
    EXPECT_EQ(roleOf(window), QAccessible::Window);
    EXPECT_EQ(roleOf(dialog), QAccessible::Dialog);
    window.setWindowTitle(QStringLiteral("Corvane"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&window)->text(QAccessible::Name),
              QStringLiteral("Corvane"));
}

TEST(WindowRoles, AWidgetWithANameAndOthersInsideIsAGroup)
{
    QWidget window;
    QWidget group(&window);
    group.setAccessibleName(QStringLiteral("Shelf"));
    EXPECT_EQ(roleOf(group), QAccessible::Client) << "nothing is in it yet";
    QWidget inside(&group);
    EXPECT_EQ(roleOf(group), QAccessible::Grouping);
    EXPECT_EQ(roleOf(inside), QAccessible::Client);
}

TEST(WindowRoles, OthersStayWhatTheyAre)
{
    QWidget window;
    QWidget part(&window);
    QMenu menu;
    EXPECT_EQ(roleOf(part), QAccessible::Client);
    EXPECT_EQ(roleOf(menu), QAccessible::PopupMenu);
}

TEST(WindowRoles, WhatIsAnnouncedInAWindowIsANotificationThereForAWhile)
{
    TestClock clock;
    QWidget window;
    QWidget part(&window);
    window.show();
    announceIn(part, QStringLiteral("one"), clock);
    clock.advance(Announcements::duration / 2);
    announceIn(part, QStringLiteral("two"), clock);
    QAccessibleInterface *const told = QAccessible::queryAccessibleInterface(&window);
    ASSERT_EQ(told->childCount(), 3);
    QAccessibleInterface *const last = told->child(2);
    EXPECT_EQ(last->role(), QAccessible::Notification);
    EXPECT_EQ(last->text(QAccessible::Name), QStringLiteral("two"));
    EXPECT_EQ(last->parent(), told);
    EXPECT_EQ(told->indexOfChild(last), 2);
    EXPECT_EQ(told->indexOfChild(QAccessible::queryAccessibleInterface(&part)), 0);
    EXPECT_FALSE(last->state().invisible);
    EXPECT_EQ(told->child(3), nullptr);
    EXPECT_EQ(announcedIn(window), (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
    clock.advance(Announcements::duration / 2);
    EXPECT_EQ(announcedIn(window), QStringList{QStringLiteral("two")});
    clock.advance(Announcements::duration);
    EXPECT_EQ(announcedIn(window), QStringList());
    EXPECT_EQ(told->childCount(), 1);
}

TEST(WindowRoles, NothingIsAnnouncedInAWindowThatIsNotShownAndAWindowMayGoBefore)
{
    TestClock clock;
    {
        QWidget window;
        announceIn(window, QStringLiteral("unseen"), clock);
        EXPECT_EQ(announcedIn(window), QStringList());
        window.show();
        announceIn(window, QStringLiteral("seen"), clock);
    }
    clock.advance(2 * Announcements::duration);
}

} // namespace corvane::test
