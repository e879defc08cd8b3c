// Software updates, from a server that a test has misbehave, for an AppImage whose bytes are looked
// at.

#include "app/updates/feeds.h"
#include "app/updates/test_key.h"
#include "app/updates/update_folder.h"
#include "e2e/desktop/tray_panel.h"
#include "e2e/desktop_test.h"
#include "platform/qt/web/http_server.h"

#include <QFile>
#include <QFileInfo>

#include <csignal>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;
using test::HttpServer;
using test::UpdateFolder;

constexpr auto feedPath = "/appcast.xml";
constexpr auto imagePath = "/Corvane-11.AppImage";

class Updates : public DesktopTest {
protected:
    Updates() { newImage = UpdateFolder::image('n', 3'000'000); }

    void SetUp() override
    {
        DesktopTest::SetUp();
        QDir(folder.directory.path()).mkpath(u"mount/usr/bin"_s);
        writeProgram();
        environment = m_desktop.environment();
        environment.insert(u"APPIMAGE"_s, QFile::decodeName(folder.appImage()));
        environment.insert(u"APPDIR"_s, QFile::decodeName(folder.path("mount")));
        environment.insert(u"XDG_STATE_HOME"_s, QFile::decodeName(folder.path("state")));
    }
    void TearDown() override
    {
        m_tray.reset();
        DesktopTest::TearDown();
    }

    QString program() const { return QFile::decodeName(folder.path("mount/usr/bin/corvane")); }

