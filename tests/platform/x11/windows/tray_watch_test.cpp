#include "platform/display.h"
#include "platform/x11/windows/x11_tray_watch.h"

#include <gtest/gtest.h>

namespace corvane::test {

TEST(X11TrayWatch, tellsOfATrayThatComesAndOfOneThatIsThereAlready)
{
    const Display display;
    auto *const panel = display.server.connection();
    const xcb_window_t tray = xcb_generate_id(panel);
    xcb_create_window(panel, XCB_COPY_FROM_PARENT, tray, display.server.root(), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    X11Connection connection;
    int trays = 0;
    X11TrayWatch watch(connection);
    watch.start([&trays] { ++trays; });
    EXPECT_EQ(trays, 0);
    xcb_set_selection_owner(panel, tray, display.server.atom("_NET_SYSTEM_TRAY_S0"),
                            XCB_CURRENT_TIME);
    xcb_flush(panel);
    EXPECT_TRUE(eventually([&trays] { return trays == 1; }));

    int traysAtOnce = 0;
    X11TrayWatch late(connection);
    late.start([&traysAtOnce] { ++traysAtOnce; });
    EXPECT_EQ(traysAtOnce, 1);
    xcb_destroy_window(panel, tray);
    xcb_flush(panel);
}

} // namespace corvane::test
