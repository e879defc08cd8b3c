#include "fakes/fake_screens.h"
#include "platform/base/geometry.h"
#include "platform/display.h"
#include "platform/managed_window.h"
#include "platform/qt/base/qt_main_queue.h"
#include "platform/qt/desktop/qt_geometry.h"
#include "platform/qt/desktop/qt_keyboard.h"
#include "platform/qt/desktop/qt_screens.h"
#include "platform/x11/pointer/x11_pointer.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace corvane::test {

namespace {

struct FakeDisplays {
    FakeScreens screens;
    std::shared_ptr<Screen> attached = screens.attach(QRectF(0, 0, 1512, 982));
    std::shared_ptr<Screen> second;

    void resize(int width, int height)
    {
        attached->frame = {0, 0, double(width), double(height)};
        screens.notifyChanges();
    }
    void split()
    {
        attached->frame = {0, 0, 700, 982};
        second = screens.attach(QRectF(700, 0, 812, 982));
        screens.notifyChanges();
    }
    void unite()
    {
        screens.detach(second);
        resize(1512, 982);
    }
    bool until(const std::function<bool()> &condition) { return condition(); }
};

struct RealDisplays {
    QtMainQueue queue;
    QtScreens screens{queue};
    bool isNamed = false;
    bool isSplit = false;

    ~RealDisplays()
    {
        unite();
        eventually([&] {
            return screens.screens().size() == 1
                && screens.mainScreen()->frame.size() == QSizeF(1512, 982);
        });
    }
    static void xrandr(const QByteArray &arguments)
    {
        QProcess tool;
        tool.start(QStringLiteral("xrandr"),
                   QString::fromLatin1(arguments).split(QLatin1Char(' ')));
        EXPECT_TRUE(tool.waitForFinished() && tool.exitCode() == 0);
    }
    /// The server's screen keeps its size; what the desktop takes for it is replaced.
    void resize(int width, int height)
    {
        isNamed = true;
        xrandr("--setmonitor left " + QByteArray::number(width) + "/300x"
               + QByteArray::number(height) + "/200+0+0 screen");
    }
    /// Cuts the server's one screen into two monitors.
    void split()
    {
        isNamed = isSplit = true;
        xrandr("--setmonitor left 700/200x982/260+0+0 screen");
        xrandr("--setmonitor right 812/200x982/260+700+0 none");
    }
    void unite()
    {
        if (std::exchange(isSplit, false))
            xrandr("--delmonitor right");
        if (std::exchange(isNamed, false))
            xrandr("--delmonitor left");
    }
    bool until(const std::function<bool()> &condition) { return eventually(condition); }
};

template<typename Displays>
class ScreensContract : public testing::Test {
protected:
    Displays displays;
    Screens &screens = displays.screens;
};

using AllDisplays = testing::Types<FakeDisplays, RealDisplays>;
TYPED_TEST_SUITE(ScreensContract, AllDisplays);

} // namespace

TYPED_TEST(ScreensContract, thePrimaryScreenStandsAtTheOrigin)
{
    ASSERT_EQ(this->screens.screens().size(), 1U);
    const ScreenPointer screen = this->screens.screens().front();
    EXPECT_EQ(screen->frame, QRectF(0, 0, 1512, 982));
    EXPECT_EQ(screen->availableFrame, screen->frame) << "without docks and panels";
    EXPECT_EQ(screen->backingScaleFactor, 1);
    EXPECT_GE(screen->refreshRate, 1);
    EXPECT_EQ(screen->safeAreaInsets.top, 0);
    EXPECT_EQ(this->screens.mainScreen(), screen);
}

TYPED_TEST(ScreensContract, aScreenIsTheSameObjectEachTime)
{
    EXPECT_EQ(this->screens.screens().front(), this->screens.screens().front());
    EXPECT_EQ(this->screens.mainScreen(), this->screens.mainScreen());
}

