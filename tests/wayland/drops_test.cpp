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
    Subscription fetchEarly(std::shared_ptr<IncomingDrag> drag, std::function<void()> done) override
    {
        early = drag;
        earlyIsOver = std::move(done);
        return Subscription([this] { early.reset(); });
    }
    QStringList addressTypes(const QStringList &) const override { return {}; }
    bool takeDrop(std::shared_ptr<IncomingDrag> drop) override
    {
        dropped = std::move(drop);
        return true;
    }

    std::shared_ptr<IncomingDrag> dropped;
    /// What is fetched early now.
    std::shared_ptr<IncomingDrag> early;
    std::function<void()> earlyIsOver;
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

    /// What is read of the dropped text, asked for once more, where the source sends that.
    std::optional<QByteArray> fetchedWith(const QByteArray &sent)
    {
        const qsizetype before = compositor().answer().asked.size();
        std::optional<QByteArray> arrived;
        receiver.dropped->fetch(
            type, 100,
            [&arrived](IncomingDrag::Outcome, const QByteArray &bytes) { arrived = bytes; });
        if (eventually([&] { return compositor().answer().asked.size() == before + 1; }))
            compositor().send(sent);
        eventually([&] { return arrived.has_value(); });
        return arrived;
    }

    const QString type = QStringLiteral("text/plain");
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

TEST_F(DropsInWayland, whatAProgramOfX11DragsIsFetchedWhileItIsOverThePanel)
{
    FakeCompositor::Drag what;
    ASSERT_NO_FATAL_FAILURE(drag(what));
    ASSERT_TRUE(eventually([] { return compositor().answer().accepted == "text/plain"; }));
    EXPECT_EQ(receiver.early, nullptr);
    compositor().leave();
    // Nothing is known of what its source allows.
    what.sourceActions = 0;
    ASSERT_NO_FATAL_FAILURE(drag(what));
    ASSERT_TRUE(eventually([this] { return receiver.early != nullptr; }));
    compositor().leave();
    EXPECT_TRUE(eventually([this] { return receiver.early == nullptr; }));
}

TEST_F(DropsInWayland, whatSeveralAskForAtATimeIsAskedForOnce)
{
    ASSERT_NO_FATAL_FAILURE(dragAndDrop(FakeCompositor::copy));
    QList<QByteArray> arrived;
    const auto fetch = [&](qsizetype most) {
        receiver.dropped->fetch(
            type, most, [&](IncomingDrag::Outcome, const QByteArray &bytes) { arrived << bytes; });
    };
    fetch(100);
    fetch(10);
    // More than was asked for.
    fetch(1000);
    ASSERT_TRUE(eventually([] { return compositor().answer().asked.size() == 2; }));
    compositor().send("a text");
    EXPECT_TRUE(eventually([&] { return arrived == QList<QByteArray>{"a text", "a text"}; }));
    compositor().send("another");
    EXPECT_TRUE(eventually([&] { return arrived.size() == 3; }));
    EXPECT_EQ(arrived.last(), "another");
}

TEST_F(DropsInWayland, whatHasArrivedIsNotAskedForAgain)
{
    ASSERT_NO_FATAL_FAILURE(dragAndDrop(FakeCompositor::copy));
    EXPECT_EQ(fetchedWith("a text"), "a text");
    std::optional<QByteArray> again;
    receiver.dropped->fetch(type, 100,
                            [&](IncomingDrag::Outcome, const QByteArray &bytes) { again = bytes; });
    EXPECT_TRUE(eventually([&] { return again == "a text"; }));
    EXPECT_EQ(compositor().answer().asked.size(), 1);
}

// It is also what is read where a source refuses because it does not recognise the question.
TEST_F(DropsInWayland, whereNothingAtAllHasArrivedItIsAskedForAgain)
{
    ASSERT_NO_FATAL_FAILURE(dragAndDrop(FakeCompositor::copy));
    EXPECT_EQ(fetchedWith(""), "");
    EXPECT_EQ(fetchedWith("a text"), "a text");
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
