#pragma once

#include "app/updates/feeds.h"
#include "app/updates/installation_steps.h"
#include "app/updates/software_updater.h"
#include "app/updates/statements.h"
#include "app/updates/test_key.h"
#include "app/updates/update_folder.h"
#include "fakes/fake_desktop_services.h"
#include "fakes/fake_update_display.h"
#include "fakes/fake_web_client.h"
#include "fakes/fake_web_downloader.h"
#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"

#include <memory>

namespace corvane::test {

/// An updater of version 1.0, build 10, in an AppImage that really is there.
struct UpdaterDesk {
    static constexpr double day = 24 * 3600;

    UpdaterDesk() { installation = {Installation::Kind::AppImage, folder.appImage()}; }

    void make()
    {
        updater.reset();
        updater = std::make_unique<SoftwareUpdater>(
            SoftwareUpdater::Context{.web = web,
                                     .download = {.web = downloader, .queue = clock, .work = work},
                                     .steps = files,
                                     .display = display,
                                     .desktop = desktop,
                                     .record = UpdateRecordFile(state.path("corvane")),
                                     .now
                                     = [this] { return began + static_cast<qint64>(clock.now()); },
                                     .checksAutomatically = [this] { return isAutomatic; },
                                     .wantsBetas = [this] { return wantsBetas; }},
            SoftwareUpdater::Program{
                .feedAddress = QStringLiteral("https://corvane.example/appcast.xml"),
                .publicKey = builtInKey.isEmpty() ? key.publicText() : builtInKey,
                .applicationId = QStringLiteral("example.corvane.Corvane"),
                .version = QStringLiteral("1.0"),
                .build = QStringLiteral("10"),
                .system
                = {QStringLiteral("x86_64"), QStringLiteral("debian"), QStringLiteral("12")},
                .installation = installation,
                .downloadsFolder = downloads.path()});
        updater->start();
        settle();
    }
    /// Runs what is to be done now, on all threads.
    void settle()
    {
        do {
            clock.runPending();
            work.runAll();
            clock.runPending();
        } while (work.pendingCount() > 0);
    }
    void pass(double seconds)
    {
        clock.advance(seconds);
        settle();
    }

    /// An item that announces an image, with the makers' statement.
    QByteArray item(const QByteArray &build, const QByteArray &image) const
    {
        return Statement::of(build, image).item(key, image);
    }
    /// The same without the statement.
    QByteArray unsignedItem(const QByteArray &build, const QByteArray &image) const
    {
        return "<item>" + Statement::of(build, image).attributes(key.sign(image)) + "</item>";
    }

    void answer(const QByteArray &bytes)
    {
        web.answerWith(web.requests.size() - 1, bytes);
        settle();
    }
    void checkNow(const QByteArray &feedBytes)
    {
        if (!updater)
            make();
        updater->checkForUpdates();
        answer(feedBytes);
    }
    /// The new image is announced, and the user wants it.
    void beginDownload()
    {
        checkNow(feed(item("11", UpdateFolder::newImage())));
        display.onInstall();
        settle();
    }

    bool isUntouched() const
    {
        return UpdateFolder::contents(folder.appImage()) == UpdateFolder::oldImage()
            && folder.names() == QStringList{QStringLiteral("Corvane.AppImage")};
    }

    UpdateFolder folder;
    UpdateFolder downloads;
    UpdateFolder state;
    TestKey key;
    FakeWebClient web;
    FakeWebDownloader downloader;
    TestClock clock;
    FakeWorkQueue work;
    PosixInstallationSteps files;
    FakeUpdateDisplay display;
    FakeDesktopServices desktop;
    Installation installation;
    bool isAutomatic = true;
    bool wantsBetas = false;
    /// In base64; that of `key` where it is empty.
    QString builtInKey;
    qint64 began = 1'800'000'000;
    std::unique_ptr<SoftwareUpdater> updater;
};

} // namespace corvane::test
