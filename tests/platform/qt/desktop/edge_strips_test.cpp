// What strips make of the events that they get.

#include "fakes/fake_screens.h"
#include "platform/desktop/strip_surface.h"
#include "platform/display.h"
#include "platform/qt/desktop/edge_strips.h"

#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>
#include <QStringList>
#include <QWindow>

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace corvane::test {

namespace {

class FakeStripSurface : public StripSurface {
public:
    bool isTruthful = true;

    bool tellsTrulyWhatEnters() const override { return isTruthful; }
    std::unique_ptr<QWindow> show(const Screen &screen, const QRect &area) override
    {
        if (screen.nativeFrame.x() > 4000)
            return nullptr;
        auto window = std::make_unique<QWindow>();
        window->setGeometry(area.translated(screen.nativeFrame.topLeft()));
        window->show();
        m_windows << window.get();
        return window;
    }
    QList<QWindow *> shown() const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QList<QWindow *> found;
        for (const QPointer<QWindow> &window : m_windows) {
            if (window)
                found << window;
        }
        return found;
    }

private:
    QList<QPointer<QWindow>> m_windows;
};

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
        strips.onDragLeft = [this] { log << QStringLiteral("drag left"); };
    }

    ScreenPointer attach(QPoint topLeft)
    {
        Screen values;
        values.nativeFrame = QRect(topLeft, QSize(1512, 982));
        values.frame = values.availableFrame = values.nativeFrame;
        return screens.attach(values);
    }
    QList<QWindow *> shown() const { return surface.shown(); }
    QRect area() const
    {
        const auto all = shown();
        return all.size() == 1 ? all.first()->geometry() : QRect();
    }
    void comeTo(QWindow &strip)
    {
        QMouseEvent move(QEvent::MouseMove, QPointF(), QPointF(), QPointF(), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&strip, &move);
    }
    void enter(QWindow &strip)
    {
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(&strip, &enter);
    }
    void leave(QWindow &strip)
    {
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&strip, &leave);
    }
    /// Whether it would take the drop.
    bool dragTo(QWindow &strip)
    {
        QDragEnterEvent enter({}, Qt::CopyAction, &contents, Qt::LeftButton, Qt::NoModifier);
        enter.accept();
        QCoreApplication::sendEvent(&strip, &enter);
        return enter.isAccepted();
    }
    static void dragAway(QWindow &strip)
    {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(&strip, &leave);
    }
    QStringList taken() { return std::exchange(log, {}); }

    QPoint origin = QGuiApplication::primaryScreen()->geometry().topLeft();
    FakeScreens screens;
    ScreenPointer screen = attach(origin);
    FakeStripSurface surface;
    EdgeStrips strips{surface, screens};
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
    QWindow &strip = *shown().first();
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

TEST_F(EdgeStripsTest, waitForAMoveWhereItIsNotTrueThatThePointerEnters)
{
    surface.isTruthful = false;
    strips.watch({{screen, 600, 312}});
    QWindow &strip = *shown().first();
    comeTo(strip);
    // As early as that it may have rested there before.
    EXPECT_FALSE(strips.isStillThere());
    EXPECT_TRUE(eventually([&] {
        enter(strip);
        EXPECT_FALSE(strips.isStillThere());
        comeTo(strip);
        return strips.isStillThere();
    }));
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
    QWindow &strip = *shown().first();
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
    const QPointer<QWindow> before(shown().first());
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
    QWindow &strip = *shown().first();
    dragTo(strip);
    dragAway(strip);
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(EdgeStripsTest, stayUntilWhatIsDraggedOverThemHasLeft)
{
    strips.watchDrags(true);
    QWindow &strip = *shown().first();
    dragTo(strip);
    strips.watchDrags(false);
    EXPECT_EQ(shown(), QList<QWindow *>{&strip});
    taken();
    dragTo(strip);
    EXPECT_EQ(taken(), QStringList());
    dragAway(strip);
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(EdgeStripsTest, tellThatWhatIsDraggedHasLeft)
{
    strips.watchDrags(true);
    QWindow &strip = *shown().first();
    dragTo(strip);
    taken();
    dragAway(strip);
    EXPECT_EQ(taken(), QStringList{QStringLiteral("drag left")});
}

TEST_F(EdgeStripsTest, endWithTheSessionWhateverIsDraggedOverThem)
{
    {
        EdgeStrips others(surface, screens);
        others.watchDrags(true);
        dragTo(*shown().first());
        others.watchDrags(false);
        EXPECT_EQ(shown().size(), 1);
    }
    EXPECT_TRUE(shown().isEmpty());
}

} // namespace corvane::test
