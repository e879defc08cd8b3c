// What somebody can try who holds the server of the feed, or stands between it and the user, but
// not the key: the attacks that The Update Framework names. After each of them the running file is
// the same, byte by byte, and the next genuine update works.

#include "e2e/updates_desk.h"

#include <QTimer>

namespace corvane::e2e {

namespace {

class UpdateAttacks : public Updates {
protected:
    void SetUp() override
    {
        Updates::SetUp();
        startUpdating();
    }

    /// Asks, and is told that something is wrong with what is announced.
    void expectRefusedFeed(const QByteArray &items)
    {
        announce(test::feed(items));
        expectRefusedFeed();
    }
    void expectRefusedFeed()
    {
        checkFromMenu();
        EXPECT_TRUE(says("Corvane could not check for updates"));
        expectWholeAndNextUpdate();
    }
    /// Asks, and is told that nothing is newer.
    void expectNothingNewer(const QByteArray &items)
    {
        announce(test::feed(items));
        checkFromMenu();
        EXPECT_TRUE(says("Corvane is up to date"));
        expectWholeAndNextUpdate();
    }
    /// Takes the offer, and is told that it was not installed.
    void expectRefusedFile()
    {
        takeOffer();
        EXPECT_TRUE(says("Corvane was not updated"));
        expectWholeAndNextUpdate();
    }
    void expectWholeAndNextUpdate()
    {
        closeWindow();
        EXPECT_TRUE(isUntouched());
        announce(test::feed(item("13")));
        serve(newImage);
        takeOffer("13.0");
        EXPECT_TRUE(says("Corvane 13.0 is installed"));
        EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == newImage);
        EXPECT_TRUE(UpdateFolder::contents(folder.previous()) == UpdateFolder::oldImage());
    }
    bool wasAskedFor(const QByteArray &target) const
    {
        for (const QByteArray &request : announcer.requests) {
            if (request.startsWith(QByteArray("GET " + target + ' ')))
                return true;
        }
        return false;
    }

