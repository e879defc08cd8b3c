// A window of ours comes forward in a Wayland session. That it asks for it is the same on every
// desktop; whether it is let is the compositor's decision.

#include "platform/display.h"
#include "platform/wayland/base/wayland_connection.h"
#include "platform/wayland/windows/layer_panel_surface.h"
#include "platform/wayland/windows/layer_window_activation.h"

#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

namespace corvane::test {

TEST(LayerWindowActivationTest, theWindowAsksForTheKeyboardThatThePanelsGiveUp)
{
    WaylandConnection connection;
    LayerPanelSurface panels(connection);
    LayerWindowActivation activation(panels);
    QWindow panel;
    panels.adopt(panel);
    QWidget window;
    QWidget other;
    window.show();
    other.show();
    ASSERT_TRUE(eventually([&] {
        other.activateWindow();
        return other.isActiveWindow();
    }));
    panels.giveKeyboard(WindowNumber{panel.winId()});

    activation.bringToFront(*window.windowHandle());
    EXPECT_EQ(panels.panelWithKeyboard(), WindowNumber::None);
    EXPECT_TRUE(eventually([&] { return window.isActiveWindow(); }));
}

} // namespace corvane::test
