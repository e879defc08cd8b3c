#include "shelf/drawing/layer_animator.h"
#include "shelf/drawing/motion.h"
#include "shelf/drawing/theme.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace corvane::test {

namespace {

constexpr double step = 1e-5;

/// Position and velocity of a motion must agree: the second is the slope of the first.
void expectVelocityIsSlope(const MovingValue &value, double time)
{
    const double slope
        = (value.valueAt(time + step)[0] - value.valueAt(time - step)[0]) / (2 * step);
    EXPECT_NEAR(value.velocityAt(time)[0], slope, 0.01 * std::max(1.0, std::abs(slope)));
}

} // namespace

TEST(Spring, HasResponseOfAQuarterSecondAndDampingRatioOf0Point7)
{
    const Spring spring = Theme::Motion::spring();
    const double stiffness = std::pow(2 * std::numbers::pi / 0.25, 2);
    EXPECT_DOUBLE_EQ(spring.mass, 1);
    EXPECT_NEAR(spring.stiffness, stiffness, 1e-9);
    EXPECT_NEAR(spring.damping, 2 * 0.7 * std::sqrt(stiffness), 1e-9);
}

TEST(Spring, SettlingDurationIsTheFirstTimeAfterWhichItStaysNearItsTarget)
{
    for (const Spring &spring :
         {Theme::Motion::spring(), Spring{1, 400, 6}, Spring{2, 100, 2 * std::sqrt(200.0)},
          Spring{1, 100, 30}, Spring{1, 100, 60}}) {
        const double settled = spring.settlingDuration();
        const Spring::State start{1, 0};
        EXPECT_GT(std::abs(spring.after(settled - 1e-4, start).distance), Spring::settledDistance);
        for (double t = settled + 1e-6; t < settled * 3; t += 1e-3)
            ASSERT_LE(std::abs(spring.after(t, start).distance), Spring::settledDistance * 1.0001);
    }
}

TEST(Spring, SolvesItsEquationForEveryDamping)
{
    for (const double damping : {0.0, 10.0, 20.0, 19.99999999, 45.0}) {
        const Spring spring{1, 100, damping};
        const Spring::State from{3, -7};
        for (const double t : {0.05, 0.2, 0.6}) {
            const double x = spring.after(t, from).distance;
            const double v = spring.after(t, from).velocity;
            const double a
                = (spring.after(t + step, from).velocity - spring.after(t - step, from).velocity)
                / (2 * step);
            EXPECT_NEAR(a + damping * v + 100 * x, 0, 1e-3) << damping;
        }
        EXPECT_NEAR(spring.after(0, from).distance, 3, 1e-9);
        EXPECT_NEAR(spring.after(0, from).velocity, -7, 1e-5);
    }
}

TEST(TimingCurve, RunsFromZeroToOneAndNeverBack)
{
    const TimingCurve curve = LayerAnimator::transformCurve();
    EXPECT_EQ(curve.progress(0), 0);
    EXPECT_EQ(curve.progress(1), 1);
    double before = 0;
    for (double t = 0.01; t < 1; t += 0.01) {
        EXPECT_GE(curve.progress(t), before);
        before = curve.progress(t);
    }
    EXPECT_NEAR(curve.slope(0), 0.72 / 0.32, 1e-3);
}

TEST(Motion, ASpringCanBeGivenANewTargetInMidFlightWithoutAJump)
{
    const Motion motion = SpringMotion{Theme::Motion::spring()};
    const MovingValue first(motion, {0}, {0}, {100}, 0);
    const double turn = 0.07;
    const MovingValue second(motion, first.valueAt(turn), first.velocityAt(turn), {-50}, turn);
    EXPECT_NEAR(second.valueAt(turn)[0], first.valueAt(turn)[0], 1e-9);
    EXPECT_NEAR(second.velocityAt(turn)[0], first.velocityAt(turn)[0], 1e-6);
    EXPECT_EQ(second.valueAt(turn + 5)[0], -50);
}

