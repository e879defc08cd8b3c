#include "app/sessions/choose_session.h"

#include <gtest/gtest.h>

namespace corvane::test {

TEST(ChooseSession, anXDisplayIsASessionToRunIn)
{
    const SessionChoice choice = chooseSession({.display = ":0"});
    EXPECT_EQ(choice.kind, SessionKind::X11);
    EXPECT_EQ(choice.platformPlugin, "xcb");
    EXPECT_TRUE(choice.refusal.isEmpty());
}

TEST(ChooseSession, withoutADisplayItSaysInOneLineWhyItCannotRun)
{
    const SessionChoice choice = chooseSession({});
    EXPECT_FALSE(choice.kind);
    EXPECT_EQ(choice.refusal, "there is no X11 display to hang the shelf on (DISPLAY is not set)");
}

TEST(ChooseSession, theEnvironmentIsThatOfTheProcess)
{
    const QByteArray before = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":7.1");
    EXPECT_EQ(SessionEnvironment::ofThisProcess().display, ":7.1");
    qunsetenv("DISPLAY");
    EXPECT_EQ(SessionEnvironment::ofThisProcess().display, "");
    if (!before.isEmpty())
        qputenv("DISPLAY", before);
}

} // namespace corvane::test
