// What is dragged by other programs over panels of a Wayland session, as a compositor tells of it.

#include "e2e/desktop/eventually.h"
#include "platform/desktop/drop_support.h"
#include "platform/qt/base/qt_main_queue.h"
#include "platform/wayland/base/wayland_connection.h"
#include "platform/wayland/drags/wayland_drop_support.h"
#include "platform/wayland/windows/layer_panel_surface.h"
#include "wayland/fake_compositor.h"
#include "wayland/shown_panel.h"

#include <QDragEnterEvent>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace corvane::test {

namespace {

using e2e::eventually;

constexpr auto catchers = "corvane-drops";
constexpr QRect body(160, 0, 292, 56);

/// Takes everything.
struct GladReceiver : DropReceiver {
    bool needsAddresses(const QStringList &) const override { return false; }
    QStringList addressTypes(const QStringList &) const override { return {}; }
    bool takeDrop(std::shared_ptr<IncomingDrag> drop) override
    {
        dropped = std::move(drop);
        return true;
    }

    std::shared_ptr<IncomingDrag> dropped;
};

/// Says that the window takes what is dragged over it.
struct Welcome : QObject {
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove)
            event->accept();
        return event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
    }
};

struct DropsInWayland : testing::Test {
    DropsInWayland()
    {
        panel.takeClicks(body);
        panel.window.installEventFilter(&welcome);
        subscription = support.addReceiver(panel.window, receiver);
        support.onDropped = [this] { ++drops; };
        support.onPointer = [this] { ++pointers; };
    }

    /// The newest one's input, once it is there.
    static std::optional<QRegion> caughtAt()
    {
        const auto shown = compositor().shown(catchers);
        return shown.isEmpty() ? std::nullopt : shown.last().input;
    }
    void awaitCatcher()
    {
        support.expect();
        ASSERT_TRUE(eventually([] { return caughtAt() == QRegion(body); }));
    }
    void drag(const FakeCompositor::Drag &what = {})
    {
        ASSERT_NO_FATAL_FAILURE(awaitCatcher());
        ASSERT_TRUE(compositor().drag(catchers, body.center(), what));
    }
    void dragAndDrop(std::uint32_t action)
    {
        ASSERT_NO_FATAL_FAILURE(drag());
        ASSERT_TRUE(eventually([] { return compositor().answer().accepted == "text/plain"; }));
        compositor().tellAction(action);
        compositor().drop();
        ASSERT_TRUE(eventually([this] { return receiver.dropped != nullptr; }));
    }

    QtMainQueue queue;
    WaylandConnection connection;
    LayerPanelSurface panels{connection};
    WaylandDropSupport support{connection, queue, panels};
    ShownPanel panel{panels};
    Welcome welcome;
    GladReceiver receiver;
    Subscription subscription;
    int drops = 0;
    int pointers = 0;
};

} // namespace

TEST_F(DropsInWayland, whatIsDroppedIsToldOfAndHandedOn)
{
    ASSERT_NO_FATAL_FAILURE(dragAndDrop(FakeCompositor::copy));
    EXPECT_EQ(compositor().answer().actions, FakeCompositor::copy);
    EXPECT_EQ(drops, 1);
    EXPECT_EQ(receiver.dropped->types(), QStringList{QStringLiteral("text/plain")});
}

TEST_F(DropsInWayland, aCopyThatWasTakenIsFinished)
{
    ASSERT_NO_FATAL_FAILURE(dragAndDrop(FakeCompositor::copy));
    receiver.dropped->finish(true);
    EXPECT_TRUE(eventually([] { return compositor().answer().isGone; }));
    EXPECT_EQ(compositor().answer().finishes, 1);
}

// A compositor would end the program that does it.
TEST_F(DropsInWayland, whatTheCompositorTakesForNoCopyIsNotFinished)
{
    ASSERT_NO_FATAL_FAILURE(dragAndDrop(FakeCompositor::move));
    receiver.dropped->finish(true);
    EXPECT_TRUE(eventually([] { return compositor().answer().isGone; }));
    EXPECT_EQ(compositor().answer().finishes, 0);
}

TEST_F(DropsInWayland, aDragIsAnsweredAnewWhenItsActionsBecomeKnown)
{
    FakeCompositor::Drag what;
    what.sourceActions.reset();
    ASSERT_NO_FATAL_FAILURE(drag(what));
    ASSERT_TRUE(eventually([] { return compositor().answer().accepted == ""; }));
    compositor().tellSourceActions(FakeCompositor::copy | FakeCompositor::move);
    EXPECT_TRUE(eventually([] { return compositor().answer().accepted == "text/plain"; }));
    EXPECT_EQ(compositor().answer().actions, FakeCompositor::copy);
    compositor().tellSourceActions(FakeCompositor::move);
    EXPECT_TRUE(eventually([] { return compositor().answer().accepted == ""; }));
    EXPECT_EQ(compositor().answer().actions, 0U);
    compositor().leave();
}

TEST_F(DropsInWayland, whatIsDraggedIsCaughtWhereThePanelTakesClicks)
{
    ASSERT_NO_FATAL_FAILURE(awaitCatcher());
    const QRect larger = body.adjusted(-20, 0, 20, 30);
    panel.takeClicks(larger);
    panel.paint();
    EXPECT_TRUE(eventually([&] { return caughtAt() == QRegion(larger); }));
}

TEST_F(DropsInWayland, whatIsDraggedIsCaughtWhereThePanelHasGone)
{
    ASSERT_NO_FATAL_FAILURE(awaitCatcher());
    const QRect before = panels.spaceOf(panel.window);
    // Further than the room that it has aside.
    panel.placeAt(-400);
    panel.paint();
    const QRect now = panels.spaceOf(panel.window);
    ASSERT_NE(now.left(), before.left());
    EXPECT_TRUE(eventually([&] {
        const auto shown = compositor().shown(catchers);
        return shown.size() == 1 && QRect(shown.first().margin, shown.first().size) == now;
    }));
}

TEST_F(DropsInWayland, afterADropNothingIsCaughtAnyMore)
{
    ASSERT_NO_FATAL_FAILURE(dragAndDrop(FakeCompositor::copy));
    receiver.dropped->finish(true);
    EXPECT_TRUE(eventually([] { return compositor().shown(catchers).isEmpty(); }));
}

TEST_F(DropsInWayland, whereThePointerComesWithNothingNothingIsCaughtAnyMore)
{
    ASSERT_NO_FATAL_FAILURE(awaitCatcher());
    compositor().point(catchers);
    EXPECT_TRUE(eventually([] { return compositor().shown(catchers).isEmpty(); }));
    EXPECT_EQ(pointers, 1);
}

// The toolkit hears of it, and would stand still for it.
TEST_F(DropsInWayland, aDragThatNobodyToldOfIsCaughtFromItsComingOn)
{
    ASSERT_TRUE(compositor().drag("corvane", body.center(), {}));
    EXPECT_TRUE(eventually([] { return caughtAt() == QRegion(body); }));
    compositor().leave();
}

} // namespace corvane::test
