// Several screens, which come and go.

#include "e2e/desktop_test.h"

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class Screens : public DesktopTest {
protected:
    void TearDown() override
    {
        xrandr({u"--delmonitor"_s, u"right"_s});
        xrandr({u"--delmonitor"_s, u"left"_s});
        DesktopTest::TearDown();
    }

    bool xrandr(const QStringList &arguments)
    {
        return outputOf(u"xrandr"_s, arguments, m_desktop.environment()).has_value();
    }

    /// Cuts the one screen of the server into two that stand side by side.
    bool addSecond()
    {
        return xrandr({u"--setmonitor"_s, u"left"_s, u"756/200x982/260+0+0"_s, u"screen"_s})
            && xrandr({u"--setmonitor"_s, u"right"_s, u"756/200x982/260+756+0"_s, u"none"_s});
    }

    bool removeSecond()
    {
        return xrandr({u"--delmonitor"_s, u"right"_s}) && xrandr({u"--delmonitor"_s, u"left"_s});
    }

    static constexpr QRect whole{0, 0, 1512, 982};
    static constexpr QRect left{0, 0, 756, 982};
    static constexpr QRect right{756, 0, 756, 982};
};

TEST_F(Screens, theShelfOpensOnTheScreenWhereTheDragIs)
{
    ASSERT_TRUE(addSecond());
    start();
    {
        XdndSource source(m_desktop, {{"text/plain", "x"}});
        source.pickUp();
        EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty, left));
        source.letGo();
        ASSERT_TRUE(corvane().waitUntilHidden());
    }
    hands().moveTo(right.center());
    ASSERT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty, right));
}

TEST_F(Screens, theOutermostPixelsOfALargerScaleBelongToTheirScreen)
{
    ASSERT_TRUE(addSecond());
    CorvaneProgram::Start how;
    how.environment = m_desktop.environment();
    how.environment.insert(u"QT_SCALE_FACTOR"_s, u"2"_s);
    start(how);
    const QSize size = CorvaneProgram::empty * 2;
    hands().moveTo(right.bottomRight());
    ASSERT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitForSize(size, right));
    ASSERT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(corvane().waitUntilHidden());
    hands().moveTo(left.bottomRight());
    ASSERT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitForSize(size, left));
}

TEST_F(Screens, thePreferencesOpenInTheMiddleOfTheScreenWhereTheUserIs)
{
    ASSERT_TRUE(addSecond());
    start();
    hands().moveTo(right.bottomRight());
    ASSERT_TRUE(corvane().activateAction(u"preferences"_s));
    EXPECT_TRUE(eventually([&] {
        const auto window = corvane().window();
        return window && right.contains(window->frame)
            && (window->frame.center() - right.center()).manhattanLength() < 60;
    }));
}

TEST_F(Screens, theShelfFollowsWhenAScreenComesAndGoes)
{
    start();
    hands().moveTo(right.center());
    ASSERT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::empty, whole));
    ASSERT_TRUE(addSecond());
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty, right));
    ASSERT_TRUE(removeSecond());
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty, whole));
}

TEST_F(Screens, whatLiesOnTheShelfStaysWhenItsScreenGoes)
{
    ASSERT_TRUE(addSecond());
    startWithInView(3);
    ASSERT_TRUE(dropFiles({makeFile(u"a.txt"_s, "x"), makeFile(u"b.txt"_s, "x")}));
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 2), left));
    ASSERT_TRUE(removeSecond());
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 2), whole));
}

} // namespace
} // namespace corvane::e2e
