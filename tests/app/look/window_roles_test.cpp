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

} // namespace corvane::test