    /// The build that looks for updates, with this test's server and key in it.
    void writeProgram() const
    {
        QFile built(QCoreApplication::applicationDirPath() + u"/corvane_updating"_s);
        ASSERT_TRUE(built.open(QFile::ReadOnly));
        QByteArray bytes = built.readAll();
        const QByteArray port = QByteArray::number(announcer.port()).rightJustified(5, '0');
        const QByteArray address = "http://127.0.0.1:" + port + '/';
        bytes.replace("http://127.0.0.1:00000/", address);
        const QByteArray noKey = QByteArray(43, 'A') + '=';
        bytes.replace(noKey, key.publicText().toLatin1());
        QFile own(program());
        ASSERT_TRUE(own.open(QFile::WriteOnly));
        ASSERT_EQ(own.write(bytes), bytes.size());
        own.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void announce(const QByteArray &feedBytes)
    {
        announcer.answer(feedPath, test::response(200, feedBytes));
    }
    QByteArray item(const QByteArray &build, const QByteArray &signature) const
    {
        return "<item><sparkle:version>" + build + "</sparkle:version>"
            + "<sparkle:shortVersionString>" + build + ".0</sparkle:shortVersionString>"
            + "<description><![CDATA[<ul><li>Faster</li></ul>]]></description><enclosure url='"
            + announcer.url(QLatin1String(imagePath)).toEncoded() + "' length='"
            + QByteArray::number(newImage.size()) + "' sparkle:os='linux' sparkle:edSignature='"
            + signature.toBase64() + "'/></item>";
    }
    void announceNewer() { announce(test::feed(item("11", key.sign(newImage)))); }
    /// And then nothing more.
    void serveTheBeginning()
    {
        announcer.on(imagePath, [this](QTcpSocket &socket) {
            socket.write("HTTP/1.1 200 OK\r\nContent-Length: 3000000\r\n\r\n"
                         + newImage.left(1'000'000));
        });
    }
    void serve(const QByteArray &image) { announcer.answer(imagePath, test::response(200, image)); }

    void startUpdating(const QString &starter = {}, const QStringList &arguments = {})
    {
        if (!m_tray) {
            m_tray = std::make_unique<X11Tray>(m_desktop);
            ASSERT_TRUE(m_tray->waitUntilReady());
        }
        CorvaneProgram::Start how;
        how.environment = environment;
        how.program = starter.isEmpty() ? program() : starter;
        how.arguments = arguments;
        start(how);
        ASSERT_TRUE(m_tray->waitForIcon());
    }
    void end()
    {
        corvane().program().signal(SIGTERM);
        ASSERT_EQ(corvane().program().waitForEnd(), 0);
    }

    /// "Check for Updates…" stands above the last row.
    void checkFromMenu()
    {
        openMenu(m_tray->icon().center());
        hands().key(keys::up);
        hands().key(keys::up);
        hands().key(keys::enter);
    }

    std::optional<WindowFacts> window() { return corvane().window(); }
    QByteArray title()
    {
        const auto found = window();
        if (!found)
            return {};
        return server().property(found->id, "_NET_WM_NAME");
    }
    testing::AssertionResult says(const QByteArray &text)
    {
        if (eventually([&] { return title().contains(text); }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "the window is " << title().toStdString();
    }
    bool isInFront()
    {
        return eventually([this] {
            const auto found = window();
            return found && server().activeWindow() == found->id;
        });
    }
    /// Says yes to the version that is offered.
    void takeOffer()
    {
        checkFromMenu();
        ASSERT_TRUE(says("Corvane 11.0 is available"));
        ASSERT_TRUE(isInFront());
        hands().key(keys::enter);
    }

    /// Byte by byte, with the permissions that it had, and nothing beside it.
    testing::AssertionResult isUntouched()
    {
        const QByteArray image = UpdateFolder::contents(folder.appImage());
        if (image != UpdateFolder::oldImage())
            return testing::AssertionFailure() << "the image has changed";
        if (!QFileInfo(QFile::decodeName(folder.appImage())).isExecutable())
            return testing::AssertionFailure() << "the image has other permissions";
        if (!eventually([this] { return beside().isEmpty(); }))
            return testing::AssertionFailure() << beside().join(u' ').toStdString();
        return testing::AssertionSuccess();
    }
    QStringList beside() const
    {
        QStringList names = folder.names();
        for (const char *known : {"Corvane.AppImage", "mount", "state"})
            names.removeAll(QLatin1String(known));
        return names;
    }
    /// An update whose file is as it is served here fails, and nothing has happened.
    void expectRefusal()
    {
        startUpdating();
        takeOffer();
        EXPECT_TRUE(says("Corvane was not updated"));
        EXPECT_TRUE(isUntouched());
    }
    /// The same of what is announced.
    void expectNoOffer()
    {
        startUpdating();
        checkFromMenu();
        EXPECT_TRUE(says("Corvane could not check for updates"));
        EXPECT_TRUE(isUntouched());
    }

    UpdateFolder folder;
    test::TestKey key;
    HttpServer announcer;
    /// What the desktop would open goes into a file, whose path this is: what it starts has a life
    /// of its own, and would stand on the desktop of the tests that follow.
    QString standInForXdgOpen()
    {
        QString opened = makeFolder(u"programs"_s) + u"/opened"_s;
        const QString program = makeFile(
            u"programs/xdg-open"_s, "#!/bin/sh\nprintf %s \"$1\" >'" + opened.toUtf8() + "'\n");
        QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
        environment.insert(u"PATH"_s,
                           makeFolder(u"programs"_s) + u':' + environment.value(u"PATH"_s));
        return opened;
    }

    QProcessEnvironment environment;
    QByteArray newImage;

private:
    std::unique_ptr<X11Tray> m_tray;
};

} // namespace

TEST_F(Updates, whoeverHasTheNewestIsToldSo)
{
    announce(test::feed(item("10", key.sign(newImage))));
    startUpdating();
    checkFromMenu();
    EXPECT_TRUE(says("Corvane is up to date"));
    EXPECT_TRUE(isInFront());
    hands().key(keys::enter);
    EXPECT_TRUE(eventually([this] { return !window(); }));
    EXPECT_TRUE(isUntouched());
}

TEST_F(Updates, aNewVersionTakesThePlaceOfTheOldOneWhichGoesWithTheNextStart)
{
    announceNewer();
    serve(newImage);
    startUpdating();
    takeOffer();
    EXPECT_TRUE(says("Corvane 11.0 is installed"));
    EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == newImage);
    EXPECT_TRUE(UpdateFolder::contents(folder.previous()) == UpdateFolder::oldImage());
    EXPECT_TRUE(QFileInfo(QFile::decodeName(folder.appImage())).isExecutable());
    EXPECT_EQ(beside(), QStringList{u"Corvane.AppImage.before-update"_s});
    end();

    startUpdating();
    EXPECT_TRUE(eventually([this] { return beside().isEmpty(); }));
    EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == newImage);
}

