#include "platform/display.h"
#include "platform/freedesktop/notifier_hosts.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// The place where status items gather, on a connection of its own.
class Watcher : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ isHostThere)

public:
    explicit Watcher(bool hasHost)
        : m_hasHost(hasHost)
    {
        m_bus.registerObject(path, this, QDBusConnection::ExportAllProperties);
        m_bus.registerService(interface);
    }
    ~Watcher() override
    {
        m_bus.unregisterService(interface);
        QDBusConnection::disconnectFromBus(QStringLiteral("watcher"));
    }

    bool isHostThere() const
    {
        ++questions;
        return m_hasHost;
    }
    void hostComes()
    {
        m_hasHost = true;
        m_bus.send(QDBusMessage::createSignal(path, interface,
                                              QStringLiteral("StatusNotifierHostRegistered")));
    }

    mutable int questions = 0;

private:
    const QString interface = QStringLiteral("org.kde.StatusNotifierWatcher");
    const QString path = QStringLiteral("/StatusNotifierWatcher");
    QDBusConnection m_bus
        = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("watcher"));
    bool m_hasHost;
};

struct NotifierHostsTest : testing::Test {
    void start()
    {
        hosts.start([this] { ++told; });
    }

    NotifierHosts hosts;
    int told = 0;
};

} // namespace

TEST_F(NotifierHostsTest, oneThatIsThereIsToldOf)
{
    const Watcher watcher(true);
    start();
    EXPECT_EQ(told, 0) << "nothing waits for the bus";
    EXPECT_TRUE(eventually([&] { return told == 1; }));
}

TEST_F(NotifierHostsTest, oneThatComesLaterThanTheWatcherIsToldOf)
{
    Watcher watcher(false);
    start();
    ASSERT_TRUE(eventually([&] { return watcher.questions == 1; }));
    settle();
    EXPECT_EQ(told, 0);
    watcher.hostComes();
    EXPECT_TRUE(eventually([&] { return told == 1; }));
}

TEST_F(NotifierHostsTest, oneThatComesWithItsWatcherIsToldOf)
{
    start();
    settle();
    EXPECT_EQ(told, 0);
    const Watcher watcher(true);
    EXPECT_TRUE(eventually([&] { return told == 1; }));
}

} // namespace corvane::test

#include "notifier_hosts_test.moc"
