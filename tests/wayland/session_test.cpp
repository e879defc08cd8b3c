// How the parts of a Wayland session work together with its compositor.

#include "app/sessions/layer_session.h"
#include "e2e/desktop/eventually.h"
#include "platform/qt/base/qt_main_queue.h"
#include "platform/qt/desktop/qt_screens.h"
#include "wayland/fake_compositor.h"
#include "wayland/shown_panel.h"

#include <gtest/gtest.h>

#include <memory>

namespace corvane::test {

namespace {

using e2e::eventually;

struct Nobody : DropReceiver {
    bool needsAddresses(const QStringList &) const override { return false; }
    Subscription fetchEarly(std::shared_ptr<IncomingDrag>) override { return {}; }
    QStringList addressTypes(const QStringList &) const override { return {}; }
    bool takeDrop(std::shared_ptr<IncomingDrag>) override { return false; }
};

} // namespace

TEST(WaylandSessionParts, panelsAreReadyToCatchOnceADragIsNoticed)
{
    QtMainQueue queue;
    QtScreens screens(queue);
    LayerSession session({queue, screens, {}});
    ShownPanel panel(session.panels.surface);
    panel.takeClicks({160, 0, 292, 56});
    Nobody nobody;
    const auto receiving = session.dropSupport.addReceiver(panel.window, nobody);
    EXPECT_TRUE(compositor().shown("corvane-drops").isEmpty());
    session.quiet.noticed();
    EXPECT_TRUE(eventually([] { return compositor().shown("corvane-drops").size() == 1; }));
}

} // namespace corvane::test
