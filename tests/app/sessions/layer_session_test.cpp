// How the parts of a session without a compositor, and without an X server beside it, work
// together.

#include "app/base/app_info.h"
#include "app/sessions/layer_session.h"
#include "fakes/fake_screens.h"
#include "fakes/test_clock.h"
#include "input/hot_key_center.h"
#include "platform/system/own_command.h"
#include "platform/wayland/windows/invisible_window.h"

#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>
#include <QStringList>

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace corvane::test {

namespace {

struct LayerSessionTest : testing::Test {
    LayerSessionTest()
    {
        qunsetenv("DISPLAY");
        // Nor is there a session bus.
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("XDG_RUNTIME_DIR", "/nowhere");
        session = std::make_unique<LayerSession>(SessionNeeds{clock, screens, {}});
        session->quiet.dragWatch.onDragBegan = [this] { log << QStringLiteral("began"); };
        session->quiet.dragWatch.onDragEnded = [this](DragEnd end) {
            log << (end == DragEnd::Seen ? QStringLiteral("seen") : QStringLiteral("assumed"));
        };
        session->quiet.dragWatch.start();
    }
    ScreenPointer attach(QPoint topLeft)
    {
        Screen values;
        values.nativeFrame = QRect(topLeft, QSize(800, 600));
        values.frame = values.availableFrame = values.nativeFrame;
        return screens.attach(values);
    }
    static QList<InvisibleWindow *> strips()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QList<InvisibleWindow *> found;
        for (QWindow *window : QGuiApplication::allWindows()) {
            auto *const strip = dynamic_cast<InvisibleWindow *>(window);
            if (strip && strip->height() == EdgeStrips::height)
                found << strip;
        }
        return found;
    }
    /// What covers a whole screen.
    static QPointer<InvisibleWindow> ground()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (QWindow *window : QGuiApplication::allWindows()) {
            auto *const ground = dynamic_cast<InvisibleWindow *>(window);
            if (ground && ground->size() == QGuiApplication::primaryScreen()->size())
                return ground;
        }
        return nullptr;
    }
    static void dragOver(InvisibleWindow &window)
    {
        const QMimeData contents;
        QDragEnterEvent enter({}, Qt::CopyAction, &contents, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &enter);
    }
    static void dragToTheEdge()
    {
        ASSERT_EQ(strips().size(), 1);
        dragOver(*strips().first());
    }
    static void pointAtTheEdge()
    {
        ASSERT_EQ(strips().size(), 1);
        QMouseEvent move(QEvent::MouseMove, QPointF(), QPointF(), QPointF(), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(strips().first(), &move);
    }
    QStringList taken() { return std::exchange(log, {}); }
    static QStringList words(const char *text)
    {
        return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }

    TestClock clock;
    FakeScreens screens;
    // Without a screen of the toolkit, so that no strip is hung there.
    ScreenPointer main = attach({9000, 0});
    ScreenPointer beside = attach(QGuiApplication::primaryScreen()->geometry().topLeft());
    std::unique_ptr<LayerSession> session;
    QStringList log;
};

} // namespace

TEST_F(LayerSessionTest, aDragIsNoticedAtTheEdgeWhereNobodyElseTellsOfIt)
{
    EXPECT_EQ(session->abilities.now().drags.extent, Drags::AtTheEdge);
    dragToTheEdge();
    EXPECT_EQ(taken(), words("began"));
}

TEST_F(LayerSessionTest, saysThatTheKeyThatKeepsAnItemHasToBeHeldBeforeTheDrag)
{
    EXPECT_EQ(session->abilities.now().keepingKey,
              (Ability<KeepingKey>{KeepingKey::BeforeTheDrag, Reason::KeptByDesktop}));
}

TEST_F(LayerSessionTest, theShelfOpensOnTheScreenWhoseEdgeThePointerOrADragCameTo)
{
    EXPECT_EQ(session->quiet.screenLocator.activeScreen(), main);
    dragToTheEdge();
    EXPECT_EQ(session->quiet.screenLocator.activeScreen(), beside);
    screens.detach(beside);
    EXPECT_EQ(session->quiet.screenLocator.activeScreen(), main);
    screens.detach(main);
    EXPECT_EQ(session->quiet.screenLocator.activeScreen(), nullptr);
}

TEST_F(LayerSessionTest, whoCannotAskWhereTheUserIsGoesByTheLastScreenAtOnce)
{
    bool isTold = false;
    session->quiet.screenLocator.locate([&] { isTold = true; });
    EXPECT_TRUE(isTold);
    EXPECT_EQ(session->quiet.screenLocator.activeScreen(), main);
}

TEST_F(LayerSessionTest, whereTheUserIsIsAskedOnceForAllWhoWaitAndToldInTheirOrder)
{
    LastSeenScreen &locator = session->quiet.screenLocator;
    int questions = 0;
    locator.ask = [&] { ++questions; };
    locator.locate([&] { log << QStringLiteral("first"); });
    locator.locate([&] { log << QStringLiteral("second"); });
    EXPECT_EQ(questions, 1);
    EXPECT_EQ(taken(), words(""));
    locator.told(beside);
    EXPECT_EQ(taken(), words("first second"));
    EXPECT_EQ(locator.activeScreen(), beside);
    locator.locate([&] { log << QStringLiteral("third"); });
    locator.told(nullptr);
    EXPECT_EQ(taken(), words("third"));
    EXPECT_EQ(locator.activeScreen(), beside);
    EXPECT_EQ(questions, 2);
}

