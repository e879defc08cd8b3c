// What a compositor is asked for panels, strips and pictures under the pointer, on an output with
// two pixels to a point.

#include "e2e/desktop/eventually.h"
#include "platform/desktop/screens.h"
#include "platform/wayland/base/wayland_connection.h"
#include "platform/wayland/base/wayland_globals.h"
#include "platform/wayland/drags/catcher_services.h"
#include "platform/wayland/drags/drag_icon.h"
#include "platform/wayland/windows/layer_panel_surface.h"
#include "platform/wayland/windows/layer_strip_surface.h"
#include "wayland/fake_compositor.h"
#include "wayland/shown_panel.h"

#include <gtest/gtest.h>
#include <wayland-client.h>

namespace corvane::test {

namespace {

using e2e::eventually;

struct PanelsInWayland : testing::Test {
    WaylandConnection connection;
    LayerPanelSurface surface{connection};
};

constexpr std::uint32_t top = 2;
constexpr std::uint32_t overlay = 3;
constexpr std::int32_t whateverOthersKeepFree = -1;

} // namespace

TEST_F(PanelsInWayland, aPanelIsAboveWindowsThatFillTheScreenAndAtItsVeryEdge)
{
    const ShownPanel panel(surface);
    const auto shown = panel.seen();
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->layer, overlay);
    EXPECT_EQ(shown->zone, whateverOthersKeepFree);
    EXPECT_EQ(QRect(shown->margin, shown->size), surface.spaceOf(panel.window));
    EXPECT_EQ(shown->buffer, panel.window.size() * FakeCompositor::scale);
}

TEST_F(PanelsInWayland, aStripIsBelowWindowsThatFillTheScreenAndAtItsVeryEdge)
{
    LayerStripSurface strips(connection);
    const auto strip = strips.show(*ShownPanel::screen(), QRect(100, 0, 300, 3));
    ASSERT_TRUE(eventually([] { return compositor().shown().size() == 1; }));
    const auto shown = compositor().shown().first();
    EXPECT_EQ(shown.layer, top);
    EXPECT_EQ(shown.zone, whateverOthersKeepFree);
}

// Nothing is painted meanwhile, and clicks go where they should all the same.
TEST_F(PanelsInWayland, thePartThatTakesClicksIsToldAtOnceAndInPoints)
{
    ShownPanel panel(surface);
    const QRect body(160, 0, 292, 56);
    panel.takeClicks(body);
    EXPECT_TRUE(eventually([&] { return panel.seen()->input == QRegion(body); }));
}

TEST_F(PanelsInWayland, aPictureUnderThePointerIsAsLargeAsItIsOnTheShelf)
{
    CatcherServices services;
    ASSERT_TRUE(services.areAll());
    QImage bitmap(80, 60, QImage::Format_ARGB32_Premultiplied);
    bitmap.fill(Qt::red);
    wl_subcompositor *subcompositor = nullptr;
    bindGlobals(services.connection.display(),
                {{&wl_subcompositor_interface, 1, placeOf(subcompositor)}});
    DragIcon icon({services.compositor, subcompositor, services.shm}, Image{bitmap, QSizeF(40, 30)},
                  FakeCompositor::scale);
    wl_subcompositor_destroy(subcompositor);
    icon.show({10, 5});
    services.connection.flush();
    // What hangs from the pointer, with nothing to be seen, and the picture as a part of it.
    ASSERT_TRUE(eventually([] { return compositor().loose().size() == 2; }));
    const auto whole = compositor().loose().first();
    EXPECT_EQ(whole.buffer, QSize(1, 1));
    EXPECT_EQ(whole.attachedAt, QPoint());
    EXPECT_EQ(whole.placeInWhole, std::nullopt);
    const auto picture = compositor().loose().last();
    EXPECT_EQ(picture.buffer, QSize(80, 60));
    EXPECT_EQ(picture.bufferScale, FakeCompositor::scale);
    EXPECT_EQ(picture.placeInWhole, QPoint(-10, -5));
}

} // namespace corvane::test