TEST_F(Updates, outsideAnAppImageTheFileIsInTheDownloads)
{
    environment.remove(u"APPIMAGE"_s);
    const QString downloads = makeFolder(u"downloads"_s);
    QDir().mkpath(environment.value(u"XDG_CONFIG_HOME"_s));
    QFile directories(environment.value(u"XDG_CONFIG_HOME"_s) + u"/user-dirs.dirs"_s);
    ASSERT_TRUE(directories.open(QFile::WriteOnly));
    directories.write("XDG_DOWNLOAD_DIR=\"" + QFile::encodeName(downloads) + "\"\n");
    directories.close();
    const QString shown = standInForXdgOpen();
    announceNewer();
    serve(newImage);
    startUpdating();
    takeOffer();
    EXPECT_TRUE(says("Corvane 11.0 is downloaded"));
    EXPECT_TRUE(eventually([&] {
        return UpdateFolder::contents(QFile::encodeName(shown))
            == QUrl::fromLocalFile(downloads).toEncoded();
    })) << "the folder is not shown";
    EXPECT_EQ(QDir(downloads).entryList(QDir::Files | QDir::Hidden),
              QStringList{u"Corvane-11.AppImage"_s});
    EXPECT_TRUE(UpdateFolder::contents(QFile::encodeName(downloads) + imagePath) == newImage);
    EXPECT_TRUE(isUntouched());
    directories.remove();
}

TEST_F(Updates, aWrongSignatureIsRefused)
{
    announce(test::feed(item("11", test::TestKey().sign(newImage))));
    serve(newImage);
    expectRefusal();
}

TEST_F(Updates, aFileThatWasChangedIsRefused)
{
    announceNewer();
    QByteArray changed = newImage;
    changed[2'000'000] = 'x';
    serve(changed);
    expectRefusal();
}

TEST_F(Updates, aTruncatedFileIsRefused)
{
    announceNewer();
    announcer.answer(
        imagePath, "HTTP/1.1 200 OK\r\nContent-Length: 3000000\r\n\r\n" + newImage.left(2'000'000));
    expectRefusal();
}

TEST_F(Updates, aFileLongerThanDeclaredIsRefused)
{
    announceNewer();
    serve(newImage + "more");
    expectRefusal();
}

