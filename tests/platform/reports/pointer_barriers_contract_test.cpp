#include "fakes/fake_pointer_barriers.h"
#include "fakes/fake_screens.h"
#include "platform/display.h"
#include "platform/x11/pointer/x11_pointer_barriers.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

constexpr double stretchWidth = 300;

std::shared_ptr<Screen> screenAt(FakeScreens &screens, const QRect &native, double scale = 1)
{
    auto screen
        = screens.attach(QRectF(0, 0, native.width() / scale, native.height() / scale), scale);
    screen->nativeFrame = native;
    return screen;
}

/// The user's verbs on the stand-in ...
struct FakeHands {
    FakeScreens screens;
    std::shared_ptr<Screen> screen = screenAt(screens, {0, 0, 1512, 982});
    FakePointerBarriers trigger;
    void push() { trigger.push(); }
    void goAway() { trigger.leave(); }
    bool until(const std::function<bool()> &condition) { return condition(); }
    void waitABit() { }
};

/// ... and on a real desktop. The pointer is moved by steps, as a mouse moves it.
struct RealHands {
    FakeScreens screens;
    std::shared_ptr<Screen> screen = screenAt(screens, {0, 0, 1512, 982});
    X11Connection connection;
    X11PointerBarriers trigger{connection, screens};
    Display display;
    static constexpr QPoint below{756, 200};

    RealHands() { display.hands.moveTo(below); }
    ~RealHands() { display.hands.moveTo(below); }
    void push() { display.hands.moveBy({0, -400}); }
    void goAway() { display.hands.moveBy({0, 200}); }
    bool until(const std::function<bool()> &condition) { return eventually(condition); }
    void waitABit() { settle(); }
};

template<typename Hands>
class PointerBarriersContract : public testing::Test {
protected:
    PointerBarriersContract()
    {
        hands.trigger.onEntered = [this] { log << QStringLiteral("entered"); };
        hands.trigger.onLeft = [this] { log << QStringLiteral("left"); };
    }

    EdgeStretch middle() const
    {
        return {hands.screen, (hands.screen->frame.width() - stretchWidth) / 2, stretchWidth};
    }
    void watch()
    {
        hands.trigger.watch({middle()});
        // The hands have a connection of their own, which may be faster.
        hands.waitABit();
    }
    bool hears(const QStringList &expected)
    {
        const bool heard = hands.until([&] { return log == expected; });
        hands.waitABit();
        return heard && log == expected;
    }

    Hands hands;
    QStringList log;
    const QString entered = QStringLiteral("entered");
    const QString left = QStringLiteral("left");
};

using AllHands = testing::Types<FakeHands, RealHands>;
TYPED_TEST_SUITE(PointerBarriersContract, AllHands);

class X11PointerBarriersTest : public PointerBarriersContract<RealHands> {
protected:
    Display &display() { return hands.display; }
    e2e::Hands &pointer() { return hands.display.hands; }
};

} // namespace

TYPED_TEST(PointerBarriersContract, tellsOnceThatThePointerCameAndOnceThatItLeft)
{
    this->watch();
    this->hands.push();
    EXPECT_TRUE(this->hears({this->entered}));
    this->hands.push();
    this->hands.push();
    EXPECT_TRUE(this->hears({this->entered})) << "pushing on is nothing new";
    this->hands.goAway();
    EXPECT_TRUE(this->hears({this->entered, this->left}));
    this->hands.push();
    EXPECT_TRUE(this->hears({this->entered, this->left, this->entered}));
}

TYPED_TEST(PointerBarriersContract, tellsNothingOfWhatIsNotWatched)
{
    this->hands.push();
    EXPECT_TRUE(this->hears({}));
    this->watch();
    this->hands.trigger.watch({});
    this->hands.waitABit();
    this->hands.push();
    EXPECT_TRUE(this->hears({}));
}

TYPED_TEST(PointerBarriersContract, forgetsAVisitWhenItWatchesAnew)
{
    this->watch();
    this->hands.push();
    ASSERT_TRUE(this->hears({this->entered}));
    this->watch();
    this->hands.goAway();
    EXPECT_TRUE(this->hears({this->entered}));
    this->hands.push();
    EXPECT_TRUE(this->hears({this->entered, this->entered}));
}

TYPED_TEST(PointerBarriersContract, mayBeToldToWatchNothingFromItsCallback)
{
    this->hands.trigger.onEntered = [this] {
        this->log << this->entered;
        this->hands.trigger.watch({});
    };
    this->watch();
    this->hands.push();
    EXPECT_TRUE(this->hears({this->entered}));
    this->hands.goAway();
    this->hands.push();
    EXPECT_TRUE(this->hears({this->entered}));
}

TYPED_TEST(PointerBarriersContract, worksWithoutCallbacks)
{
    this->hands.trigger.onEntered = {};
    this->hands.trigger.onLeft = {};
    this->watch();
    this->hands.push();
    this->hands.goAway();
    EXPECT_TRUE(this->hears({}));
}

TEST_F(X11PointerBarriersTest, theRestOfTheEdgeIsNotWatched)
{
    watch();
    // One pixel beside the stretch, and the stretch's last one.
    pointer().moveTo({905 + 2, 200});
    pointer().moveBy({0, -400});
    EXPECT_TRUE(hears({}));
    pointer().moveTo({905, 200});
    pointer().moveBy({0, -400});
    EXPECT_TRUE(hears({entered}));
}

TEST_F(X11PointerBarriersTest, slidingAlongTheEdgeOutOfTheStretchIsLeaving)
{
    watch();
    pointer().moveBy({0, -400});
    ASSERT_TRUE(hears({entered}));
    pointer().moveBy({400, 0});
    EXPECT_TRUE(hears({entered, left}));
}

