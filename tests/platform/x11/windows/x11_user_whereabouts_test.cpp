#include "e2e/desktop/eventually.h"
#include "fakes/fake_screens.h"
#include "fakes/test_clock.h"
#include "platform/x11/windows/x11_user_whereabouts.h"

#include <gtest/gtest.h>

#include <vector>

namespace corvane::test {

namespace {

using e2e::eventually;

class X11UserWhereaboutsTest : public testing::Test {
protected:
    X11UserWhereaboutsTest()
    {
        whereabouts.onFound = [this](const ScreenPointer &screen) { found.push_back(screen); };
    }
    ScreenPointer attach(const QRect &pixels)
    {
        Screen values;
        values.nativeFrame = pixels;
        return screens.attach(values);
    }

    X11Connection connection;
    TestClock clock;
    FakeScreens screens;
    X11UserWhereabouts whereabouts{connection, clock, screens};
    std::vector<ScreenPointer> found;
};

} // namespace

TEST_F(X11UserWhereaboutsTest, onTheOnlyScreenNothingIsLookedFor)
{
    const auto only = attach({0, 0, 1512, 982});
    whereabouts.find();
    EXPECT_EQ(found, std::vector{only});
}

TEST_F(X11UserWhereaboutsTest, theScreenIsTheOneWhereAWindowIsPutThatAsksForNone)
{
    attach({4000, 0, 1512, 982});
    const auto real = attach({0, 0, 1512, 982});
    for (std::size_t times = 1; times < 3; ++times) {
        whereabouts.find();
        whereabouts.find();
        EXPECT_EQ(found.size(), times - 1);
        ASSERT_TRUE(eventually([&] { return found.size() == times; }));
        EXPECT_EQ(found.back(), real);
    }
    clock.advance(X11UserWhereabouts::patience * 2);
    EXPECT_EQ(found.size(), 2U);
}

TEST_F(X11UserWhereaboutsTest, aWindowManagerThatPutsItNowhereIsNotWaitedForLong)
{
    attach({4000, 0, 1512, 982});
    attach({6000, 0, 1512, 982});
    whereabouts.find();
    clock.advance(X11UserWhereabouts::patience * 0.9);
    EXPECT_TRUE(found.empty());
    clock.advance(X11UserWhereabouts::patience * 0.2);
    EXPECT_EQ(found, std::vector<ScreenPointer>{nullptr});
}

} // namespace corvane::test
