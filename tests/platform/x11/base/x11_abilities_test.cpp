#include "e2e/desktop/x_desktop.h"
#include "platform/x11/base/x11_abilities.h"
#include "platform/x11/base/x11_connection.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// The abilities on another server.
Abilities abilitiesOn(const e2e::XDesktop &desktop)
{
    const QByteArray before = qgetenv("DISPLAY");
    qputenv("DISPLAY", desktop.environment().value(QStringLiteral("DISPLAY")).toUtf8());
    const X11Connection connection;
    qputenv("DISPLAY", before);
    EXPECT_TRUE(connection.isConnected());
    return abilitiesOf(connection);
}

} // namespace

TEST(X11Abilities, aUsualServerLacksNothing)
{
    EXPECT_EQ(abilitiesOf(X11Connection()), Abilities());
}

TEST(X11Abilities, withoutXFixesNeitherDragsNorTheEdgeAreNoticed)
{
    const e2e::XDesktop desktop(
        {.compositor = e2e::Compositor::None, .missingExtension = QStringLiteral("XFIXES")});
    ASSERT_EQ(desktop.problem(), QString());
    constexpr Reason why = Reason::ServerLacksExtensions;
    const Abilities expected
        = {.drags = {Drags::Unnoticed, why}, .topEdge = {TopEdge::Unwatched, why}};
    EXPECT_EQ(abilitiesOn(desktop), expected);
}

} // namespace corvane::test