TEST_F(LayerSessionTest, theShelfOpensOnTheScreenThatADragIsOn)
{
    session->xwaylandDrags.onBegan();
    ASSERT_TRUE(ground());
    EXPECT_EQ(taken(), words(""));
    dragOver(*ground());
    clock.advance(0);
    EXPECT_EQ(taken(), words("began"));
    EXPECT_EQ(session->quiet.screenLocator.activeScreen(), beside);
}

TEST_F(LayerSessionTest, whatFoundTheDragStaysUntilItHasLeft)
{
    session->xwaylandDrags.onBegan();
    ASSERT_TRUE(ground());
    dragOver(*ground());
    clock.advance(0);
    ASSERT_TRUE(ground());
    EXPECT_FALSE(ground()->mask().intersects(QRect({}, ground()->size())));
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(ground(), &leave);
    EXPECT_FALSE(ground());
}

TEST_F(LayerSessionTest, aDragThatRestsIsNotWaitedForLong)
{
    session->xwaylandDrags.onBegan();
    clock.advance(DragWhereabouts::patience * 0.9);
    EXPECT_EQ(taken(), words(""));
    clock.advance(DragWhereabouts::patience * 0.2);
    EXPECT_EQ(taken(), words("began"));
    EXPECT_EQ(session->quiet.screenLocator.activeScreen(), main);
    EXPECT_FALSE(ground());
}

TEST_F(LayerSessionTest, onTheOnlyScreenNothingIsLookedFor)
{
    screens.detach(main);
    session->xwaylandDrags.onBegan();
    EXPECT_EQ(taken(), words("began"));
    EXPECT_FALSE(ground());
}

TEST_F(LayerSessionTest, aPointerAtTheEdgeNamesTheScreenToo)
{
    pointAtTheEdge();
    EXPECT_EQ(session->quiet.screenLocator.activeScreen(), beside);
}

TEST_F(LayerSessionTest, theEndIsSeenWhereThePointerComesWithNothing)
{
    dragToTheEdge();
    taken();
    pointAtTheEdge();
    EXPECT_EQ(taken(), words("seen"));
    dragToTheEdge();
    taken();
    session->panels.surface.onPointer();
    EXPECT_EQ(taken(), words("seen"));
}

TEST_F(LayerSessionTest, theEndIsSeenWhereItIsLetGoOverAPanel)
{
    dragToTheEdge();
    session->quiet.dragWatch.overPanel(true);
    session->panels.surface.onDropped();
    session->quiet.dragWatch.overPanel(false);
    EXPECT_EQ(taken(), words("began"));
    clock.advance(TimedDragWatch::settleDelay);
    EXPECT_EQ(taken(), words("seen"));
}

TEST_F(LayerSessionTest, stripsAreForDragsOnlyWhereTheyAreNotToldOfOrMayGoOn)
{
    session->xwaylandDrags.onBegan();
    clock.advance(DragWhereabouts::patience);
    EXPECT_EQ(taken(), words("began"));
    EXPECT_EQ(strips().size(), 1);
    EXPECT_FALSE(session->quiet.mayDragGoOn());
    clock.advance(TimedDragWatch::patience);
    EXPECT_EQ(taken(), words("assumed"));
    EXPECT_TRUE(session->quiet.mayDragGoOn());
    session->panels.surface.onPointer();
    EXPECT_FALSE(session->quiet.mayDragGoOn());
}

// As long as its X server lasts a session like this one says that drags are noticed everywhere.
TEST_F(LayerSessionTest, saysSoWhereDragsAreNotToldOfAnyMore)
{
    session->quiet.setToldOfDrags(true);
    session->abilities.become(LayerSession::abilitiesWhere(true, false));
    ASSERT_TRUE(session->abilities.now().drags.isFull());
    session->xwaylandDrags.onLost();
    EXPECT_EQ(session->abilities.now().drags.extent, Drags::AtTheEdge);
    EXPECT_FALSE(session->quiet.isToldOfDrags());
}

TEST_F(LayerSessionTest, stripsAreHungAnewWhereTheScreensChange)
{
    ASSERT_EQ(strips().size(), 1);
    const QPointer<InvisibleWindow> before(strips().first());
    screens.notifyChanges();
    EXPECT_EQ(strips().size(), 1);
    EXPECT_TRUE(before.isNull());
    screens.detach(beside);
    screens.notifyChanges();
    EXPECT_TRUE(strips().isEmpty());
    attach(QGuiApplication::primaryScreen()->geometry().topLeft());
    screens.notifyChanges();
    EXPECT_EQ(strips().size(), 1);
}

TEST_F(LayerSessionTest, hotKeysAreCommandsWhereNoServiceTakesKeys)
{
    const auto outcomeOf = [&](HotKeyCenter::Binding binding) {
        return session->hotKeys.service
            .registerHotKey(KeyPosition::D, Shortcut::command,
                            {HotKeyCenter::signature, HotKeyCenter::idOf(binding)}, {})
            .outcome;
    };
    EXPECT_EQ(outcomeOf(HotKeyCenter::Binding::Shelf),
              ShortcutOutcome::setInDesktop(own_command::inShell()));
    EXPECT_EQ(outcomeOf(HotKeyCenter::Binding::ViewAll),
              ShortcutOutcome::setInDesktop(QStringLiteral("gapplication action %1 view-all")
                                                .arg(AppInfo::builtIn().applicationId())));
    EXPECT_EQ(session->abilities.now().shortcutChoice.extent, ShortcutChoice::InTheDesktop);
}

} // namespace corvane::test
