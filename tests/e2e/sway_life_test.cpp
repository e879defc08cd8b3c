// What a long day leaves of the program in a Wayland session, and how it ends with the session.

#include "e2e/wayland_session.h"

#include <QDir>
#include <QFile>

#include <csignal>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class SwayLife : public WaylandSessionTest {
protected:
    SwayLife()
        : WaylandSessionTest(sessionOf(WindowManager::Sway))
    {
    }

    /// Drags that end on another program, and a look at the shelf after each.
    void dragElsewhere(GtkPeer &source, GtkPeer &target, int times)
    {
        for (int i = 0; i < times && !HasFailure(); ++i) {
            hands().beginDrag(source.source(), target.target());
            ASSERT_TRUE(corvane().waitUntilShown()) << i;
            hands().moveTo(target.target());
            wiggleUntil([&] { return target.isTargetReady(); });
            hands().release();
            // A pointer over the shelf with nothing dragged: the drag is over.
            hands().moveTo(edge() + QPoint(0, 8));
            hands().moveBy({0, 2});
            ASSERT_TRUE(corvane().waitUntilHidden()) << i;
        }
    }

    qsizetype openFiles()
    {
        return QDir(u"/proc/%1/fd"_s.arg(corvane().program().pid()))
            .entryList(QDir::Files | QDir::System)
            .size();
    }
    /// In kilobytes, what is the program's own.
    int memory()
    {
        QFile status(u"/proc/%1/status"_s.arg(corvane().program().pid()));
        if (!status.open(QFile::ReadOnly))
            return 0;
        const QByteArray all = status.readAll();
        const qsizetype at = all.indexOf("RssAnon:") + 8;
        return all.mid(at, all.indexOf("kB", at) - at).trimmed().toInt();
    }
};

TEST_F(SwayLife, dragsInARowThatEndElsewhereLeaveNothingOpenAndNothingBehind)
{
    GtkPeer source(m_desktop, {.text = u"text"_s}, leftPlace());
    ASSERT_EQ(source.problem(), QString());
    GtkPeer target(m_desktop, {}, rightPlace());
    ASSERT_EQ(target.problem(), QString());
    start();
    dragElsewhere(source, target, 3);
    const qsizetype files = openFiles();
    const int kilobytes = memory();
    dragElsewhere(source, target, 12);
    EXPECT_LE(openFiles(), files);
    EXPECT_LT(memory(), kilobytes + 512);
}

TEST(SwayThatIsKilled, aProgramWithItemsSaysSoInOneLineAndEnds)
{
    XDesktop desktop({.windowManager = WindowManager::Sway, .compositor = Compositor::None});
    ASSERT_EQ(desktop.problem(), QString());
    CorvaneProgram corvane(desktop);
    ASSERT_TRUE(corvane.waitUntilReady());
    Hands &hands = desktop.hands();
    {
        GtkPeer source(desktop, {.text = u"text"_s}, {60, 400, 400, 200});
        ASSERT_EQ(source.problem(), QString());
        hands.beginDrag(source.source(), {756, 10});
        ASSERT_TRUE(corvane.waitForHeight(CorvaneProgram::empty.height()));
        hands.glideTo({756, 30});
        int step = 1;
        ASSERT_TRUE(eventually([&] {
            hands.moveBy({step = -step, 0});
            return source.isSourceWelcome();
        }));
        hands.release();
        ASSERT_TRUE(corvane.waitForHeight(CorvaneProgram::singleHeight));
    }

    desktop.nested()->program().signal(SIGKILL);
    const auto status = corvane.program().waitForEnd();
    ASSERT_TRUE(status);
    EXPECT_NE(*status, 0);
    const QByteArray said = corvane.program().output();
    EXPECT_TRUE(said.contains("Wayland connection broke")) << said.constData();
    EXPECT_EQ(said.count('\n'), 1) << said.constData();
}

} // namespace
} // namespace corvane::e2e