TYPED_TEST(ScreensContract, aScreenThatComesIsThereAndGoesAgain)
{
    const QRectF left(0, 0, 700, 982);
    const QRectF right(700, 0, 812, 982);
    this->displays.split();
    ASSERT_TRUE(this->displays.until([&] {
        const auto attached = this->screens.screens();
        return attached.size() == 2 && attached[0]->frame == left && attached[1]->frame == right;
    }));
    this->displays.unite();
    EXPECT_TRUE(this->displays.until([&] {
        const auto attached = this->screens.screens();
        return attached.size() == 1 && attached[0]->frame == QRectF(0, 0, 1512, 982);
    }));
    EXPECT_EQ(this->screens.mainScreen(), this->screens.screens().front());
}

TYPED_TEST(ScreensContract, aChangeIsToldOnceAndIsThereByThen)
{
    std::vector<QSizeF> sizes;
    this->screens.observeChanges(
        [&] { sizes.push_back(this->screens.mainScreen()->frame.size()); });
    this->displays.resize(1200, 800);
    EXPECT_TRUE(this->displays.until([&] { return !sizes.empty(); }));
    settle();
    EXPECT_EQ(sizes, std::vector{QSizeF(1200, 800)});
}

TEST(QtScreens, knowWhatADockLeavesFree)
{
    const Display display;
    RealDisplays displays;
    const auto free = [&] { return displays.screens.mainScreen()->availableFrame; };
    const QRectF whole(0, 0, 1512, 982);
    {
        const ManagedWindow dock({0, 0, 1512, 40});
        const std::array<std::uint32_t, 4> atTheTop{0, 0, 40, 0};
        xcb_change_property(display.server.connection(), XCB_PROP_MODE_REPLACE, dock.id(),
                            display.server.atom("_NET_WM_STRUT"), XCB_ATOM_CARDINAL, 32,
                            atTheTop.size(), atTheTop.data());
        xcb_flush(display.server.connection());
        EXPECT_TRUE(eventually([&] { return free() == whole.adjusted(0, 0, 0, -40); }));
    }
    EXPECT_TRUE(eventually([&] { return free() == whole; }));
}

TEST(QtScreens, tellWhichPixelsOfTheServerTheyShow)
{
    RealDisplays displays;
    displays.split();
    ASSERT_TRUE(eventually([&] { return displays.screens.screens().size() == 2; }));
    const auto attached = displays.screens.screens();
    EXPECT_EQ(attached[0]->nativeFrame, QRect(0, 0, 700, 982));
    EXPECT_EQ(attached[1]->nativeFrame, QRect(700, 0, 812, 982));
}

TEST(QtGeometry, isTurnedOverAndBack)
{
    EXPECT_EQ(qt_geometry::primaryHeight(), 982);
    EXPECT_EQ(qt_geometry::toGlobal(QPointF(10, 0)), QPointF(10, 982));
    EXPECT_EQ(qt_geometry::toGlobal(QRectF(10, 20, 30, 40)), QRectF(10, 922, 30, 40));
    EXPECT_EQ(qt_geometry::toQt({10, 922, 30, 40}), QRect(10, 20, 30, 40));
    // Fractions go to whole points, the size is kept.
    EXPECT_EQ(qt_geometry::toQt({10.5, 922.4, 30, 40}), QRect(11, 20, 30, 40));
    // A screen below the primary one.
    EXPECT_EQ(qt_geometry::toQt({0, -100, 30, 100}), QRect(0, 982, 30, 100));
    EXPECT_EQ(qt_geometry::toQt({1e300, -1e300, 1e300, 0}).height(), 1);
}

TEST(X11Pointer, tellsTheMiddleOfThePixel)
{
    Display display;
    RealDisplays displays;
    X11Connection connection;
    const X11Pointer pointer(connection, displays.screens);
    display.hands.moveTo({30, 0});
    EXPECT_EQ(pointer.location(), QPointF(30.5, 981.5));
    display.hands.moveTo({1511, 981});
    EXPECT_EQ(pointer.location(), QPointF(1511.5, 0.5));
}

