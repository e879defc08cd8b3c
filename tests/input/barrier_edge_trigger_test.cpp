#include "fakes/fake_drag_desktop.h"
#include "fakes/fake_pointer_barriers.h"
#include "fakes/fake_screens.h"
#include "input/barrier_edge_trigger.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <optional>

namespace corvane::test {

namespace {

class BarrierEdgeTriggerTest : public testing::Test {
protected:
    BarrierEdgeTriggerTest()
    {
        trigger.emplace(
            BarrierEdgeTrigger::Desktop{barriers, fullScreen, desktop, desktop.pointer});
        trigger->watch({{screen, 100, 200}});
        desktop.pointer.position = QPointF(150, 981);
    }

    FakeScreens screens;
    std::shared_ptr<Screen> screen = screens.attach(QRectF(0, 0, 1512, 982));
    FakePointerBarriers barriers;
    FakeFullScreenWindows fullScreen;
    FakeDragDesktop desktop;
    std::optional<BarrierEdgeTrigger> trigger;
};

} // namespace

TEST_F(BarrierEdgeTriggerTest, passesOnWhatTheBarriersTell)
{
    QStringList told;
    trigger->onEntered = [&] { told << QStringLiteral("entered"); };
    trigger->onLeft = [&] { told << QStringLiteral("left"); };
    ASSERT_EQ(barriers.watched, (std::vector<EdgeStretch>{{screen, 100, 200}}));
    barriers.push();
    barriers.leave();
    EXPECT_EQ(told, (QStringList{QStringLiteral("entered"), QStringLiteral("left")}));
}

TEST_F(BarrierEdgeTriggerTest, needsNoCallbacks)
{
    barriers.push();
    barriers.leave();
    EXPECT_TRUE(trigger->isStillThere());
}

TEST_F(BarrierEdgeTriggerTest, thePointerIsThereInTheStretchAndThreePointsBelowTheEdge)
{
    const auto isThereAt = [&](QPointF point) {
        desktop.pointer.position = point;
        return trigger->isStillThere();
    };
    EXPECT_TRUE(isThereAt({100, 981}));
    EXPECT_TRUE(isThereAt({299, 979}));
    EXPECT_FALSE(isThereAt({99, 981}));
    EXPECT_FALSE(isThereAt({300, 981}));
    EXPECT_FALSE(isThereAt({150, 978.5}));
    desktop.pointer.position.reset();
    EXPECT_FALSE(trigger->isStillThere()) << "nobody tells where it is";
}

TEST_F(BarrierEdgeTriggerTest, anyButtonThatIsHeldMeansSomethingElse)
{
    EXPECT_FALSE(trigger->isButtonHeld());
    desktop.press(FakeDragDesktop::rightButton);
    EXPECT_TRUE(trigger->isButtonHeld());
    EXPECT_FALSE(trigger->isStillThere());
    desktop.release(FakeDragDesktop::rightButton);
    EXPECT_TRUE(trigger->isStillThere());
}

TEST_F(BarrierEdgeTriggerTest, aScreenThatAWindowHasForItselfIsLeftAlone)
{
    const auto other = screens.attach(QRectF(1512, 0, 800, 600));
    fullScreen.covered = other.get();
    EXPECT_TRUE(trigger->isStillThere());
    fullScreen.covered = screen.get();
    EXPECT_FALSE(trigger->isStillThere());
}

TEST_F(BarrierEdgeTriggerTest, whatIsNoLongerWatchedIsNowhere)
{
    trigger->watch({});
    EXPECT_TRUE(barriers.watched.empty());
    EXPECT_FALSE(trigger->isStillThere());
}

TEST_F(BarrierEdgeTriggerTest, letsGoOfTheBarriersWhenItEnds)
{
    trigger->onEntered = [] { ADD_FAILURE() << "called after its end"; };
    trigger.reset();
    EXPECT_TRUE(barriers.watched.empty());
    barriers.watched = {{screen, 100, 200}};
    barriers.push();
}

} // namespace corvane::test
