#include "fakes/log_lines.h"
#include "platform/wayland/base/lost_connection_line.h"

#include <QtDebug>

#include <gtest/gtest.h>

#include <thread>

namespace corvane::test {

namespace {

constexpr auto lost = "The Wayland connection broke. Did the Wayland compositor die?";

} // namespace

TEST(LostConnectionLine, isHeardOnceThoughTwoThreadsSayIt)
{
    const LogLines log;
    hearLostConnectionOnce();
    qWarning("%s", lost);
    std::thread([] { qWarning("%s", lost); }).join();
    EXPECT_EQ(log.lines(), QStringList{QString::fromLatin1(lost)});
}

TEST(LostConnectionLine, andNothingElseIsHeld)
{
    const LogLines log;
    hearLostConnectionOnce();
    hearLostConnectionOnce();
    qWarning("other");
    qWarning("other");
    EXPECT_EQ(log.lines(), (QStringList{QStringLiteral("other"), QStringLiteral("other")}));
}

} // namespace corvane::test
