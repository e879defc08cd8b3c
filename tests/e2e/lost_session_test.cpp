// The program in a Wayland session of which its environment says nothing, or something wrong: from
// a terminal multiplexer that is older than the session, for example, or by a service.

#include "e2e/wayland_session.h"

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class LostSession : public WaylandSession {
protected:
    /// Starts it by this change of the environment.
    void startBy(const QStringList &change)
    {
        CorvaneProgram::Start how{};
        how.program = u"env"_s;
        how.arguments = change + QStringList{CorvaneProgram::path()};
        start(how);
    }
    void expectOneLineWith(const QByteArray &text)
    {
        const QByteArray said = corvane().program().output();
        EXPECT_TRUE(said.contains(text)) << said.constData();
        EXPECT_EQ(said.count('\n'), 1) << said.constData();
    }
};

INSTANTIATE_TEST_SUITE_P(, LostSession,
                         testing::Values(sessionOf(WindowManager::Sway),
                                         sessionOf(WindowManager::KWin),
                                         sessionOf(WindowManager::Mutter)),
                         nameOf);

TEST_P(LostSession, theShelfOpensWhereWaylandDisplayIsNotSetAndSaysSo)
{
    startBy({u"-u"_s, u"WAYLAND_DISPLAY"_s});
    expectThatItOpensForADrag();
    expectOneLineWith("WAYLAND_DISPLAY is not set");
}

TEST_P(LostSession, theShelfOpensWhereWaylandDisplayIsWrongAndSaysSo)
{
    startBy({u"WAYLAND_DISPLAY=nowhere"_s});
    expectThatItOpensForADrag();
    expectOneLineWith("WAYLAND_DISPLAY names no compositor");
}

} // namespace
} // namespace corvane::e2e