TEST_F(Updates, aFileWithoutEndIsLeft)
{
    announceNewer();
    announcer.answerForEver(imagePath, "HTTP/1.1 200 OK\r\n\r\n", QByteArray(60'000, 'x'));
    expectRefusal();
}

TEST_F(Updates, aFileThatARedirectionHasOnHttpIsNotFetched)
{
    announceNewer();
    HttpServer elsewhere;
    elsewhere.answer("/new", test::response(200, newImage));
    announcer.answer(imagePath, test::redirection(elsewhere.url(u"/new"_s).toEncoded()));
    expectRefusal();
    EXPECT_EQ(elsewhere.connections, 0);
}

TEST_F(Updates, aFeedThatARedirectionHasOnHttpIsNotFetched)
{
    HttpServer elsewhere;
    elsewhere.answer("/feed", test::response(200, test::feed("")));
    announcer.answer(feedPath, test::redirection(elsewhere.url(u"/feed"_s).toEncoded()));
    expectNoOffer();
    EXPECT_EQ(elsewhere.connections, 0);
}

TEST_F(Updates, aFeedThatIsNoXmlIsSaidToBe)
{
    announce(R"({"version": 11})");
    expectNoOffer();
}

TEST_F(Updates, anEntityBombIsRefused)
{
    announce(test::entityBomb());
    expectNoOffer();
}

TEST_F(Updates, aFeedThatGoesBackIsNotFollowed)
{
    announce(test::feed(item("12", key.sign(newImage))));
    startUpdating();
    checkFromMenu();
    ASSERT_TRUE(says("Corvane 12.0 is available"));
    ASSERT_TRUE(isInFront());
    hands().key(keys::escape);
    ASSERT_TRUE(eventually([this] { return !window(); }));
    end();

    announceNewer();
    expectNoOffer();
}

TEST_F(Updates, aFullDiskIsSaidToBe)
{
    announceNewer();
    serve(newImage);
    // Files of a megabyte at most, in the shell's blocks: no more is there for them.
    startUpdating(u"/bin/sh"_s,
                  {u"-c"_s, u"trap '' XFSZ; ulimit -f 2048; exec \"$0\""_s, program()});
    takeOffer();
    EXPECT_TRUE(says("Corvane was not updated"));
    EXPECT_TRUE(isUntouched());
}

TEST_F(Updates, aDownloadThatIsCancelledLeavesNothing)
{
    announceNewer();
    serveTheBeginning();
    startUpdating();
    takeOffer();
    ASSERT_TRUE(says("Downloading Corvane 11.0"));
    EXPECT_TRUE(eventually([this] { return !beside().isEmpty(); }));
    hands().key(keys::escape);
    EXPECT_TRUE(eventually([this] { return !window(); }));
    EXPECT_TRUE(isUntouched());
}

TEST_F(Updates, aDownloadThatIsKilledLeavesTheImageAndTheNextOneTidiesUp)
{
    announceNewer();
    serveTheBeginning();
    startUpdating();
    takeOffer();
    EXPECT_TRUE(eventually([this] { return !beside().isEmpty(); }));
    corvane().program().signal(SIGKILL);
    corvane().program().waitForEnd();
    EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == UpdateFolder::oldImage());
    EXPECT_EQ(beside().size(), 1);

    serve(newImage);
    startUpdating();
    takeOffer();
    EXPECT_TRUE(says("Corvane 11.0 is installed"));
    EXPECT_EQ(beside(), QStringList{u"Corvane.AppImage.before-update"_s});
}

/// A system call of the swap that the process does not live through.
struct DeadlyCall {
    const char *name;
    QString calls;
    /// Of those calls on this file.
    const char *file;
    int nth;
    bool isReplaced;
};

class UpdatesKilled : public Updates, public testing::WithParamInterface<DeadlyCall> { };
// With the old image alone, with a second name for it, and with the new one in its place.
INSTANTIATE_TEST_SUITE_P(, UpdatesKilled,
                         testing::Values(DeadlyCall{"keeping", u"link,linkat"_s, "Corvane.AppImage",
                                                    1, false},
                                         DeadlyCall{"replacing", u"fsync"_s, "", 1, false},
                                         DeadlyCall{"syncing", u"fsync"_s, "", 2, true}),
                         [](const auto &call) { return std::string(call.param.name); });

TEST_P(UpdatesKilled, inTheMiddleOfTheSwapAWholeImageIsThereAndTheNextUpdateWorks)
{
    const DeadlyCall &call = GetParam();
    announceNewer();
    serve(newImage);
    const QString inject
        = u"inject="_s + call.calls + u":signal=KILL:when="_s + QString::number(call.nth);
    QByteArray traced = folder.path(call.file);
    while (traced.endsWith('/'))
        traced.chop(1);
    // The tracer is a process of its own, so that the program keeps the number it was started with.
    startUpdating(u"strace"_s,
                  {u"-D"_s, u"-f"_s, u"-o"_s, u"/dev/null"_s, u"-e"_s, inject, u"-P"_s,
                   QFile::decodeName(traced), program()});
    takeOffer();
    EXPECT_TRUE(corvane().program().waitForEnd());
    const QByteArray image = UpdateFolder::contents(folder.appImage());
    EXPECT_TRUE(image == (call.isReplaced ? newImage : UpdateFolder::oldImage()));
    EXPECT_TRUE(QFileInfo(QFile::decodeName(folder.appImage())).isExecutable());

    startUpdating();
    takeOffer();
    EXPECT_TRUE(says("Corvane 11.0 is installed"));
    EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == newImage);
}

TEST_F(Updates, whereNothingIsConfiguredTheMenuDoesNotOfferThem)
{
    NotifierPanel panel(m_desktop);
    ASSERT_TRUE(panel.waitUntilReady());
    const QString row = u"Check for Updates…"_s;
    {
        start();
        const qint64 pid = corvane().program().pid();
        ASSERT_TRUE(panel.waitForItemOf(pid));
        EXPECT_FALSE(NotifierFacts(m_desktop, pid).menu().contains(row));
        end();
    }
    CorvaneProgram::Start how;
    how.environment = environment;
    how.program = program();
    start(how);
    const qint64 pid = corvane().program().pid();
    ASSERT_TRUE(panel.waitForItemOf(pid));
    EXPECT_TRUE(NotifierFacts(m_desktop, pid).menu().contains(row));
}

TEST_F(Updates, insideFlatpakTheMenuDoesNotOfferThem)
{
    NotifierPanel panel(m_desktop);
    ASSERT_TRUE(panel.waitUntilReady());
    CorvaneProgram::Start how;
    how.environment = environment;
    how.environment.insert(u"FLATPAK_ID"_s, u"example.corvane.Corvane"_s);
    how.program = program();
    start(how);
    const qint64 pid = corvane().program().pid();
    ASSERT_TRUE(panel.waitForItemOf(pid));
    EXPECT_FALSE(NotifierFacts(m_desktop, pid).menu().contains(u"Check for Updates…"_s));
}

} // namespace corvane::e2e