    test::TestKey thief;
    QByteArray wanted = UpdateFolder::image('w', 500'000);
};

} // namespace

TEST_F(UpdateAttacks, arbitrarySoftwareThatSomebodyElseSignedIsNotOffered)
{
    serve(wanted);
    expectRefusedFeed(statement("11", wanted).item(thief, wanted));
}

TEST_F(UpdateAttacks, arbitrarySoftwareInPlaceOfTheStatedFileIsThrownAway)
{
    announceNewer();
    serve(UpdateFolder::image('w', 3'000'000));
    expectRefusedFile();
}

TEST_F(UpdateAttacks, arbitrarySoftwareWithoutAStatementIsNotOffered)
{
    serve(wanted);
    expectRefusedFeed("<item>" + statement("11", wanted).attributes(thief.sign(wanted))
                      + "</item>");
}

// The feed says 99; the statement says what the file is.
TEST_F(UpdateAttacks, rollbackToAnOldReleaseUnderANewVersionDoesNothing)
{
    const QByteArray old = UpdateFolder::image('8', 200'000);
    serve(old);
    QByteArray dressedUp = statement("8", old).item(key, old);
    dressedUp.replace("<sparkle:version>8<", "<sparkle:version>99<");
    expectNothingNewer(dressedUp);
}

TEST_F(UpdateAttacks, rollbackToAnOldReleaseWithoutItsStatementDoesNothing)
{
    const QByteArray old = UpdateFolder::image('8', 200'000);
    serve(old);
    test::Statement dressedUp = statement("8", old);
    dressedUp.version = "99";
    expectRefusedFeed("<item>" + dressedUp.attributes(key.sign(old)) + "</item>");
}

TEST_F(UpdateAttacks, rollbackBehindAReleaseThatWasStatedBeforeIsRefusedAcrossStarts)
{
    announce(test::feed(item("12")));
    checkFromMenu();
    ASSERT_TRUE(says("Corvane 12.0 is available"));
    closeWindow();
    end();
    startUpdating();
    expectRefusedFeed(item("11"));
}

// One unsigned item ended updates for good while versions were remembered before they were
// verified.
TEST_F(UpdateAttacks, fastForwardByAVersionThatNobodySignedIsForgotten)
{
    test::Statement nines = statement("11");
    nines.version = QByteArray(64, '9');
    expectRefusedFeed("<item><sparkle:version>" + nines.version
                      + "</sparkle:version><enclosure/></item><item>"
                      + nines.attributes(key.sign(newImage)) + "</item>");
}

TEST_F(UpdateAttacks, freezeOnAFeedWhoseTimeIsOverIsSaidToBe)
{
    test::Statement present = statement("10");
    present.expiry = "2026-11-02T00:00:00Z";
    expectRefusedFeed(present.item(key, newImage));
}

TEST_F(UpdateAttacks, freezeByAFeedThatSaysNothingIsSaidToBe)
{
    expectRefusedFeed("");
}

TEST_F(UpdateAttacks, mixAndMatchOfOneReleasesStatementAndAnothersFileIsRefused)
{
    const QByteArray old = UpdateFolder::image('8', 200'000);
    serve(old);
    test::Statement attributes = statement("8", old);
    attributes.version = "11";
    expectRefusedFeed("<item>" + attributes.attributes(key.sign(old)) + statement("11").element(key)
                      + "</item>");
}

TEST_F(UpdateAttacks, mixAndMatchOfOneReleasesStatementAndAnothersNotesIsRefused)
{
    test::Statement attributes = statement("11");
    attributes.notes = "Please turn off your updates";
    expectRefusedFeed("<item>" + attributes.attributes(key.sign(newImage))
                      + statement("11").element(key) + "</item>");
}

TEST_F(UpdateAttacks, mixAndMatchOfOneStatementAndAnothersSignatureIsRefused)
{
    const test::Statement made = statement("11");
    expectRefusedFeed("<item>" + made.attributes(key.sign(newImage))
                      + test::Statement::element(made.bytes(), key.sign(statement("12").bytes()))
                      + "</item>");
}

TEST_F(UpdateAttacks, endlessDataInTheFeedIsLeft)
{
    announcer.answerForEver(feedPath, "HTTP/1.1 200 OK\r\n\r\n<rss><channel>",
                            QByteArray("<item/>").repeated(8'000));
    expectRefusedFeed();
}

TEST_F(UpdateAttacks, endlessDataInPlaceOfTheFileIsLeft)
{
    announceNewer();
    announcer.answerForEver(imagePath, "HTTP/1.1 200 OK\r\n\r\n", QByteArray(60'000, 'x'));
    expectRefusedFile();
}

TEST_F(UpdateAttacks, aFeedThatIsMeantToTakeLongIsLeft)
{
    QByteArray attributes;
    for (int i = 0; attributes.size() < 900'000; ++i)
        attributes += " a" + QByteArray::number(i) + "=''";
    expectRefusedFeed("<item" + attributes + "/>");
}

// Whatever else an item names is not needed for the stated file, and nobody fetches it.
TEST_F(UpdateAttacks, extraneousDependenciesAreNotFetched)
{
    test::Statement more = statement("11", wanted);
    more.address = announcer.url(u"/needed.AppImage"_s).toEncoded();
    announcer.answer("/needed.AppImage", test::response(200, wanted));
    const test::Statement made = statement("13");
    announce(test::feed("<item>" + more.enclosure(thief.sign(wanted))
                        + made.attributes(key.sign(newImage)) + made.element(key)
                        + more.enclosure(thief.sign(wanted)) + more.element(thief) + "</item>"));
    serve(newImage);
    takeOffer("13.0");
    EXPECT_TRUE(says("Corvane 13.0 is installed"));
    EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == newImage);
    EXPECT_FALSE(wasAskedFor("/needed.AppImage"));
    EXPECT_EQ(beside(), QStringList{u"Corvane.AppImage.before-update"_s});
}

TEST_F(UpdateAttacks, slowRetrievalOfTheFeedIsLeft)
{
    announcer.on(feedPath, [](QTcpSocket &socket) {
        auto *timer = new QTimer(&socket);
        QObject::connect(timer, &QTimer::timeout, &socket, [&socket] { socket.write(" "); });
        timer->start(500);
        socket.write("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n");
    });
    checkFromMenu();
    ASSERT_TRUE(says("Looking for updates"));
    EXPECT_TRUE(eventually([this] { return title().contains("could not check"); },
                           std::chrono::seconds(30)));
    expectWholeAndNextUpdate();
}

TEST_F(UpdateAttacks, slowRetrievalOfTheFileKeepsNobodyFromEndingIt)
{
    announceNewer();
    announcer.on(imagePath, [](QTcpSocket &socket) {
        auto *timer = new QTimer(&socket);
        QObject::connect(timer, &QTimer::timeout, &socket, [&socket] { socket.write("x"); });
        timer->start(100);
        socket.write("HTTP/1.1 200 OK\r\nContent-Length: 3000000\r\n\r\n");
    });
    takeOffer();
    ASSERT_TRUE(says("Downloading Corvane 11.0"));
    expectWholeAndNextUpdate();
}

TEST_F(UpdateAttacks, wrongSoftwareOfTheSameMakersIsNotOffered)
{
    test::Statement other = statement("11", wanted);
    other.application = "example.corvane.Other";
    serve(wanted);
    expectRefusedFeed(other.item(key, wanted));
}

TEST_F(UpdateAttacks, wrongSoftwareForAnotherMachineIsNotOffered)
{
    test::Statement other = statement("11", wanted);
    other.architecture = "arm64";
    serve(wanted);
    expectRefusedFeed(other.item(key, wanted));
}

// Signed by mistake: it is the user's, but it does not run in place of this one.
TEST_F(UpdateAttacks, wrongSoftwareInASignedFileReplacesNothing)
{
    end();
    const QString downloaded = downloads();
    standInForXdgOpen();
    startUpdating();
    QByteArray other = wanted;
    other.replace("example.corvane.Corvane", "example.corvane.Another");
    announce(test::feed(statement("11", other).item(key, other)));
    serve(other);
    takeOffer();
    EXPECT_TRUE(says("Corvane 11.0 is downloaded"));
    EXPECT_TRUE(UpdateFolder::contents(QFile::encodeName(downloaded) + imagePath) == other);
    expectWholeAndNextUpdate();
    forgetDownloads();
}

TEST_F(UpdateAttacks, aStolenKeyCountsForNothingOnceItHasNamedTheNextOne)
{
    const test::TestKey next;
    test::Statement last = statement("10");
    last.nextKey = next.publicBytes();
    const QByteArray handover = last.item(key, newImage);
    announce(test::feed(handover));
    checkFromMenu();
    ASSERT_TRUE(says("Corvane is up to date"));
    closeWindow();

    serve(wanted);
    announce(test::feed(handover + statement("12", wanted).item(key, wanted)));
    checkFromMenu();
    EXPECT_TRUE(says("Corvane could not check for updates"));
    EXPECT_TRUE(isUntouched());
    closeWindow();
    announce(test::feed(handover + statement("13").item(next, newImage)));
    serve(newImage);
    takeOffer("13.0");
    EXPECT_TRUE(says("Corvane 13.0 is installed"));
    EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == newImage);
}

TEST_F(UpdateAttacks, aNumberThatAThiefUsedUpDoesNotOutliveTheKey)
{
    test::Statement highest = statement("99999", wanted);
    highest.number = "1000000000000000";
    announce(test::feed(highest.item(key, wanted)));
    checkFromMenu();
    ASSERT_TRUE(says("Corvane 99999.0 is available"));
    closeWindow();
    EXPECT_TRUE(isUntouched());

    const test::TestKey next;
    test::Statement last = statement("11");
    last.nextKey = next.publicBytes();
    announce(test::feed(last.item(key, newImage) + statement("13").item(next, newImage)));
    serve(newImage);
    takeOffer("13.0");
    EXPECT_TRUE(says("Corvane 13.0 is installed"));
    EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == newImage);
}

TEST_F(UpdateAttacks, aDamagedRecordIsSetAsideAndUpdatesGoOn)
{
    end();
    const QByteArray record = folder.path("state/corvane/updates.json");
    QDir().mkpath(QFileInfo(QFile::decodeName(record)).path());
    QFile damaged(QFile::decodeName(record));
    ASSERT_TRUE(damaged.open(QFile::WriteOnly));
    damaged.write("{ \"releases\": 9999999");
    damaged.close();
    startUpdating();
    expectNothingNewer(item("10"));
    EXPECT_EQ(UpdateFolder::contents(record + ".set-aside"), "{ \"releases\": 9999999");
}

} // namespace corvane::e2e
