// The X server that a Wayland compositor keeps for X11's programs ends, and with it what told the
// program of drags.

#include "e2e/desktop/screen_reader.h"
#include "e2e/wayland_session.h"

#include <QDir>
#include <QFile>

#include <unistd.h>

#include <csignal>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

const auto dragsAreNoticedAtTheEdge = u"Drags are noticed only at the top of the screen, because "
                                      u"your desktop keeps that to itself. "
                                      "Drag to the middle of the top edge, and the shelf opens."_s;

/// On desktops of its own, which lack that server afterwards.
DesktopKind desktopToSpoil(WindowManager compositor)
{
    return {.windowManager = compositor, .compositor = Compositor::None, .size = {1400, 900}};
}

class XWaylandThatIsLost : public WaylandSession {
protected:
    /// The compositor's own, by its process id; 0 if there is none.
    pid_t xwayland()
    {
        const auto compositor = static_cast<pid_t>(m_desktop.nested()->program().pid());
        for (const QString &name : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
            const auto pid = static_cast<pid_t>(name.toInt());
            QFile command(u"/proc/%1/comm"_s.arg(name));
            if (pid > 0 && getsid(pid) == compositor && command.open(QFile::ReadOnly)
                && command.readAll().trimmed() == "Xwayland")
                return pid;
        }
        return 0;
    }
    bool preferencesSay(const QString &limit)
    {
        return eventually([&] { return m_reader.says(corvane().program().pid(), limit); });
    }

    ScreenReader m_reader{m_desktop};
};

INSTANTIATE_TEST_SUITE_P(, XWaylandThatIsLost,
                         testing::Values(desktopToSpoil(WindowManager::Sway),
                                         desktopToSpoil(WindowManager::KWin)),
                         nameOf);

TEST_P(XWaylandThatIsLost, costsNoItemAndLeavesTheEdgeToOpenTheShelfAsThePreferencesSay)
{
    const QString first = makeFile(u"report.txt"_s, "report");
    const QString second = makeFile(u"plan.txt"_s, "plan");
    ASSERT_TRUE(m_reader.isReady());
    CorvaneProgram::Start how;
    how.environment = m_desktop.environment();
    ScreenReader::addTo(how.environment);
    start(how);
    keep(first);
    ASSERT_TRUE(corvane().activateAction(u"preferences"_s));
    ASSERT_TRUE(eventually([&] { return m_reader.control(corvane().program().pid(), u"Open"_s); }));
    EXPECT_FALSE(m_reader.says(corvane().program().pid(), dragsAreNoticedAtTheEdge));

    const pid_t server = xwayland();
    ASSERT_NE(server, 0);
    ::kill(server, SIGKILL);
    EXPECT_TRUE(preferencesSay(dragsAreNoticedAtTheEdge));
    EXPECT_TRUE(corvane().isShown());

    GtkPeer target(m_desktop, {}, rightPlace());
    ASSERT_EQ(target.problem(), QString());
    dragOut(target);
    EXPECT_EQ(target.droppedAddresses().trimmed(), uriList({first}).trimmed());
    ASSERT_TRUE(corvane().waitUntilHidden());

    GtkPeer source(m_desktop, {.files = {second}}, leftPlace());
    ASSERT_EQ(source.problem(), QString());
    hands().beginDrag(source.source(), edge());
    hands().glideTo(edge());
    dropOnTheShelfBelowThePointer(source);
    EXPECT_EQ(source.endOfDrag(), "done");
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    dragOut(target);
    EXPECT_TRUE(eventually([&] {
        return target.droppedAddresses().trimmed() == uriList({second}).trimmed();
    })) << target.output();
    EXPECT_TRUE(corvane().waitUntilHidden());
}

} // namespace
} // namespace corvane::e2e
