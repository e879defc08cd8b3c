// Strips at the top edge of an X server that may belong to a compositor.

#include "platform/display.h"
#include "platform/qt/base/qt_main_queue.h"
#include "platform/qt/desktop/qt_screens.h"
#include "platform/x11/base/x11_qt.h"
#include "platform/x11/windows/x11_strip_surface.h"

#include <QWindow>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

struct X11StripSurfaceTest : testing::Test {
    Display display;
    QtMainQueue queue;
    QtScreens screens{queue};
    X11Connection connection;
    X11StripSurface surface{connection};
};

} // namespace

TEST_F(X11StripSurfaceTest, aStripIsADockWhereItIsPlacedAndTakesNoKeyboard)
{
    const auto strip = surface.show(*screens.mainScreen(), {600, 0, 312, 3});
    ASSERT_TRUE(strip);
    const auto id = x11_qt::nativeWindow(*strip);
    ASSERT_TRUE(eventually([&] {
        const auto facts = display.server.facts(id);
        return facts && facts->isViewable && facts->frame == QRect(600, 0, 312, 3);
    }));
    EXPECT_EQ(display.server.windowProperty(id, "_NET_WM_WINDOW_TYPE"),
              display.server.atom("_NET_WM_WINDOW_TYPE_DOCK"));
    EXPECT_FALSE(display.server.facts(id)->isOverrideRedirect);
    settle();
    EXPECT_NE(display.server.focusedWindow(), id);
}

} // namespace corvane::test
