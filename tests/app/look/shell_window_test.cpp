#include "app/look/shell_window.h"
#include "app/widget_hands.h"
#include "fakes/user_screens.h"

#include <QPointer>

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

class ShellWindowTest : public testing::Test {
protected:
    ShellWindowTest()
    {
        // A panel above and a dock below, on the screen on the right.
        screens.right->availableFrame = {800, 100, 1600, 660};
    }

    /// Of the upper left corner, where the window's middle is that one.
    static QPoint around(QPoint middle, QSize size)
    {
        return middle - QPoint(size.width(), size.height()) / 2;
    }

    UserScreens screens;
};

TEST_F(ShellWindowTest, StandsInTheMiddleOfWhatIsFreeOnTheUsersScreen)
{
    constexpr QSize size(300, 200);
    ShellWindow first(screens.locator, size, {});
    first.present();
    EXPECT_EQ(first.pos(), around({399, 399}, size)) << "nobody knows where the pointer is";
    screens.pointer.position = QPointF(2000, 5);
    ShellWindow second(screens.locator, size, {});
    second.present();
    EXPECT_EQ(second.pos(), around({1599, 369}, size));
}

TEST_F(ShellWindowTest, StandsWhereItWasClosedWhereverTheUserIsThen)
{
    ShellWindow window(screens.locator, {300, 200}, {});
    window.present();
    window.move(37, 41);
    window.close();
    screens.pointer.position = QPointF(2000, 5);
    window.present();
    EXPECT_EQ(window.pos(), QPoint(37, 41));
}

TEST_F(ShellWindowTest, IsNoLargerThanTheUsersScreenHasRoomForATitleBarToo)
{
    constexpr QSize size(1000, 700);
    ShellWindow narrow(screens.locator, size, {});
    EXPECT_EQ(narrow.size(), QSize(800, 700));
    screens.pointer.position = QPointF(2000, 5);
    ShellWindow low(screens.locator, size, {});
    EXPECT_EQ(low.size(), QSize(1000, 660 - 64));
    low.setContentSize({1700, 300});
    EXPECT_EQ(low.size(), QSize(1600, 300));
}

TEST_F(ShellWindowTest, GoesAtOnceUnlessItsOwnerLetsGoOfItWhileItCloses)
{
    ShellWindow::Pointer<ShellWindow> window(new ShellWindow(screens.locator, {300, 200}, {}));
    window->present();
    window->close();
    QPointer<ShellWindow> alive(window.get());
    window.reset();
    EXPECT_FALSE(alive) << "it was closed before";

    auto &closing = *new ShellWindow(screens.locator, {300, 200}, [&] { window.reset(); });
    window.reset(&closing);
    alive = &closing;
    closing.present();
    closing.close();
    EXPECT_FALSE(window);
    ASSERT_TRUE(alive);
    EXPECT_FALSE(closing.isEnabled()) << "keys on their way reach nothing";
    deletePending();
    EXPECT_FALSE(alive);
}

TEST_F(ShellWindowTest, HasItsSizeAlsoWhereThereIsNoScreen)
{
    FakeScreens none;
    const PointerScreenLocator locator(none, screens.pointer);
    ShellWindow window(locator, {3000, 2000}, {});
    window.present();
    EXPECT_EQ(window.size(), QSize(3000, 2000));
}

} // namespace
} // namespace corvane::test
