// What strips make of the events that they get. There is no compositor here to show them.

#include "fakes/fake_screens.h"
#include "platform/wayland/base/wayland_connection.h"
#include "platform/wayland/windows/edge_strip.h"
#include "platform/wayland/windows/edge_strips.h"

#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QScreen>
#include <QStringList>

#include <gtest/gtest.h>

#include <utility>

namespace corvane::test {

namespace {

struct EdgeStripsTest : testing::Test {
    EdgeStripsTest()
    {
        strips.onEntered = [this] { log << QStringLiteral("entered"); };
        strips.onLeft = [this] { log << QStringLiteral("left"); };
        strips.onPointer = [this](const ScreenPointer &at) {
            log << QStringLiteral("pointer");
            EXPECT_EQ(at, screen);
        };
        strips.onDragEntered = [this](const ScreenPointer &at, bool isOwn) {
            log << (isOwn ? QStringLiteral("own drag") : QStringLiteral("drag"));
            EXPECT_EQ(at, screen);
        };
    }

    ScreenPointer attach(QPoint topLeft)
    {
        Screen values;
        values.nativeFrame = QRect(topLeft, QSize(1512, 982));
        values.frame = values.availableFrame = values.nativeFrame;
        return screens.attach(values);
    }
    static QList<EdgeStrip *> shown()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QList<EdgeStrip *> found;
        for (QWindow *window : QGuiApplication::allWindows()) {
            if (auto *const strip = dynamic_cast<EdgeStrip *>(window))
                found << strip;
        }
        return found;
    }
    static QRect area()
    {
        const auto all = shown();
        return all.size() == 1 ? all.first()->geometry() : QRect();
    }
    void comeTo(EdgeStrip &strip)
    {
        QMouseEvent move(QEvent::MouseMove, QPointF(), QPointF(), QPointF(), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&strip, &move);
    }
    void leave(EdgeStrip &strip)
    {
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&strip, &leave);
    }
    /// Whether it would take the drop.
    bool dragTo(EdgeStrip &strip)
    {
        QDragEnterEvent enter({}, Qt::CopyAction, &contents, Qt::LeftButton, Qt::NoModifier);
        enter.accept();
        QCoreApplication::sendEvent(&strip, &enter);
        return enter.isAccepted();
    }
    static void dragAway(EdgeStrip &strip)
    {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(&strip, &leave);
    }
    QStringList taken() { return std::exchange(log, {}); }

    QPoint origin = QGuiApplication::primaryScreen()->geometry().topLeft();
    FakeScreens screens;
    ScreenPointer screen = attach(origin);
    WaylandConnection connection;
    EdgeStrips strips{connection, screens};
    QMimeData contents;
    QStringList log;
};

} // namespace

TEST_F(EdgeStripsTest, areThereOnlyWhileSomebodyWatches)
{
    EXPECT_TRUE(shown().isEmpty());
    strips.watch({{screen, 600, 312}});
    EXPECT_EQ(area(), QRect(origin + QPoint(600, 0), QSize(312, EdgeStrips::height)));
    strips.watch({});
    EXPECT_TRUE(shown().isEmpty());
    strips.watchDrags(true);
    EXPECT_EQ(area(), QRect(origin + QPoint(610, 0), QSize(292, EdgeStrips::height)));
    strips.watchDrags(false);
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(EdgeStripsTest, areOneForEachScreenAlsoWhereTwoThingsAreWatchedFor)
{
    strips.watch({{screen, 500, 512}});
    strips.watchDrags(true);
    EXPECT_EQ(area().width(), 512);
    strips.watch({});
    EXPECT_EQ(area().width(), 292);
}

TEST_F(EdgeStripsTest, leaveOutAScreenThatIsJustGoing)
{
    attach(origin + QPoint(5000, 0));
    strips.watchDrags(true);
    EXPECT_EQ(shown().size(), 1);
}

TEST_F(EdgeStripsTest, stayTheSameWhereTheSameIsWatched)
{
    strips.watch({{screen, 600, 312}});
    const auto before = shown();
    comeTo(*before.first());
    strips.watch({{screen, 600, 312}});
    EXPECT_EQ(shown(), before);
    EXPECT_TRUE(strips.isStillThere());
}

TEST_F(EdgeStripsTest, tellOnceThatThePointerCameAndThatItLeft)
{
    strips.watch({{screen, 600, 312}});
    EdgeStrip &strip = *shown().first();
    EXPECT_FALSE(strips.isStillThere());
    comeTo(strip);
    comeTo(strip);
    EXPECT_EQ(taken(), (QStringList{QStringLiteral("pointer"), QStringLiteral("entered")}));
    EXPECT_TRUE(strips.isStillThere());
    leave(strip);
    leave(strip);
    EXPECT_EQ(taken(), QStringList{QStringLiteral("left")});
    EXPECT_FALSE(strips.isStillThere());
}

TEST_F(EdgeStripsTest, summonNobodyWhereOnlyDragsAreWatchedFor)
{
    strips.watchDrags(true);
    comeTo(*shown().first());
    EXPECT_EQ(taken(), QStringList{QStringLiteral("pointer")});
}

TEST_F(EdgeStripsTest, tellOfWhatIsDraggedAndTakeNoDrop)
{
    strips.watchDrags(true);
    EXPECT_FALSE(dragTo(*shown().first()));
    EXPECT_EQ(taken(), QStringList{QStringLiteral("drag")});
    EXPECT_FALSE(strips.isStillThere());
}

TEST_F(EdgeStripsTest, tellNothingOnceTheyAreGone)
{
    strips.watch({{screen, 600, 312}});
    EdgeStrip &strip = *shown().first();
    comeTo(strip);
    taken();
    strips.watch({});
    // It is there still, as long as events are on their way to it.
    leave(strip);
    comeTo(strip);
    dragTo(strip);
    EXPECT_EQ(taken(), QStringList());
    EXPECT_FALSE(strips.isStillThere());
}

TEST_F(EdgeStripsTest, areMadeAnewWhereTheScreensChange)
{
    strips.watch({{screen, 600, 312}});
    const QPointer<EdgeStrip> before(shown().first());
    strips.renew();
    EXPECT_EQ(shown().size(), 1);
    EXPECT_TRUE(before.isNull());
}

TEST_F(EdgeStripsTest, mayBeReplacedByWhatTheyTell)
{
    strips.watch({{screen, 600, 312}});
    strips.onEntered = [this] { strips.watch({}); };
    comeTo(*shown().first());
    EXPECT_TRUE(shown().isEmpty());
    strips.watchDrags(true);
    strips.onDragEntered = [this](const ScreenPointer &, bool) { strips.watchDrags(false); };
    EdgeStrip &strip = *shown().first();
    dragTo(strip);
    dragAway(strip);
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(EdgeStripsTest, stayUntilWhatIsDraggedOverThemHasLeft)
{
    strips.watchDrags(true);
    EdgeStrip &strip = *shown().first();
    dragTo(strip);
    strips.watchDrags(false);
    EXPECT_EQ(shown(), QList<EdgeStrip *>{&strip});
    taken();
    dragTo(strip);
    EXPECT_EQ(taken(), QStringList());
    dragAway(strip);
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(EdgeStripsTest, endWithTheSessionWhateverIsDraggedOverThem)
{
    {
        EdgeStrips others(connection, screens);
        others.watchDrags(true);
        dragTo(*shown().first());
        others.watchDrags(false);
        EXPECT_EQ(shown().size(), 1);
    }
    EXPECT_TRUE(shown().isEmpty());
}

} // namespace corvane::test
