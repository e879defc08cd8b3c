// How the program ends with its Wayland session.

#include "e2e/wayland_session.h"

#include <csignal>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

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
