// Software updates, from a server that a test has misbehave, for an AppImage whose bytes are looked
// at.

#include "e2e/updates_desk.h"

namespace corvane::e2e {

TEST_F(Updates, whoeverHasTheNewestIsToldSo)
{
    announce(test::feed(item("10")));
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
    const QString downloads = this->downloads();
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
    forgetDownloads();
}

TEST_F(Updates, aWrongSignatureIsRefused)
{
    const test::Statement made = statement("11");
    announce(test::feed("<item>" + made.attributes(test::TestKey().sign(newImage))
                        + made.element(key) + "</item>"));
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
    announce(test::feed(item("12")));
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
