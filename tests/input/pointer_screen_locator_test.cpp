#include "fakes/fake_pointer.h"
#include "fakes/fake_screens.h"
#include "input/pointer_screen_locator.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

using Notch = ScreenLocator::Notch;

struct PointerScreenLocatorTest : testing::Test {
    test::FakeScreens screens;
    test::FakePointer pointer;
    PointerScreenLocator locator{screens, pointer};
};

/// A pointer at the origin that counts how often it is asked.
struct AskedPointer : Pointer {
    std::optional<QPointF> location() const override
    {
        ++times;
        return QPointF(0, 0);
    }
    mutable int times = 0;
};

ScreenPointer screenWithNotch(double inset, std::optional<double> left, std::optional<double> right)
{
    Screen screen;
    screen.frame = QRectF(0, 0, 1512, 982);
    screen.safeAreaInsets.top = inset;
    if (left)
        screen.auxiliaryTopLeftArea = QRectF(0, 950, *left, 32);
    if (right)
        screen.auxiliaryTopRightArea = QRectF(1512 - *right, 950, *right, 32);
    return std::make_shared<Screen>(screen);
}

TEST_F(PointerScreenLocatorTest, FollowsThePointerAndNotTheNotch)
{
    const auto first = screens.attach(QRectF(0, 0, 1512, 982));
    first->safeAreaInsets.top = 32;
    const auto second = screens.attach(QRectF(1512, 0, 1920, 1080));
    pointer.position = QPointF(2000, 500);
    EXPECT_EQ(locator.activeScreen(), second);
    EXPECT_EQ(ScreenLocator::notch(locator.activeScreen()), (Notch{0, 0}));
}

TEST_F(PointerScreenLocatorTest, GivesASharedEdgeToTheScreenThatBeginsThere)
{
    const auto left = screens.attach(QRectF(0, 0, 100, 100));
    const auto right = screens.attach(QRectF(100, 0, 100, 100));
    const auto above = screens.attach(QRectF(0, 100, 100, 100));
    pointer.position = QPointF(100, 50);
    EXPECT_EQ(locator.activeScreen(), right);
    pointer.position = QPointF(50, 100);
    EXPECT_EQ(locator.activeScreen(), above);
    pointer.position = QPointF(0, 0);
    EXPECT_EQ(locator.activeScreen(), left);
}

TEST_F(PointerScreenLocatorTest, PrefersTheEarlierOfTwoThatOverlap)
{
    const auto first = screens.attach(QRectF(0, 0, 100, 100));
    screens.attach(QRectF(50, 0, 100, 100));
    pointer.position = QPointF(75, 50);
    EXPECT_EQ(locator.activeScreen(), first);
}

TEST_F(PointerScreenLocatorTest, FallsBackToTheMainScreen)
{
    screens.attach(QRectF(0, 0, 100, 100));
    const auto main = screens.attach(QRectF(100, 0, 100, 100));
    screens.setMainScreen(main);
    pointer.position = QPointF(50, 100);
    EXPECT_EQ(locator.activeScreen(), main) << "the outer upper edge belongs to no screen";
    pointer.position = QPointF(200, 50);
    EXPECT_EQ(locator.activeScreen(), main);
    pointer.position = std::nullopt;
    EXPECT_EQ(locator.activeScreen(), main) << "a window system that does not tell the position";
}

TEST_F(PointerScreenLocatorTest, AsksForThePointerOnlyWhereThereAreSeveralScreens)
{
    AskedPointer asked;
    const PointerScreenLocator asking(screens, asked);
    const auto first = screens.attach(QRectF(0, 0, 100, 100));
    EXPECT_EQ(asking.activeScreen(), first);
    EXPECT_EQ(asked.times, 0);
    screens.attach(QRectF(100, 0, 100, 100));
    EXPECT_EQ(asking.activeScreen(), first);
    EXPECT_EQ(asked.times, 1);
}

TEST_F(PointerScreenLocatorTest, HasNoScreenWhereNoneIsAttached)
{
    pointer.position = QPointF(0, 0);
    EXPECT_EQ(locator.activeScreen(), nullptr);
    EXPECT_EQ(ScreenLocator::notch(nullptr), (Notch{0, 0}));
}

TEST_F(PointerScreenLocatorTest, MeasuresTheNotchBetweenTheAreasBesideIt)
{
    EXPECT_EQ(ScreenLocator::notch(screenWithNotch(32, 656, 656)), (Notch{32, 200}));
    EXPECT_EQ(ScreenLocator::notch(screenWithNotch(32, 600, 656)), (Notch{32, 256}));
    EXPECT_EQ(ScreenLocator::notch(screenWithNotch(32, 756, 756)), (Notch{32, 0}));
}

TEST_F(PointerScreenLocatorTest, HasAnInsetWithoutAWidthWhereTheAreasAreNotTold)
{
    EXPECT_EQ(ScreenLocator::notch(screenWithNotch(32, {}, {})), (Notch{32, 0}));
    EXPECT_EQ(ScreenLocator::notch(screenWithNotch(32, 656, {})), (Notch{32, 0}));
    EXPECT_EQ(ScreenLocator::notch(screenWithNotch(32, {}, 656)), (Notch{32, 0}));
}

TEST_F(PointerScreenLocatorTest, NeverGivesANegativeWidth)
{
    EXPECT_EQ(ScreenLocator::notch(screenWithNotch(32, 1000, 1000)), (Notch{32, 0}));
}

TEST_F(PointerScreenLocatorTest, HasNoNotchWithoutATopInset)
{
    EXPECT_EQ(ScreenLocator::notch(screenWithNotch(0, 656, 656)), (Notch{0, 0}));
    EXPECT_EQ(ScreenLocator::notch(screenWithNotch(-5, 656, 656)), (Notch{0, 0}));
}

} // namespace
} // namespace corvane
