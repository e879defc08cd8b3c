#include "platform/desktop/screens.h"
#include "platform/display.h"
#include "platform/x11/windows/x11_full_screen_windows.h"

#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

class X11FullScreenWindowsTest : public testing::Test {
protected:
    X11FullScreenWindowsTest() { whole.nativeFrame = QRect({0, 0}, display.server.size()); }

    bool isCovered(const Screen &screen) const { return windows.isCovered(screen); }
    /// The window manager has seen to it once the window has its place.
    static bool showAt(QWidget &window, const QRect &place)
    {
        window.setGeometry(place);
        window.show();
        return eventually([&] { return window.windowHandle()->isExposed(); });
    }

    X11Connection connection;
    X11FullScreenWindows windows{connection};
    Display display;
    Screen whole;
};

/// No window manager manages it.
class UnmanagedWindow : public QWidget {
public:
    explicit UnmanagedWindow(Qt::WindowFlags more = {})
        : QWidget(nullptr, Qt::X11BypassWindowManagerHint | more)
    {
    }
};

} // namespace

TEST_F(X11FullScreenWindowsTest, anEmptyDesktopIsNotCovered)
{
    EXPECT_FALSE(isCovered(whole));
}

TEST_F(X11FullScreenWindowsTest, aFullScreenWindowCoversItsScreenUntilItIsNoneAnyMore)
{
    QWidget window;
    window.showFullScreen();
    EXPECT_TRUE(eventually([&] { return isCovered(whole); }));
    window.showNormal();
    EXPECT_TRUE(eventually([&] { return !isCovered(whole); }));
}

TEST_F(X11FullScreenWindowsTest, aMaximisedWindowIsNone)
{
    QWidget window;
    window.setWindowFlag(Qt::FramelessWindowHint);
    window.showMaximized();
    ASSERT_TRUE(eventually([&] {
        const auto facts = display.server.facts(static_cast<xcb_window_t>(window.winId()));
        return facts && facts->isViewable && facts->frame.size() == display.server.size();
    }));
    settle();
    EXPECT_FALSE(isCovered(whole));
}

TEST_F(X11FullScreenWindowsTest, somethingSmallInFrontOfAFullScreenWindowHidesItNot)
{
    QWidget film;
    film.showFullScreen();
    ASSERT_TRUE(eventually([&] { return isCovered(whole) && film.isActiveWindow(); }));
    UnmanagedWindow notification;
    ASSERT_TRUE(showAt(notification, {600, 0, 300, 60}));
    settle();
    EXPECT_TRUE(isCovered(whole));
}

TEST_F(X11FullScreenWindowsTest, anUnmanagedWindowCoversAScreenThatItFills)
{
    UnmanagedWindow game;
    ASSERT_TRUE(showAt(game, {0, 0, 756, 982}));
    EXPECT_FALSE(isCovered(whole));
    Screen left;
    left.nativeFrame = {0, 0, 756, 982};
    EXPECT_TRUE(isCovered(left));
    Screen right;
    right.nativeFrame = {756, 0, 756, 982};
    EXPECT_FALSE(isCovered(right));
}

TEST_F(X11FullScreenWindowsTest, aScreensSizeMayBeAPixelLargerThanItIsButItsPlaceIsExact)
{
    for (const QRect &almost : {QRect(0, 0, 1511, 982), QRect(0, 0, 1512, 981)}) {
        UnmanagedWindow game;
        ASSERT_TRUE(showAt(game, almost));
        EXPECT_TRUE(isCovered(whole)) << almost.width();
    }
    for (const QRect &partial :
         {QRect(0, 0, 1510, 982), QRect(0, 0, 1512, 980), QRect(1, 0, 1511, 982)}) {
        UnmanagedWindow game;
        ASSERT_TRUE(showAt(game, partial));
        EXPECT_FALSE(isCovered(whole)) << partial.width();
    }
}

TEST_F(X11FullScreenWindowsTest, whatTakesNoClicksAndWhatIsTheDesktopCoverNothing)
{
    UnmanagedWindow overlay(Qt::WindowTransparentForInput);
    ASSERT_TRUE(showAt(overlay, whole.nativeFrame));
    EXPECT_FALSE(isCovered(whole));
    overlay.hide();
    UnmanagedWindow wallpaper;
    ASSERT_TRUE(showAt(wallpaper, whole.nativeFrame));
    EXPECT_TRUE(isCovered(whole));
    const xcb_atom_t desktop = display.server.atom("_NET_WM_WINDOW_TYPE_DESKTOP");
    xcb_change_property(display.server.connection(), XCB_PROP_MODE_REPLACE,
                        static_cast<xcb_window_t>(wallpaper.winId()),
                        display.server.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &desktop);
    // The answer says that it is set.
    display.server.focusedWindow();
    EXPECT_FALSE(isCovered(whole));
}

TEST_F(X11FullScreenWindowsTest, whatWindowManagersKeepBelowAllOthersCoversNothing)
{
    auto *const other = display.server.connection();
    const xcb_window_t guard = xcb_generate_id(other);
    const std::uint32_t unmanaged = 1;
    xcb_create_window(other, XCB_COPY_FROM_PARENT, guard, display.server.root(), 0, 0, 1512, 982, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT,
                      &unmanaged);
    xcb_map_window(other, guard);
    ASSERT_TRUE(eventually([&] {
        const auto facts = display.server.facts(guard);
        return facts && facts->isViewable;
    }));
    EXPECT_FALSE(isCovered(whole));
    xcb_destroy_window(other, guard);
    xcb_flush(other);
}

TEST_F(X11FullScreenWindowsTest, anOddStateOfAStrangersWindowIsNone)
{
    UnmanagedWindow window;
    ASSERT_TRUE(showAt(window, {0, 0, 1512, 300}));
    auto *const other = display.server.connection();
    const auto id = static_cast<xcb_window_t>(window.winId());
    const xcb_atom_t fullScreen = display.server.atom("_NET_WM_STATE_FULLSCREEN");
    // Another type, another format, and very many.
    xcb_change_property(other, XCB_PROP_MODE_REPLACE, id, display.server.atom("_NET_WM_STATE"),
                        XCB_ATOM_CARDINAL, 32, 1, &fullScreen);
    display.server.focusedWindow();
    EXPECT_FALSE(isCovered(whole));
    xcb_change_property(other, XCB_PROP_MODE_REPLACE, id, display.server.atom("_NET_WM_STATE"),
                        XCB_ATOM_ATOM, 8, 4, &fullScreen);
    display.server.focusedWindow();
    EXPECT_FALSE(isCovered(whole));
    const std::vector<xcb_atom_t> many(60000, XCB_ATOM_STRING);
    xcb_change_property(other, XCB_PROP_MODE_REPLACE, id, display.server.atom("_NET_WM_STATE"),
                        XCB_ATOM_ATOM, 32, static_cast<std::uint32_t>(many.size()), many.data());
    display.server.focusedWindow();
    EXPECT_FALSE(isCovered(whole));
}

} // namespace corvane::test