TEST(Motion, ACurveCanBeGivenANewTargetInMidFlightWithoutAJump)
{
    const Motion motion = CurveMotion{0.32, LayerAnimator::transformCurve()};
    const MovingValue first(motion, {0}, {0}, {100}, 1);
    const double turn = 1.1;
    const MovingValue second(motion, first.valueAt(turn), first.velocityAt(turn), {0}, turn);
    EXPECT_NEAR(second.valueAt(turn)[0], first.valueAt(turn)[0], 1e-9);
    EXPECT_NEAR(second.velocityAt(turn)[0], first.velocityAt(turn)[0], 1e-6);
    EXPECT_EQ(second.valueAt(turn + 0.32)[0], 0);
    for (const double t : {1.15, 1.2, 1.3})
        expectVelocityIsSlope(second, t);
    for (const double t : {1.02, 1.1, 1.25})
        expectVelocityIsSlope(first, t);
}

TEST(Spring, SaysHowFarItGoesBeyondItsTarget)
{
    for (const Spring &spring : {Theme::Motion::spring(), Spring{1, 400, 6}, Spring{1, 100, 60}}) {
        double farthest = 0;
        for (double t = 0; t < 2; t += 1e-4)
            farthest = std::max(farthest, -spring.after(t, {1, 0}).distance);
        EXPECT_NEAR(spring.overshoot(), farthest, 1e-6);
    }
}

TEST(Motion, ASpringIsOverWhenItHasSettledHoweverLongTheWay)
{
    const Spring spring = Theme::Motion::spring();
    for (const double way : {0.5, 10.0, 1000.0}) {
        const MovingValue value(SpringMotion{spring}, {0}, {0}, {way}, 0);
        EXPECT_FALSE(value.isOverAt(spring.settlingDuration() - 1e-6)) << way;
        EXPECT_TRUE(value.isOverAt(spring.settlingDuration())) << way;
    }
}

TEST(Motion, LandsExactlyOnItsTargetWhenItIsOver)
{
    const MovingValue value(SpringMotion{Theme::Motion::spring()}, {0, 5}, {0, 0}, {300, 5}, 2);
    EXPECT_FALSE(value.isOverAt(2.3));
    EXPECT_TRUE(value.isOverAt(4));
    EXPECT_EQ(value.valueAt(4), (MovingValue::Components{300, 5}));
}

TEST(LayerAnimator, SpringsGeometry)
{
    const LayerAnimator animator;
    EXPECT_EQ(LayerAnimator::springKeys().size(), 4U);
    for (const char *key : {"bounds", "position", "path", "cornerRadius"}) {
        const auto motion = animator.action(QString::fromLatin1(key));
        ASSERT_TRUE(motion) << key;
        EXPECT_EQ(*motion, Motion(SpringMotion{Theme::Motion::spring()})) << key;
    }
}

TEST(LayerAnimator, EasesTransformsFor0Point32Seconds)
{
    const auto motion = LayerAnimator().action(QStringLiteral("transform"));
    ASSERT_TRUE(motion);
    EXPECT_EQ(*motion, Motion(CurveMotion{0.32, TimingCurve{0.32F, 0.72F, 0, 1}}));
}

TEST(LayerAnimator, FadesOpacityFor0Point14Seconds)
{
    const auto motion = LayerAnimator().action(QStringLiteral("opacity"));
    ASSERT_TRUE(motion);
    EXPECT_EQ(*motion, Motion(CurveMotion{0.14, TimingCurve{0, 0, 0.58, 1}}));
}

TEST(LayerAnimator, AnyOtherChangeTakesEffectAtOnce)
{
    const LayerAnimator animator;
    for (const char *key : {"backgroundColor", "contents", "hidden", "Bounds", "POSITION", ""})
        EXPECT_FALSE(animator.action(QString::fromLatin1(key))) << key;
}

} // namespace corvane::test
