#include "platform/qt/desktop/window_roles.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QMenu>
#include <QWidget>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

QAccessible::Role roleOf(QWidget &widget)
{
    static const bool isInstalled = [] {
        installWindowRoles();
        return true;
    }();
    EXPECT_TRUE(isInstalled);
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

TEST(WindowRoles, OthersStayWhatTheyAre)
{
    QWidget window;
    QWidget part(&window);
    QMenu menu;
    EXPECT_EQ(roleOf(part), QAccessible::Client);
    EXPECT_EQ(roleOf(menu), QAccessible::PopupMenu);
}

} // namespace corvane::test
