// How the program begins and ends, and what it leaves behind: nothing.

#include "e2e/desktop_test.h"

#include <QBuffer>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDirIterator>
#include <QFile>
#include <QImage>

#include <unistd.h>

#include <csignal>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

QByteArray aPicture()
{
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray png;
    QBuffer buffer(&png);
    image.save(&buffer, "png");
    return png;
}

/// What a desktop shows messages with.
class NotificationService : public QDBusVirtualObject {
public:
    explicit NotificationService(const XDesktop &desktop)
        : m_bus(QDBusConnection::connectToBus(
            desktop.environment().value(u"DBUS_SESSION_BUS_ADDRESS"_s), u"notifications"_s))
    {
        m_bus.registerVirtualObject(u"/org/freedesktop/Notifications"_s, this);
        EXPECT_TRUE(m_bus.registerService(u"org.freedesktop.Notifications"_s));
    }
    ~NotificationService() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        shown << message.arguments().value(3).toString() + u' '
                + message.arguments().value(4).toString();
        return bus.send(message.createReply(1U));
    }

    QStringList shown;

private:
    QDBusConnection m_bus;
};

class Life : public DesktopTest {
protected:
    /// Has something in the spool, so that there is something to be left behind.
    void startWithSpool()
    {
        start();
        ASSERT_TRUE(dropOffers({{"image/png", aPicture()}}));
        ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
        ASSERT_TRUE(eventually([&] { return corvane().spooled() == QStringList{u"Image.png"_s}; }));
    }
    /// Everything below the desktop's folder.
    QStringList filesOfTheUser() const
    {
        QStringList files;
        const QDir top(m_desktop.home());
        QDirIterator all(top.path(),
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
        while (all.hasNext()) {
            const QString path = all.next();
            if (!all.fileInfo().isDir())
                files << top.relativeFilePath(path);
        }
        return files;
    }
    /// What is left of a session, for people to read.
    static QStringList processesOf(qint64 session)
    {
        QStringList found;
        for (const QString &pid : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
            bool isPid = false;
            const pid_t number = pid.toInt(&isPid);
            if (isPid && getsid(number) == session)
                found << pid;
        }
        return found;
    }
    /// Where nobody can be asked whether it is up: it is once a drag opens it.
    bool opensForADrag()
    {
        return eventually([&] {
            XdndSource source(m_desktop, {{"text/plain", "x"}});
            source.pickUp();
            const bool shown
                = eventually([&] { return corvane().isShown(); }, std::chrono::seconds{1});
            source.letGo();
            return shown;
        });
    }
};

TEST_F(Life, aSecondStartOpensAndClosesTheShelfAndEndsByItself)
{
    start();
    EXPECT_FALSE(corvane().isShown());
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty));
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_F(Life, aSecondStartBringsBackWhatLiesOnTheShelf)
{
    start();
    ASSERT_TRUE(dropFiles({makeFile(u"one.txt"_s, "x")}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    const QSize size = corvane().size();
    EXPECT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(corvane().waitUntilHidden());
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitForSize(size));
}

TEST_F(Life, aSecondStartSaysThatTheFirstDoesNotAnswerAndChangesNothing)
{
    start();
    corvane().program().signal(SIGSTOP);
    Program second(CorvaneProgram::path(), {}, m_desktop.environment());
    // There is no terminal to be read, and nothing that shows notifications.
    const auto window = m_desktop.waitForWindowOf(second);
    ASSERT_TRUE(window);
    EXPECT_TRUE(second.output().contains("does not answer")) << second.output().constData();
    EXPECT_TRUE(second.isRunning());
    ASSERT_TRUE(eventually([&] { return server().activeWindow() == window->id; }));
    hands().key(keys::escape);
    EXPECT_EQ(second.waitForEnd(), 1);

    corvane().program().signal(SIGCONT);
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty)) << "by the second start alone";
}

TEST_F(Life, aSecondStartHasTheDesktopShowThatTheFirstDoesNotAnswer)
{
    start();
    corvane().program().signal(SIGSTOP);
    NotificationService desktop(m_desktop);
    Program second(CorvaneProgram::path(), {}, m_desktop.environment());
    ASSERT_TRUE(eventually([&] { return !desktop.shown.isEmpty(); }));
    EXPECT_EQ(second.waitForEnd(), 1);
    EXPECT_TRUE(desktop.shown.first().contains(u"does not answer"_s));
    EXPECT_TRUE(desktop.shown.first().contains(QString::number(corvane().program().pid())));
    corvane().program().signal(SIGCONT);
}

