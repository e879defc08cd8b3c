#include "fakes/log_lines.h"
#include "platform/wayland/base/lost_connection_line.h"

#include <QtDebug>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace corvane::test {

namespace {

constexpr auto lost = "The Wayland connection broke. Did the Wayland compositor die?";

std::atomic<bool> isBeingSaid;
std::atomic<bool> isOtherThere;
std::atomic<bool> isSaid;

void sayAtLeisure(QtMsgType, const QMessageLogContext &, const QString &)
{
    isBeingSaid = true;
    while (!isOtherThere)
        std::this_thread::yield();
    // Time enough for the other one to go on, if it does.
    constexpr int manyTimes = 10000;
    for (int i = 0; i < manyTimes; ++i)
        std::this_thread::yield();
    isSaid = true;
}

} // namespace

TEST(LostConnectionLine, isHeardOnceThoughTwoThreadsSayIt)
{
    const LogLines log;
    hearLostConnectionOnce();
    qWarning("%s", lost);
    std::thread([] { qWarning("%s", lost); }).join();
    EXPECT_EQ(log.lines(), QStringList{QString::fromLatin1(lost)});
}

TEST(LostConnectionLine, isHeardBeforeTheOtherThreadGoesOnToEndTheProcess)
{
    const QtMessageHandler before = qInstallMessageHandler(sayAtLeisure);
    hearLostConnectionOnce();
    std::thread first([] { qWarning("%s", lost); });
    while (!isBeingSaid)
        std::this_thread::yield();
    isOtherThere = true;
    qWarning("%s", lost);
    EXPECT_TRUE(isSaid);
    first.join();
    qInstallMessageHandler(before);
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
