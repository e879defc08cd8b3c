// What an X server beside a session of another kind tells of drags.

#include "e2e/desktop/x_desktop.h"
#include "fakes/test_clock.h"
#include "platform/display.h"
#include "platform/x11/drags/xwayland_drags.h"
#include "platform/x11_client.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace corvane::test {

namespace {

/// The environment names another X server, or none, while this exists.
class OtherDisplay {
public:
    explicit OtherDisplay(const QByteArray &name)
        : m_usual(qgetenv("DISPLAY"))
    {
        qputenv("DISPLAY", name);
    }
    ~OtherDisplay() { qputenv("DISPLAY", m_usual); }
    OtherDisplay(const OtherDisplay &) = delete;
    OtherDisplay &operator=(const OtherDisplay &) = delete;

private:
    QByteArray m_usual;
};

struct XWaylandDragsTest : testing::Test {
    /// Windows that the X server shows, where nobody sees them.
    qsizetype outOfSight() const
    {
        const auto windows = display.server.windows();
        return std::ranges::count_if(windows, [](const e2e::WindowFacts &window) {
            return window.isViewable && window.isOverrideRedirect
                && window.frame == QRect(-1, -1, 1, 1);
        });
    }

    Display display;
    TestClock clock;
    int began = 0;
    int lost = 0;
};

} // namespace

TEST_F(XWaylandDragsTest, tellsOfEachDragThatBegins)
{
    XWaylandDrags drags(clock);
    drags.onBegan = [this] { ++began; };
    EXPECT_TRUE(drags.isWatching());
    DragSource source({{"text/plain", "text"}}, "XdndActionCopy");
    settle();
    EXPECT_EQ(began, 0);
    source.pickUp();
    EXPECT_TRUE(eventually([this] { return began == 1; }));
    source.putDown();
    source.pickUp();
    EXPECT_TRUE(eventually([this] { return began == 2; }));
}

TEST_F(XWaylandDragsTest, showsAWindowOutOfSightForAMomentAtItsBeginning)
{
    const auto before = outOfSight();
    const XWaylandDrags drags(clock);
    EXPECT_TRUE(eventually([&] { return outOfSight() == before + 1; }));
    clock.advance(XWaylandDrags::primingTime - 0.001);
    settle();
    EXPECT_EQ(outOfSight(), before + 1);
    clock.advance(0.001);
    EXPECT_TRUE(eventually([&] { return outOfSight() == before; }));
}

TEST_F(XWaylandDragsTest, doesNotWatchWithoutAnXServer)
{
    for (const char *name : {"", ":4711"}) {
        const OtherDisplay other(name);
        const XWaylandDrags drags(clock);
        EXPECT_FALSE(drags.isWatching()) << name;
        EXPECT_EQ(clock.pendingCount(), 0U) << name;
    }
}

TEST_F(XWaylandDragsTest, tellsThatTheXServerIsGone)
{
    e2e::XDesktop desktop(
        {.windowManager = e2e::WindowManager::Openbox, .compositor = e2e::Compositor::None});
    ASSERT_EQ(desktop.problem(), QString());
    const OtherDisplay other(desktop.environment().value(QStringLiteral("DISPLAY")).toLatin1());
    XWaylandDrags drags(clock);
    bool wasWatching = true;
    drags.onLost = [&] {
        ++lost;
        wasWatching = drags.isWatching();
    };
    EXPECT_TRUE(drags.isWatching());
    desktop.endServer();
    EXPECT_TRUE(eventually([this] { return lost == 1; }));
    EXPECT_FALSE(wasWatching);
    // What was put off has nowhere to go.
    clock.advance(XWaylandDrags::primingTime);
}

} // namespace corvane::test
