#pragma once

#include "app/updates/feeds.h"
#include "app/updates/statements.h"
#include "app/updates/test_key.h"
#include "app/updates/update_folder.h"
#include "e2e/desktop/tray_panel.h"
#include "e2e/desktop_test.h"
#include "platform/qt/web/http_server.h"

#include <QFile>
#include <QFileInfo>

#include <csignal>

namespace corvane::e2e {

using namespace Qt::StringLiterals;
using test::HttpServer;
using test::UpdateFolder;

constexpr auto feedPath = "/appcast.xml";
constexpr auto imagePath = "/Corvane-11.AppImage";

/// A program that looks for updates on a server of the test's own, with a key of the test's own, in
/// an AppImage whose bytes are looked at. The file has an AppImage's layout and no file system: the
/// program beside it is what runs.
class Updates : public DesktopTest {
protected:
    Updates() { newImage = UpdateFolder::image('n', 3'000'000); }

    void SetUp() override
    {
        DesktopTest::SetUp();
        QDir(folder.directory.path()).mkpath(u"mount/usr/bin"_s);
        // Where the program makes it, it waits for the folder around it, which holds the image.
        QDir(folder.directory.path()).mkpath(u"state"_s);
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

    QString downloads()
    {
        QString chosen = makeFolder(u"downloads"_s);
        QDir().mkpath(environment.value(u"XDG_CONFIG_HOME"_s));
        QFile directories(environment.value(u"XDG_CONFIG_HOME"_s) + u"/user-dirs.dirs"_s);
        if (directories.open(QFile::WriteOnly))
            directories.write("XDG_DOWNLOAD_DIR=\"" + QFile::encodeName(chosen) + "\"\n");
        return chosen;
    }
    void forgetDownloads() const
    {
        QFile::remove(environment.value(u"XDG_CONFIG_HOME"_s) + u"/user-dirs.dirs"_s);
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
    /// What the makers state of a release, whose file is the new image.
    test::Statement statement(const QByteArray &build) const { return statement(build, newImage); }
    test::Statement statement(const QByteArray &build, const QByteArray &file) const
    {
        test::Statement made = test::Statement::of(build, file);
        made.address = announcer.url(QLatin1String(imagePath)).toEncoded();
        return made;
    }
    QByteArray item(const QByteArray &build) const { return statement(build).item(key, newImage); }
    void announceNewer() { announce(test::feed(item("11"))); }
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
    void takeOffer(const QByteArray &version = "11.0")
    {
        checkFromMenu();
        ASSERT_TRUE(says("Corvane " + version + " is available"));
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

    void closeWindow()
    {
        ASSERT_TRUE(isInFront());
        hands().key(keys::escape);
        ASSERT_TRUE(eventually([this] { return !window(); }));
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

} // namespace corvane::e2e