TEST_F(X11PointerBarriersTest, theBarrierHoldsThePointerUpNowhere)
{
    watch();
    pointer().moveBy({0, -400});
    EXPECT_EQ(display().server.pointerPosition(), QPoint(756, 0));
    pointer().moveBy({100, 0});
    EXPECT_EQ(display().server.pointerPosition(), QPoint(856, 0));
    pointer().moveBy({-300, 0});
    EXPECT_EQ(display().server.pointerPosition(), QPoint(556, 0));
    pointer().moveBy({200, 3});
    EXPECT_EQ(display().server.pointerPosition(), QPoint(756, 3));
}

TEST_F(X11PointerBarriersTest, aPointerWithAButtonHeldIsNotThere)
{
    // The window manager has no menu for it.
    constexpr std::uint8_t sideButton = 9;
    watch();
    pointer().press(sideButton);
    pointer().moveBy({0, -400});
    EXPECT_TRUE(hears({}));
    pointer().release(sideButton);
    EXPECT_TRUE(hears({}));
    // Whoever goes on pushing after that means it.
    pointer().moveBy({0, -5});
    EXPECT_TRUE(hears({entered}));
}

TEST_F(X11PointerBarriersTest, aPointerThatAnotherProgramHoldsIsNotThere)
{
    watch();
    // As a menu that is open does.
    auto *const menu = display().server.connection();
    std::free(xcb_grab_pointer_reply(menu,
                                     xcb_grab_pointer(menu, 0, display().server.root(),
                                                      XCB_EVENT_MASK_BUTTON_RELEASE,
                                                      XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC,
                                                      e2e::noWindow, e2e::noAtom, XCB_CURRENT_TIME),
                                     nullptr));
    pointer().moveBy({0, -400});
    EXPECT_TRUE(hears({}));
    xcb_ungrab_pointer(menu, XCB_CURRENT_TIME);
    xcb_flush(menu);
}

TEST_F(X11PointerBarriersTest, anEdgeThatAnotherScreenContinuesIsOpen)
{
    // The lower half of the server's screen is a screen of its own.
    const auto lower = screenAt(hands.screens, {0, 491, 1512, 491});
    hands.trigger.watch({{lower, 606, stretchWidth}});
    settle();
    pointer().moveTo({756, 600});
    pointer().moveBy({0, -200});
    EXPECT_EQ(display().server.pointerPosition(), QPoint(756, 400));
    EXPECT_TRUE(hears({}));
}

TEST_F(X11PointerBarriersTest, aPointerThatMovesElsewhereIsNoEvent)
{
    watch();
    pointer().moveTo({100, 500});
    settle();
    int heard = 0;
    const auto listener = hands.connection.addListener([&](const auto &) { ++heard; });
    for (int i = 0; i < 500; ++i)
        pointer().moveBy({i % 2 == 0 ? 3 : -2, i % 3 == 0 ? 4 : -2});
    // Along the watched edge, beside the stretch.
    pointer().moveTo({100, 0});
    for (int i = 0; i < 100; ++i)
        pointer().moveBy({2, -1});
    settle();
    EXPECT_EQ(heard, 0);
}

TEST_F(X11PointerBarriersTest, isGoneWithItsOwner)
{
    {
        X11PointerBarriers second(hands.connection, hands.screens);
        second.onEntered = [this] { log << QStringLiteral("second"); };
        second.watch({middle()});
        settle();
    }
    pointer().moveBy({0, -400});
    EXPECT_TRUE(hears({}));
}

TEST(X11PointerBarrierLines, areInPixelsOfTheScreen)
{
    FakeScreens screens;
    const auto screen = screenAt(screens, {1000, 200, 1500, 900}, 1.5);
    using Line = X11PointerBarriers::Line;
    EXPECT_EQ(X11PointerBarriers::outerLines({{screen, 300, 200}}, screens.screens()),
              (std::vector<Line>{{1450, 1749, 200}}));
    // Never onto a neighbour.
    EXPECT_EQ(X11PointerBarriers::outerLines({{screen, -50, 2000}}, screens.screens()),
              (std::vector<Line>{{1000, 2499, 200}}));
}

TEST(X11PointerBarrierLines, leaveOutWhatAScreenAboveContinues)
{
    FakeScreens screens;
    const auto lower = screenAt(screens, {0, 1000, 1000, 800});
    const auto upper = screenAt(screens, {400, 0, 200, 1000});
    using Line = X11PointerBarriers::Line;
    const std::vector<EdgeStretch> stretches = {{lower, 300, 400}};
    EXPECT_EQ(X11PointerBarriers::outerLines(stretches, screens.screens()),
              (std::vector<Line>{{300, 399, 1000}, {600, 699, 1000}}));
    // Its height may have been rounded.
    for (const int height : {1000, 999, 1001}) {
        upper->nativeFrame = {0, 0, 1000, height};
        EXPECT_EQ(X11PointerBarriers::outerLines(stretches, screens.screens()),
                  std::vector<Line>());
    }
    // Beside it, or with a gap between them, it continues nothing.
    for (const QRect beside : {QRect(700, 0, 300, 1000), QRect(0, 0, 300, 1000),
                               QRect(0, 0, 1000, 990), QRect(0, 1800, 1000, 500)}) {
        upper->nativeFrame = beside;
        EXPECT_EQ(X11PointerBarriers::outerLines(stretches, screens.screens()),
                  (std::vector<Line>{{300, 699, 1000}}));
    }
}

} // namespace corvane::test
