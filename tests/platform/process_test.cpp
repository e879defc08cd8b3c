// What needs a process of its own: the one instance of a session, signals, and the loss of the
// server.

#include "e2e/desktop/x_desktop.h"
#include "platform/display.h"
#include "platform/freedesktop/dbus_single_instance.h"
#include "platform/scene.h"
#include "platform/x11/base/x11_connection.h"

#include <QDBusConnection>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

#include <csignal>
#include <optional>

namespace corvane::test {

namespace {

/// Holds the name, and gives no answer to anything.
class SilentInstance : public QDBusVirtualObject {
public:
    SilentInstance()
    {
        m_bus.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath);
        EXPECT_TRUE(m_bus.registerService(sceneApplicationId()));
    }
    ~SilentInstance() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &, const QDBusConnection &) override
    {
        ++asked;
        return true;
    }

    int asked = 0;

private:
    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus,
                                                          QStringLiteral("silent instance"));
};

} // namespace

TEST(SingleInstance, aSecondProcessHandsOverToTheFirst)
{
    Scene first("instance");
    ASSERT_TRUE(first.waitFor("first"));
    DBusSingleInstance second(sceneApplicationId());
    EXPECT_EQ(second.acquire([] {}), SingleInstance::Outcome::HandedOver);
    EXPECT_TRUE(first.waitFor("reopened"));
    first.process.kill();
    ASSERT_TRUE(first.waitForEnd());
    EXPECT_EQ(second.acquire([] {}), SingleInstance::Outcome::First);
    QDBusConnection::sessionBus().unregisterService(sceneApplicationId());
}

TEST(SingleInstance, aFirstOneWhoseMainThreadIsStuckIsNoneToHandOverToAndDoesNothingLater)
{
    Scene first("stuckInstance");
    ASSERT_TRUE(first.waitFor("first"));
    first.process.write("s");
    ASSERT_TRUE(first.waitFor("stuck"));
    DBusSingleInstance second(sceneApplicationId());
    EXPECT_EQ(second.acquire([] {}), SingleInstance::Outcome::NotAnswering);
    EXPECT_EQ(second.otherProcess(), first.process.processId());

    first.process.write("g");
    first.process.waitForBytesWritten();
    EXPECT_EQ(second.acquire([] {}), SingleInstance::Outcome::HandedOver);
    ASSERT_TRUE(first.waitFor("reopened"));
    EXPECT_EQ(first.output.count("reopened"), 1) << "the wish that it did not hear is forgotten";
}

TEST(SingleInstance, aFirstOneThatEndsWhileItIsAskedIsFollowed)
{
    std::optional<SilentInstance> first(std::in_place);
    Scene second("instance");
    ASSERT_TRUE(eventually([&] { return first->asked > 0; }));
    first.reset();
    EXPECT_TRUE(second.waitFor("first")) << second.output.constData();
}

TEST(SingleInstance, withoutABusItGoesOnAlone)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), QStringLiteral("/nonexistent"));
    Scene without("instance", environment);
    EXPECT_TRUE(without.waitFor("unknown"));
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                       QStringLiteral("unix:path=/nonexistent/bus"));
    Scene broken("instance", environment);
    EXPECT_TRUE(broken.waitFor("unknown"));
}

TEST(UnixSignals, eachEndsTheProcessInOrder)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        Scene scene("signals");
        ASSERT_TRUE(scene.waitFor("ready"));
        ::kill(static_cast<pid_t>(scene.process.processId()), signal);
        EXPECT_TRUE(scene.waitFor("ended")) << signal;
        ASSERT_TRUE(scene.waitForEnd());
        EXPECT_EQ(scene.process.exitStatus(), QProcess::NormalExit) << signal;
    }
}

TEST(UnixSignals, aSecondOneEndsAProcessThatIsStuck)
{
    Scene scene("stuckAfterSignal");
    ASSERT_TRUE(scene.waitFor("ready"));
    ::kill(static_cast<pid_t>(scene.process.processId()), SIGTERM);
    ASSERT_TRUE(scene.waitFor("terminating"));
    ::kill(static_cast<pid_t>(scene.process.processId()), SIGTERM);
    ASSERT_TRUE(scene.waitForEnd());
    EXPECT_EQ(scene.process.exitStatus(), QProcess::CrashExit);
}

TEST(EndDeadline, endsAProcessWhoseMainThreadIsStuckAfterASignal)
{
    Scene scene("stuckForGood");
    ASSERT_TRUE(scene.waitFor("ready"));
    ::kill(static_cast<pid_t>(scene.process.processId()), SIGTERM);
    ASSERT_TRUE(scene.waitForEnd());
    EXPECT_EQ(scene.process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(scene.process.exitCode(), 0);
}

TEST(EndDeadline, endsAProcessThatWaitsForItsThreadsAndIgnoresStrangersAlarms)
{
    Scene scene("stuckThread");
    ASSERT_TRUE(scene.waitFor("ready"));
    ASSERT_TRUE(scene.waitForEnd());
    EXPECT_EQ(scene.process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(scene.process.exitCode(), 0);
}

TEST(X11Connection, tellsTheLossOfTheServerOnce)
{
    for (int attempt = 0; attempt < 3; ++attempt) {
        e2e::XDesktop desktop;
        ASSERT_TRUE(desktop.problem().isEmpty()) << qPrintable(desktop.problem());
        auto environment = desktop.environment();
        environment.insert(QStringLiteral("CORVANE_TESTS_HAVE_A_DESKTOP"), QStringLiteral("1"));
        Scene scene("serverLoss", environment);
        ASSERT_TRUE(scene.waitFor("ready"));
        desktop.endServer();
        EXPECT_TRUE(scene.waitForEnd());
        EXPECT_TRUE(scene.waitFor("lost"));
        EXPECT_EQ(scene.output.count("lost"), 1);
    }
}

TEST(X11Connection, withoutAServerEveryQuestionIsAnsweredWithNothing)
{
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":54321");
    X11Connection connection;
    qputenv("DISPLAY", display);
    EXPECT_FALSE(connection.isConnected());
    EXPECT_FALSE(connection.hasXFixes());
    EXPECT_EQ(connection.atom("XdndSelection"), xcb_atom_t{XCB_NONE});
    connection.flush();
}

} // namespace corvane::test
