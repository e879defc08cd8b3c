// How the parts of a session on a compositor's X server work together; here without that server.

#include "app/sessions/xwayland_session.h"
#include "fakes/fake_screens.h"
#include "fakes/test_clock.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QStringList>
#include <QWindow>

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace corvane::test {

namespace {

struct XWaylandSessionTest : testing::Test {
    XWaylandSessionTest()
    {
        qunsetenv("DISPLAY");
        // Nor is there a session bus.
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("XDG_RUNTIME_DIR", "/nowhere");
        session = std::make_unique<XWaylandSession>(SessionNeeds{clock, screens, {}});
        session->quiet.dragWatch.onDragBegan = [this] { log << QStringLiteral("began"); };
        session->quiet.dragWatch.onDragEnded = [this](DragEnd end) {
            log << (end == DragEnd::Seen ? QStringLiteral("seen") : QStringLiteral("assumed"));
        };
        session->quiet.dragWatch.start();
    }
    QStringList taken() { return std::exchange(log, {}); }
    static QStringList words(const char *text)
    {
        return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }
    static void move(QWindow &panel, Qt::MouseButtons buttons)
    {
        QMouseEvent move(QEvent::MouseMove, QPointF(), QPointF(), QPointF(), Qt::NoButton, buttons,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&panel, &move);
    }

    TestClock clock;
    FakeScreens screens;
    std::unique_ptr<XWaylandSession> session;
    QStringList log;
};

} // namespace

TEST_F(XWaylandSessionTest, theEndOfADragIsAssumedUnlessItComesToAPanel)
{
    session->quiet.dragWatch.noticed();
    clock.advance(TimedDragWatch::patience);
    EXPECT_EQ(taken(), words("began assumed"));
    EXPECT_TRUE(session->quiet.mayDragGoOn());
}

TEST_F(XWaylandSessionTest, theEndIsSeenWhereItIsLetGoOverAPanel)
{
    session->quiet.dragWatch.noticed();
    session->quiet.dragWatch.overPanel(true);
    session->dropSupport.onDropped();
    session->quiet.dragWatch.overPanel(false);
    clock.advance(TimedDragWatch::settleDelay);
    EXPECT_EQ(taken(), words("began seen"));
}

TEST_F(XWaylandSessionTest, theEndIsSeenWhereThePointerMovesOverAPanelWithNothing)
{
    QWindow panel;
    session->panels.surface.adopt(panel);
    session->quiet.dragWatch.noticed();
    taken();
    // Told of a panel that comes up where the pointer was some time ago, too.
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(&panel, &enter);
    move(panel, Qt::LeftButton);
    EXPECT_EQ(taken(), QStringList());
    move(panel, Qt::NoButton);
    EXPECT_EQ(taken(), words("seen"));
}

TEST_F(XWaylandSessionTest, saysWhatTheDesktopKeepsToItself)
{
    const Abilities now = session->abilities.now();
    EXPECT_EQ(now.clicksElsewhere,
              (Ability<ClicksElsewhere>{ClicksElsewhere::Unnoticed, Reason::KeptByDesktop}));
    EXPECT_EQ(now.shortcutChoice,
              (Ability<ShortcutChoice>{ShortcutChoice::InTheDesktop, Reason::KeptByDesktop}));
    EXPECT_TRUE(now.keepingKey.isFull());
    // There is no X server that would tell of them.
    EXPECT_EQ(now.drags, (Ability<Drags>{Drags::AtTheEdge, Reason::KeptByDesktop}));
}

} // namespace corvane::test