TEST_F(Life, beingToldToEndLeavesNoSpool)
{
    startWithSpool();
    corvane().program().signal(SIGTERM);
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
    EXPECT_FALSE(QFile::exists(corvane().spool()));
}

TEST_F(Life, anInterruptFromTheTerminalLeavesNoSpool)
{
    startWithSpool();
    corvane().program().signal(SIGINT);
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
    EXPECT_FALSE(QFile::exists(corvane().spool()));
}

TEST_F(Life, theNextStartClearsUpAfterOneThatWasKilled)
{
    startWithSpool();
    const QString left = corvane().spool();
    corvane().program().signal(SIGKILL);
    ASSERT_TRUE(corvane().program().waitForEnd());
    ASSERT_TRUE(QFile::exists(left));
    start();
    EXPECT_TRUE(eventually([&] { return !QFile::exists(left); }));
}

TEST_F(Life, withoutASessionBusItRunsAlone)
{
    auto environment = m_desktop.environment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nowhere"_s);
    m_corvane
        = std::make_unique<CorvaneProgram>(m_desktop, CorvaneProgram::Start{{}, {}, environment});
    EXPECT_TRUE(opensForADrag());
}

TEST_F(Life, aBusWithoutAnAddressIsFoundInItsUsualPlace)
{
    CorvaneProgram::Start how;
    how.environment = m_desktop.environment();
    how.environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
    start(how);
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty));
}

TEST_F(Life, whereTheSessionHasNoBusNoneIsStarted)
{
    auto environment = m_desktop.environment();
    environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
    environment.insert(u"XDG_RUNTIME_DIR"_s, makeFolder(u"runtime without a bus"_s));
    m_corvane
        = std::make_unique<CorvaneProgram>(m_desktop, CorvaneProgram::Start{{}, {}, environment});
    EXPECT_TRUE(opensForADrag());
    // A bus that is started for a display leaves its address there.
    EXPECT_FALSE(QFile::exists(environment.value(u"HOME"_s) + u"/.dbus"_s));
}

TEST_F(Life, theEndLeavesNoProcessAndNothingButSettingsAndCaches)
{
    const QStringList before = filesOfTheUser();
    startWithSpool();
    const qint64 session = corvane().program().pid();
    ASSERT_TRUE(dropOffers({{"text/plain", "some text"}}));
    ASSERT_TRUE(dropFiles({makeFile(u"one.txt"_s, "x")}));
    focusShelf(corvane().at(20, 20));
    hands().key('c', {keys::control});
    hands().key(keys::space);
    ASSERT_TRUE(eventually([&] { return corvane().window().has_value(); }));
    corvane().program().signal(SIGTERM);
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
    EXPECT_EQ(processesOf(session), QStringList());
    for (const QString &file : filesOfTheUser()) {
        if (before.contains(file))
            continue;
        EXPECT_TRUE(file.startsWith(u"home/.config/Corvane/"_s)
                    || file.startsWith(u"home/.cache/"_s) || file.startsWith(u"home/files/"_s))
            << file.toStdString();
    }
}

TEST_F(Life, withoutADisplayItSaysSoAndEnds)
{
    auto environment = m_desktop.environment();
    environment.insert(u"DISPLAY"_s, u":4000"_s);
    Program program(CorvaneProgram::path(), {}, environment);
    const auto status = program.waitForEnd();
    ASSERT_TRUE(status);
    EXPECT_NE(*status, 0);
    EXPECT_TRUE(program.output().contains("display")) << program.output().constData();
}

TEST(LifeOnADesktopThatEnds, theXServerGoesAwayAndTheSpoolWithIt)
{
    XDesktop desktop({WindowManager::Openbox, Compositor::None});
    ASSERT_EQ(desktop.problem(), QString());
    CorvaneProgram corvane(desktop);
    ASSERT_TRUE(corvane.waitUntilReady());
    {
        XdndSource source(desktop, {{"image/png", aPicture()}});
        source.pickUp();
        ASSERT_TRUE(corvane.waitForSize(CorvaneProgram::empty));
        ASSERT_TRUE(
            source.hover(corvane.panel().value_or(WindowFacts{}).id, corvane.body().center()));
        source.drop();
        ASSERT_TRUE(source.waitForFinish());
    }
    ASSERT_TRUE(eventually([&] { return !corvane.spooled().isEmpty(); }));

    desktop.endServer();
    EXPECT_TRUE(corvane.program().waitForEnd());
    EXPECT_FALSE(QFile::exists(corvane.spool()));
}

} // namespace
} // namespace corvane::e2e
