#include "platform/qt/desktop/panel_event_translation.h"
#include "platform/qt/desktop/wheel_steps.h"
#include "platform/x11/pointer/x11_pointing_devices.h"

#include <QWheelEvent>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

QWheelEvent turn(QPoint angle, QPoint pixels = {}, Qt::ScrollPhase phase = Qt::NoScrollPhase,
                 Qt::KeyboardModifiers modifiers = {})
{
    return {{}, {}, pixels, angle, Qt::NoButton, modifiers, phase, false};
}

/// What wheels of that many angle units each come to, `seconds` apart.
std::vector<double> stepsOf(std::initializer_list<int> angles, double seconds = 0.01)
{
    WheelSteps wheel;
    std::vector<double> steps;
    double time = 10;
    for (const int angle : angles) {
        const auto scroll = scrollEventFrom(turn({angle, 0}), time += seconds);
        if (const auto step = scroll ? wheel.add(*scroll) : std::nullopt)
            steps.push_back(step->deltaX);
    }
    return steps;
}

} // namespace

TEST(Scroll, aNotchIsANotchWhateverTheDriverCountsInIt)
{
    // The driver announces 120 units for a notch, and the toolkit takes them for pixels.
    const auto scroll = scrollEventFrom(turn({120, 0}, {120, 0}), 1);
    ASSERT_TRUE(scroll);
    EXPECT_FALSE(scroll->hasPreciseDeltas);
    EXPECT_EQ(scroll->deltaX, 4);
}

TEST(Scroll, aTouchpadIsMeasuredInPointsThoughItsDriverAnnouncesFewUnits)
{
    // 7 of the 15 units for which the driver announces a notch.
    const auto scroll = scrollEventFrom(turn({56, 0}), 1, ScrollDevice::Touchpad);
    ASSERT_TRUE(scroll);
    EXPECT_TRUE(scroll->hasPreciseDeltas);
    EXPECT_EQ(scroll->deltaX, 7);
}

TEST(Scroll, whatHasPhasesIsInPixels)
{
    const auto scroll = scrollEventFrom(turn({240, 0}, {33, 0}, Qt::ScrollUpdate), 1);
    ASSERT_TRUE(scroll);
    EXPECT_TRUE(scroll->hasPreciseDeltas);
    EXPECT_EQ(scroll->deltaX, 33);
    EXPECT_EQ(scroll->phase, ScrollEvent::Phase::Changed);
    const auto end = scrollEventFrom(turn({}, {}, Qt::ScrollEnd), 1);
    ASSERT_TRUE(end);
    EXPECT_EQ(end->phase, ScrollEvent::Phase::Ended);
}

TEST(Scroll, withShiftTheUprightWheelScrollsSideways)
{
    EXPECT_FALSE(scrollEventFrom(turn({0, 120}, {0, 120}), 1));
    const auto scroll
        = scrollEventFrom(turn({0, 120}, {0, 120}, Qt::NoScrollPhase, Qt::ShiftModifier), 1);
    ASSERT_TRUE(scroll);
    EXPECT_EQ(scroll->deltaX, 4);
}

TEST(Scroll, aFineWheelAddsUpToWholeNotches)
{
    EXPECT_EQ(stepsOf({15, 15, 15, 15, 15, 15, 15, 15, 15}), std::vector{4.0});
    EXPECT_EQ(stepsOf({40, 40, 40}), std::vector{4.0}) << "thirds, too";
    EXPECT_EQ(stepsOf({100, 100, 100}), (std::vector{4.0, 4.0}));
    EXPECT_EQ(stepsOf({-60, -60}), std::vector{-4.0});
    EXPECT_EQ(stepsOf({120, 240}), (std::vector{4.0, 8.0}));
}

TEST(Scroll, aTurnBackBeginsAnew)
{
    EXPECT_EQ(stepsOf({90, -30, -90}), std::vector{-4.0});
}

TEST(Scroll, aPartOfANotchIsForgottenAfterAQuarterOfASecond)
{
    EXPECT_EQ(stepsOf({60, 60}, 0.24), std::vector{4.0});
    EXPECT_TRUE(stepsOf({60, 60}, 0.26).empty());
}

TEST(PointingDevices, areWhatTheirDriversSay)
{
    X11Connection connection;
    X11PointingDevices devices(connection);
    int mice = 0;
    constexpr int someIds = 20;
    for (int id = 0; id < someIds; ++id) {
        mice += devices.isOfType(id, "MOUSE") ? 1 : 0;
        EXPECT_FALSE(devices.isTouchpad(id));
    }
    EXPECT_GE(mice, 1) << "the server's own";
    EXPECT_FALSE(devices.isTouchpad(-1));
    EXPECT_FALSE(devices.isTouchpad(1'000'000'000'000));
}

TEST(Scroll, touchpadsPassAsTheyAre)
{
    WheelSteps wheel;
    const auto passed = wheel.add({3, true, ScrollEvent::Phase::None, 1});
    ASSERT_TRUE(passed);
    EXPECT_EQ(passed->deltaX, 3);
    const auto end = wheel.add({0, false, ScrollEvent::Phase::Ended, 1});
    ASSERT_TRUE(end);
}

} // namespace corvane::test
