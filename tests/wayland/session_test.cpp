// How the parts of a Wayland session work together with its compositor.

#include "app/sessions/layer_session.h"
#include "e2e/desktop/eventually.h"
#include "platform/qt/base/qt_main_queue.h"
#include "platform/qt/desktop/qt_screens.h"
#include "platform/qt/desktop/qt_tip_window.h"
#include "wayland/fake_compositor.h"
#include "wayland/shown_panel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>

namespace corvane::test {

namespace {

using e2e::eventually;

struct Nobody : DropReceiver {
    bool needsAddresses(const QStringList &) const override { return false; }
    Subscription fetchEarly(std::shared_ptr<IncomingDrag>, std::function<void()>) override
    {
        return {};
    }
    QStringList addressTypes(const QStringList &) const override { return {}; }
    bool takeDrop(std::shared_ptr<IncomingDrag>) override { return false; }
};

} // namespace

TEST(WaylandSessionParts, aTipIsAboveEverythingAndTakesNothing)
{
    QtMainQueue queue;
    QtScreens screens(queue);
    LayerSession session({queue, screens, {}});
    QtTipWindow tip(session.panels.desktop());
    const auto seen = [] {
        // The strips at the screens' edges are not.
        constexpr std::uint32_t overlay = 3;
        const auto shown = compositor().shown();
        const auto found = std::ranges::find(shown, overlay, &FakeCompositor::Surface::layer);
        return found == shown.end() ? std::nullopt : std::optional(*found);
    };
    for (int i = 0; i < 2; ++i) {
        tip.show({.screen = ShownPanel::screen(), .fromTop = 80, .size = {100, 40}}, {});
        ASSERT_TRUE(eventually([&] { return seen().has_value(); }));
        const QRect tipItself(706, 80, 100, 40);
        EXPECT_TRUE(QRect(seen()->margin, seen()->size).contains(tipItself));
        ASSERT_TRUE(seen()->input);
        EXPECT_FALSE(seen()->input->intersects(QRect({}, seen()->size)));
        EXPECT_EQ(session.panels.surface.panelWithKeyboard(), WindowNumber::None);
        tip.hide();
        EXPECT_TRUE(eventually([&] { return !seen(); }));
    }
}

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

TEST(WaylandSessionParts, theScreenIsTheOneThatTheCompositorTakesForTheUsers)
{
    QtMainQueue queue;
    QtScreens screens(queue);
    FakeCompositor::Output second(compositor(), {FakeCompositor::screen.width(), 0});
    ASSERT_TRUE(eventually([&] { return screens.screens().size() == 2; }));
    LayerSession session({queue, screens, {}});
    ScreenLocator &locator = session.quiet.screenLocator;
    const auto located = [&] {
        bool isTold = false;
        locator.locate([&] { isTold = true; });
        EXPECT_FALSE(isTold);
        EXPECT_TRUE(eventually([&] { return isTold; }));
        return locator.activeScreen();
    };
    EXPECT_EQ(located(), screens.screens()[0]);
    second.becomeCurrent();
    EXPECT_EQ(located(), screens.screens()[1]);
    EXPECT_TRUE(eventually([] { return compositor().shown("corvane-probe").isEmpty(); }));
}

// Mirrored, for example.
TEST(WaylandSessionParts, screensInTheSamePlaceAreToldApart)
{
    QtMainQueue queue;
    QtScreens screens(queue);
    FakeCompositor::Output second(compositor(), {0, 0});
    ASSERT_TRUE(eventually([&] { return screens.screens().size() == 2; }));
    LayerSession session({queue, screens, {}});
    session.quiet.edgeStrips.watchDrags(true);
    std::set<std::size_t> withStrip;
    EXPECT_TRUE(eventually([&] {
        for (const auto &strip : compositor().shown())
            withStrip.insert(strip.output);
        return withStrip.size() == 2;
    }));
    EXPECT_TRUE(withStrip.contains(second.number()));

    second.becomeCurrent();
    bool isTold = false;
    session.quiet.screenLocator.locate([&] { isTold = true; });
    ASSERT_TRUE(eventually([&] { return isTold; }));
    EXPECT_EQ(session.quiet.screenLocator.activeScreen(), screens.screens()[1]);
}

} // namespace corvane::test