TEST(X11Pointer, eachPixelLiesOnTheScreenThatShowsItAtEveryScale)
{
    // As the toolkit has them: a scale shrinks a screen's size, and leaves its place.
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        FakeScreens screens;
        for (const int left : {0, 1366}) {
            const QSize points = (QSizeF(1366, 768) / scale).toSize();
            const auto screen = screens.attach(
                QRectF(left, 768 - points.height(), points.width(), points.height()));
            screen->backingScaleFactor = scale;
            screen->nativeFrame = {QPoint(left, 0), (QSizeF(points) * scale).toSize()};
        }
        const auto attached = screens.screens();
        for (const int y : {0, 1, 300, 766, 767}) {
            for (const int x : {0, 1, 683, 1364, 1365, 1366, 1367, 2000, 2730, 2731}) {
                const auto place = X11Pointer::locationOf({x, y}, attached);
                ASSERT_TRUE(place);
                EXPECT_EQ(contains(attached[0]->frame, *place), x < 1366)
                    << scale << ' ' << x << ' ' << y;
                EXPECT_EQ(contains(attached[1]->frame, *place), x >= 1366)
                    << scale << ' ' << x << ' ' << y;
            }
        }
    }
}

TEST(X11Pointer, screensOfAnySizesShareNoPixel)
{
    struct Pair {
        QRect first;
        QRect second;
        QPoint onSecond;
    };
    for (const Pair &pair : {Pair{{0, 0, 2000, 768}, {0, 768, 1000, 768}, {500, 768}},
                             Pair{{0, 0, 1000, 768}, {0, 768, 2000, 768}, {500, 768}},
                             Pair{{0, 0, 1366, 1200}, {1366, 0, 1366, 600}, {1366, 300}},
                             Pair{{0, 0, 1366, 600}, {1366, 0, 1366, 1200}, {1366, 300}}}) {
        FakeScreens screens;
        for (const QRect &native : {pair.first, pair.second}) {
            const double bottom = pair.first.height() - native.bottom() - 1;
            const auto screen
                = screens.attach(QRectF(native.x(), bottom, native.width(), native.height()));
            screen->nativeFrame = native;
        }
        const auto attached = screens.screens();
        const auto place = X11Pointer::locationOf(pair.onSecond, attached);
        ASSERT_TRUE(place);
        EXPECT_TRUE(contains(attached[1]->frame, *place)) << pair.first.width();
    }
}

TEST(X11Pointer, aPixelOfNoScreenLiesOnNone)
{
    FakeScreens screens;
    EXPECT_FALSE(X11Pointer::locationOf({5, 5}, screens.screens()));
    const auto screen = screens.attach(QRectF(0, 0, 700, 982));
    screen->nativeFrame = {0, 0, 700, 982};
    EXPECT_EQ(X11Pointer::locationOf({800, 5}, screens.screens()), QPointF(800.5, 976.5));
}

TEST(X11Pointer, withoutAServerThereIsNone)
{
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":54321");
    X11Connection connection;
    qputenv("DISPLAY", display);
    const FakeScreens screens;
    EXPECT_FALSE(X11Pointer(connection, screens).location());
}

TEST(QtKeyboard, tellsTheModifiersThatAreHeld)
{
    Display display;
    const QtKeyboard keyboard;
    EXPECT_EQ(keyboard.currentModifiers(), Modifiers());
    display.hands.keyDown(e2e::keys::shift);
    EXPECT_TRUE(eventually([&] { return keyboard.currentModifiers() == Modifier::Shift; }));
    display.hands.keyUp(e2e::keys::shift);
    EXPECT_TRUE(eventually([&] { return keyboard.currentModifiers() == Modifiers(); }));
}

} // namespace corvane::test
