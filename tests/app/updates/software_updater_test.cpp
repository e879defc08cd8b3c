#include "app/updates/appcast.h"
#include "app/updates/software_updater.h"
#include "app/updates/updater_desk.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using Stage = UpdateReport::Stage;

class SoftwareUpdaterTest : public testing::Test, protected UpdaterDesk {
protected:
    std::size_t checks() const { return web.requests.size(); }
    bool hasFailed(UpdateFailure failure) const
    {
        return display.report.stage == Stage::Failed && display.report.failure == failure;
    }
    QByteArray newer() const { return feed(item("11", UpdateFolder::newImage())); }
    QByteArray same() const { return feed(item("10", UpdateFolder::newImage())); }
    std::optional<UpdateFailure> noticed() const
    {
        const auto &notice = updater->notices().now();
        return notice ? std::optional(notice->failure) : std::nullopt;
    }
    /// What an automatic check finds.
    void checkBySelf(const QByteArray &bytes)
    {
        pass(day);
        answer(bytes);
    }
    /// A feed that is good until that many days from the beginning of the test.
    QByteArray goodFor(const QByteArray &build, double days) const
    {
        Statement statement = Statement::of(build, UpdateFolder::newImage());
        statement.expiry = QDateTime::fromSecsSinceEpoch(began + static_cast<qint64>(days * day))
                               .toUTC()
                               .toString(Qt::ISODate)
                               .toLatin1();
        return feed(statement.item(key, UpdateFolder::newImage()));
    }
};

} // namespace

TEST_F(SoftwareUpdaterTest, TheFirstCheckComesAMinuteAfterTheStart)
{
    make();
    pass(59.9);
    EXPECT_EQ(checks(), 0U);
    pass(0.2);
    EXPECT_EQ(checks(), 1U);
}

TEST_F(SoftwareUpdaterTest, ChecksThatNobodyAskedForComeOnceADay)
{
    make();
    pass(60);
    answer(same());
    pass(day - 1);
    EXPECT_EQ(checks(), 1U);
    pass(2);
    EXPECT_EQ(checks(), 2U);
}

TEST_F(SoftwareUpdaterTest, TheDayGoesOnAcrossStarts)
{
    make();
    pass(60);
    answer(same());
    pass(3600);
    make();
    pass(day - 3700);
    EXPECT_EQ(checks(), 1U);
    pass(200);
    EXPECT_EQ(checks(), 2U);
}

TEST_F(SoftwareUpdaterTest, ACheckThatWasAskedForCountsAsTheDays)
{
    make();
    updater->checkForUpdates();
    answer(same());
    pass(3600);
    EXPECT_EQ(checks(), 1U);
}

TEST_F(SoftwareUpdaterTest, ACheckInTheFutureWasAWrongClocks)
{
    make();
    updater->checkForUpdates();
    began -= 1'000'000;
    make();
    pass(60);
    EXPECT_EQ(checks(), 2U);
}

TEST_F(SoftwareUpdaterTest, WithAutomaticChecksOffNobodyIsAsked)
{
    isAutomatic = false;
    make();
    pass(10 * day);
    EXPECT_EQ(checks(), 0U);
    EXPECT_FALSE(updater->automaticallyChecksForUpdates());
}

TEST_F(SoftwareUpdaterTest, TheSettingIsFollowedAtOnce)
{
    make();
    pass(30);
    updater->setAutomaticallyChecksForUpdates(false);
    pass(10 * day);
    EXPECT_EQ(checks(), 0U);
    updater->setAutomaticallyChecksForUpdates(true);
    EXPECT_TRUE(updater->automaticallyChecksForUpdates());
    pass(60);
    EXPECT_EQ(checks(), 1U);
}

TEST_F(SoftwareUpdaterTest, NobodyHearsOfACheckThatFoundNothingOrFailed)
{
    make();
    pass(60);
    answer(same());
    pass(day);
    answer("no feed");
    pass(3600);
    web.fail(checks() - 1);
    settle();
    EXPECT_EQ(checks(), 3U);
    EXPECT_TRUE(display.stages.empty());
    EXPECT_FALSE(noticed());
}

TEST_F(SoftwareUpdaterTest, ACheckThatFailedIsRepeatedAfterAnHour)
{
    make();
    pass(60);
    web.fail(0);
    settle();
    pass(3600 - 1);
    EXPECT_EQ(checks(), 1U);
    pass(2);
    EXPECT_EQ(checks(), 2U);
    answer("no feed");
    make();
    pass(3600 - 61);
    EXPECT_EQ(checks(), 2U) << "after a start, too";
    pass(62);
    ASSERT_EQ(checks(), 3U);
    answer(same());
    pass(day - 10);
    EXPECT_EQ(checks(), 3U) << "and after a day once it went well";
    pass(20);
    EXPECT_EQ(checks(), 4U);
}

TEST_F(SoftwareUpdaterTest, ANewVersionIsToldOfWithoutBeingAskedFor)
{
    make();
    pass(60);
    answer(newer());
    EXPECT_EQ(display.stages, std::vector{Stage::Available});
    EXPECT_EQ(display.attentions, std::vector{UpdateAttention::Unasked});
    EXPECT_EQ(display.report.version, QStringLiteral("11.0"));
    EXPECT_EQ(display.report.notes, QStringLiteral("Notes of 11"));
}

TEST_F(SoftwareUpdaterTest, WhoeverAsksAlwaysGetsAnAnswer)
{
    checkNow(same());
    EXPECT_EQ(display.stages, (std::vector{Stage::Checking, Stage::UpToDate}));
    checkNow(newer());
    EXPECT_EQ(display.report.stage, Stage::Available);
    EXPECT_EQ(display.attentions.back(), UpdateAttention::Asked);
}

TEST_F(SoftwareUpdaterTest, WhoeverAsksWhileACheckRunsHearsOfIt)
{
    make();
    pass(60);
    updater->checkForUpdates();
    EXPECT_EQ(display.report.stage, Stage::Checking);
    answer(same());
    EXPECT_EQ(checks(), 1U);
    EXPECT_EQ(display.report.stage, Stage::UpToDate);
}

TEST_F(SoftwareUpdaterTest, TheFeedIsAskedForSafelyAndWithinItsBounds)
{
    make();
    updater->checkForUpdates();
    const WebRequest &request = web.requests.at(0);
    EXPECT_EQ(request.url, QUrl(QStringLiteral("https://corvane.example/appcast.xml")));
    EXPECT_TRUE(request.mustBeSecure);
    EXPECT_EQ(request.maximumBytes, 1024 * 1024 + 1);
    EXPECT_EQ(request.userAgent, "Corvane/1.0");
}

TEST_F(SoftwareUpdaterTest, AFeedThatCannotBeHadIsSaidToBe)
{
    make();
    updater->checkForUpdates();
    web.fail(0);
    EXPECT_TRUE(hasFailed(UpdateFailure::Unreachable));
    updater->checkForUpdates();
    web.answer(1, WebResponse{404, -1, {}, newer()});
    EXPECT_TRUE(hasFailed(UpdateFailure::Unreachable));
}

TEST_F(SoftwareUpdaterTest, TheWayThatACheckAndADownloadTookIsTold)
{
    const WebRoute proxied{WebRoute::Kind::Proxied, {WebProxy::Kind::Http, QStringLiteral("p"), 1}};
    make();
    updater->checkForUpdates();
    EXPECT_FALSE(display.report.route);
    web.requests.back().onRoute(proxied);
    answer(feed(item("11", UpdateFolder::newImage())));
    EXPECT_EQ(display.report.stage, Stage::Available);
    EXPECT_EQ(display.report.route, proxied);
    display.onInstall();
    settle();
    downloader.downloads.back().request.onRoute(WebRoute{WebRoute::Kind::NeedsScript});
    downloader.fail();
    settle();
    EXPECT_EQ(display.report.stage, Stage::Failed);
    EXPECT_EQ(display.report.route, (WebRoute{WebRoute::Kind::NeedsScript}));

    display.onDismiss();
    updater->checkForUpdates();
    EXPECT_FALSE(display.report.route) << "of the check before";
    web.requests.back().onRoute(WebRoute{});
    answer(newer());
    EXPECT_EQ(display.report.stage, Stage::Available);
    EXPECT_EQ(display.report.route, WebRoute{});
}

TEST_F(SoftwareUpdaterTest, TheWayOfACheckThatFoundNothingIsToldToo)
{
    make();
    updater->checkForUpdates();
    web.requests.back().onRoute(WebRoute{});
    answer(same());
    EXPECT_EQ(display.report.stage, Stage::UpToDate);
    EXPECT_EQ(display.report.route, WebRoute{});
}

TEST_F(SoftwareUpdaterTest, WhatIsNoFeedIsSaidToBe)
{
    for (const QByteArray &bytes : {QByteArray("<html/>"), entityBomb(),
                                    QByteArray(newer() + QByteArray(appcast::maximumBytes, ' '))}) {
        checkNow(bytes);
        EXPECT_TRUE(hasFailed(UpdateFailure::NotAFeed));
    }
}

TEST_F(SoftwareUpdaterTest, NothingThatIsOlderThanTheRunningVersionIsOffered)
{
    checkNow(feed(item("9", UpdateFolder::newImage())));
    EXPECT_EQ(display.report.stage, Stage::UpToDate);
}

TEST_F(SoftwareUpdaterTest, AFeedThatNobodySignedProvesNothing)
{
    checkNow(feed(""));
    EXPECT_TRUE(hasFailed(UpdateFailure::Unverifiable));
    checkNow(feed(unsignedItem("10", UpdateFolder::newImage())));
    EXPECT_TRUE(hasFailed(UpdateFailure::Unverifiable));
}

TEST_F(SoftwareUpdaterTest, TheFeedIsReadBesideTheMainThread)
{
    make();
    updater->checkForUpdates();
    web.answerWith(0, newer());
    clock.runPending();
    EXPECT_EQ(display.report.stage, Stage::Checking);
    EXPECT_EQ(work.pendingCount(), 1U);
    work.runAll();
    EXPECT_EQ(display.report.stage, Stage::Checking) << "nor is it told of from there";
    settle();
    EXPECT_EQ(display.report.stage, Stage::Available);
}

TEST_F(SoftwareUpdaterTest, WhatIsReadAfterTheWindowWasClosedIsForgotten)
{
    make();
    updater->checkForUpdates();
    web.answerWith(0, newer());
    display.onDismiss();
    settle();
    EXPECT_EQ(display.report.stage, Stage::Checking);
}

TEST_F(SoftwareUpdaterTest, AFeedThatGoesBackIsReportedAndNotFollowed)
{
    checkNow(feed(item("12", UpdateFolder::newImage())));
    display.onDismiss();
    checkNow(newer());
    EXPECT_TRUE(hasFailed(UpdateFailure::WentBack));
    checkNow(feed(""));
    EXPECT_TRUE(hasFailed(UpdateFailure::WentBack)) << "nor one that falls silent about it";
    make();
    checkNow(same());
    EXPECT_TRUE(hasFailed(UpdateFailure::WentBack)) << "remembered across starts";
    checkNow(feed(item("12", UpdateFolder::newImage())));
    EXPECT_EQ(display.report.stage, Stage::Available);
}

TEST_F(SoftwareUpdaterTest, WhatNobodySignedIsNotRemembered)
{
    QByteArray nines = item("11", UpdateFolder::newImage());
    nines.replace("<sparkle:version>11<",
                  QByteArray("<sparkle:version>" + QByteArray(64, '9') + "<"));
    nines.truncate(nines.indexOf("<corvane:statement"));
    checkNow(feed(nines + "</item>"));
    EXPECT_TRUE(hasFailed(UpdateFailure::Unverifiable));
    make();
    checkNow(newer());
    EXPECT_EQ(display.report.stage, Stage::Available);
}

TEST_F(SoftwareUpdaterTest, AnOldReleaseUnderANewVersionIsNotOffered)
{
    QByteArray dressedUp = item("8", UpdateFolder::oldImage());
    dressedUp.replace("<sparkle:version>8<", "<sparkle:version>99<");
    checkNow(feed(dressedUp));
    EXPECT_EQ(display.report.stage, Stage::UpToDate);
    checkNow(newer());
    EXPECT_EQ(display.report.stage, Stage::Available) << "the next genuine one is";
}

TEST_F(SoftwareUpdaterTest, AutomaticChecksTellOfAFeedThatGoesBackUntilItIsGoodAgain)
{
    make();
    checkNow(feed(item("12", UpdateFolder::newImage())));
    display.onDismiss();
    display.stages.clear();
    checkBySelf(newer());
    EXPECT_EQ(noticed(), UpdateFailure::WentBack);
    EXPECT_TRUE(display.stages.empty()) << "no window comes up";
    updater->showNotice();
    EXPECT_TRUE(hasFailed(UpdateFailure::WentBack));
    EXPECT_EQ(display.attentions.back(), UpdateAttention::Asked);
    EXPECT_EQ(noticed(), UpdateFailure::WentBack);
    pass(3600);
    answer(feed(item("12", UpdateFolder::newImage())));
    EXPECT_FALSE(noticed());
}

TEST_F(SoftwareUpdaterTest, AutomaticChecksTellOfWhatCannotBeVerified)
{
    make();
    checkBySelf(
        feed(item("10", UpdateFolder::newImage()) + unsignedItem("11", UpdateFolder::newImage())));
    EXPECT_EQ(noticed(), UpdateFailure::Unverifiable);
    pass(3600);
    answer("no feed");
    EXPECT_EQ(noticed(), UpdateFailure::Unverifiable) << "nothing better is known";
}

TEST_F(SoftwareUpdaterTest, AutomaticChecksTellOfAProxyThatCannotBeUsed)
{
    make();
    pass(60);
    web.requests.back().onRoute(WebRoute{WebRoute::Kind::NeedsScript});
    web.fail(0);
    settle();
    ASSERT_EQ(noticed(), UpdateFailure::Unreachable);
    EXPECT_EQ(updater->notices().now()->route, (WebRoute{WebRoute::Kind::NeedsScript}));
    pass(3600);
    web.requests.back().onRoute(WebRoute{});
    answer(same());
    EXPECT_FALSE(noticed());
}

TEST_F(SoftwareUpdaterTest, WhoeverAskedSeesWhatIsWrongInTheWindowAlone)
{
    checkNow(feed(""));
    EXPECT_TRUE(hasFailed(UpdateFailure::Unverifiable));
    EXPECT_FALSE(noticed());
}

TEST_F(SoftwareUpdaterTest, AFeedThatIsNotRenewedIsToldOfOnceAWeek)
{
    make();
    const QByteArray old = goodFor("10", 1.5);
    checkBySelf(old);
    EXPECT_FALSE(noticed());
    checkBySelf(old);
    ASSERT_EQ(noticed(), UpdateFailure::Expired);
    EXPECT_EQ(updater->notices().now()->renewed, QDate(2026, 11, 1));
    updater->showNotice();
    EXPECT_TRUE(hasFailed(UpdateFailure::Expired));
    EXPECT_FALSE(noticed()) << "it was seen";
    const double told = clock.now();
    while (clock.now() < told + 7 * day - 7200) {
        pass(3600);
        answer(old);
        ASSERT_FALSE(noticed());
    }
    make();
    pass(7200);
    answer(old);
    EXPECT_EQ(noticed(), UpdateFailure::Expired) << "a week later, and across starts";
}

TEST_F(SoftwareUpdaterTest, TheWeekBetweenTwoSuchNoticesGoesOnAcrossStarts)
{
    make();
    checkBySelf(goodFor("10", 0.5));
    EXPECT_EQ(noticed(), UpdateFailure::Expired);
    make();
    checkBySelf(goodFor("10", 0.5));
    EXPECT_EQ(noticed(), std::nullopt);
}

TEST_F(SoftwareUpdaterTest, WhatHasExpiredIsNotOffered)
{
    checkNow(goodFor("11", 1));
    EXPECT_EQ(display.report.stage, Stage::Available);
    display.onDismiss();
    pass(day);
    checkNow(goodFor("11", 1));
    EXPECT_TRUE(hasFailed(UpdateFailure::Expired));
    EXPECT_EQ(display.report.renewed, QDate(2026, 11, 1));
}

TEST_F(SoftwareUpdaterTest, AnOfferThatExpiresWhileItIsLookedAtIsLookedForAgain)
{
    isAutomatic = false;
    checkNow(goodFor("11", 1));
    pass(2 * day);
    display.onInstall();
    settle();
    EXPECT_TRUE(downloader.downloads.empty());
    EXPECT_EQ(display.report.stage, Stage::Checking);
    answer(newer());
    EXPECT_EQ(display.report.stage, Stage::Available);
}

TEST_F(SoftwareUpdaterTest, BetasAreOfferedFromTheMomentInWhichTheyAreChosen)
{
    Statement beta = Statement::of("11", UpdateFolder::newImage());
    beta.channel = "beta";
    const QByteArray both
        = feed(item("10", UpdateFolder::newImage()) + beta.item(key, UpdateFolder::newImage()));
    checkNow(both);
    EXPECT_EQ(display.report.stage, Stage::UpToDate);
    wantsBetas = true;
    checkNow(both);
    EXPECT_EQ(display.report.stage, Stage::Available);
}

TEST_F(SoftwareUpdaterTest, ARecordThatIsDamagedIsSetAsideSaidSoOnceAndRebuilt)
{
    checkNow(feed(item("12", UpdateFolder::newImage())));
    display.onDismiss();
    QDir(QFile::decodeName(state.path("corvane"))).mkpath(QStringLiteral("."));
    state.write("corvane/updates.json", "{ broken");
    make();
    EXPECT_EQ(noticed(), UpdateFailure::RecordDamaged);
    EXPECT_EQ(UpdateFolder::contents(state.path("corvane/updates.json.set-aside")), "{ broken");
    checkBySelf(same());
    EXPECT_EQ(noticed(), UpdateFailure::RecordDamaged) << "until somebody has seen it";
    updater->showNotice();
    EXPECT_TRUE(hasFailed(UpdateFailure::RecordDamaged));
    EXPECT_FALSE(noticed());
    make();
    EXPECT_FALSE(noticed()) << "once";
    checkNow(feed(item("9", UpdateFolder::newImage())));
    EXPECT_TRUE(hasFailed(UpdateFailure::WentBack)) << "it is kept again";
}

TEST_F(SoftwareUpdaterTest, ARecordThatNobodySignedEndsNothing)
{
    make();
    UpdateRecord poisoned;
    Statement highest = Statement::of("99999", UpdateFolder::newImage());
    highest.number = "1000000000000000";
    poisoned.memory.builtInKey = key.publicBytes();
    poisoned.memory.releases = {{highest.bytes(), TestKey().sign(highest.bytes())}};
    UpdateRecordFile(state.path("corvane")).save(poisoned);
    make();
    EXPECT_EQ(noticed(), UpdateFailure::RecordDamaged);
    checkNow(newer());
    EXPECT_EQ(display.report.stage, Stage::Available);
}

TEST_F(SoftwareUpdaterTest, TheNextKeySignsOnceTheOneBeforeHasNamedIt)
{
    const TestKey next;
    Statement last = Statement::of("10", UpdateFolder::newImage());
    last.nextKey = next.publicBytes();
    const QByteArray handover = last.item(key, UpdateFolder::newImage());
    const QByteArray image = UpdateFolder::newImage();
    const QByteArray after = Statement::of("11", image).item(next, image);
    checkNow(feed(after));
    EXPECT_TRUE(hasFailed(UpdateFailure::Unverifiable));
    checkNow(feed(after + handover));
    EXPECT_EQ(display.report.stage, Stage::Available);
    display.onDismiss();
    make();
    checkNow(feed(item("12", image)));
    EXPECT_TRUE(hasFailed(UpdateFailure::WentBack)) << "the old key has no say any more";
    checkNow(feed(after));
    ASSERT_EQ(display.report.stage, Stage::Available);
    display.onInstall();
    settle();
    downloader.sendWhole(image);
    settle();
    EXPECT_EQ(display.report.stage, Stage::Replaced);
}

TEST_F(SoftwareUpdaterTest, OnlyAnAppImageOfOursReplacesOne)
{
    QByteArray other = UpdateFolder::newImage();
    other.replace("example.corvane.Corvane", "example.corvane.Another");
    checkNow(feed(item("11", other)));
    display.onInstall();
    settle();
    downloader.sendWhole(other);
    settle();
    EXPECT_EQ(display.report.stage, Stage::HandedOver);
    EXPECT_TRUE(UpdateFolder::contents(downloads.path("new.AppImage")) == other);
    EXPECT_TRUE(isUntouched());
}

TEST_F(SoftwareUpdaterTest, WhatIsNoAppImageIsDownloadedToTheDownloads)
{
    Statement archive = Statement::of("11", "an archive");
    archive.kind = "archive";
    archive.address = "https://corvane.example/new.tar.gz";
    checkNow(feed(archive.item(key, "an archive")));
    EXPECT_TRUE(display.report.isForDownloads);
    display.onInstall();
    settle();
    downloader.sendWhole("an archive");
    settle();
    EXPECT_EQ(display.report.stage, Stage::HandedOver);
    EXPECT_EQ(UpdateFolder::contents(downloads.path("new.tar.gz")), "an archive");
    EXPECT_TRUE(isUntouched());
}

TEST_F(SoftwareUpdaterTest, WhatAnInterruptedUpdateLeftGoesWithTheNextStart)
{
    folder.write(".corvane-update-abcdef", "left");
    folder.write(".corvane-update-abcdef.new", "left");
    downloads.write(".corvane-update-ghijkl", "left");
    make();
    EXPECT_TRUE(isUntouched());
    EXPECT_EQ(downloads.names(), QStringList{QStringLiteral("Corvane.AppImage")});
}

TEST_F(SoftwareUpdaterTest, ACheckIsRememberedWhenItBegins)
{
    make();
    pass(100);
    ASSERT_EQ(checks(), 1U);
    EXPECT_EQ(UpdateRecordFile(state.path("corvane")).load()->lastCheck, began + 60);
}

TEST_F(SoftwareUpdaterTest, AnOfferThatStaysOpenIsRefreshed)
{
    make();
    pass(60);
    answer(newer());
    const auto shown = display.attentions.size();
    pass(day);
    EXPECT_EQ(checks(), 2U);
    EXPECT_EQ(display.report.stage, Stage::Available);
    answer(feed(item("12", UpdateFolder::newImage())));
    EXPECT_EQ(display.report.version, QStringLiteral("12.0"));
    EXPECT_EQ(display.report.notes, QStringLiteral("Notes of 12"));
    EXPECT_EQ(display.attentions.size(), shown) << "the window does not come forward";
    display.onInstall();
    settle();
    EXPECT_EQ(downloader.downloads.size(), 1U);
}

TEST_F(SoftwareUpdaterTest, AnOfferStaysWhereItCannotBeRefreshed)
{
    make();
    pass(60);
    answer(newer());
    pass(day);
    web.fail(checks() - 1);
    settle();
    EXPECT_EQ(display.report.stage, Stage::Available);
    pass(3600);
    answer(same());
    EXPECT_EQ(noticed(), UpdateFailure::WentBack);
    EXPECT_EQ(display.report.stage, Stage::Available);
    display.onInstall();
    settle();
    EXPECT_EQ(downloader.downloads.size(), 1U);
}

TEST_F(SoftwareUpdaterTest, WhatARefreshFindsAfterInstallWasPressedIsForgotten)
{
    make();
    pass(60);
    answer(newer());
    pass(day);
    display.onInstall();
    settle();
    answer(feed(item("12", UpdateFolder::newImage())));
    EXPECT_EQ(display.report.stage, Stage::Downloading);
    EXPECT_EQ(display.report.version, QStringLiteral("11.0"));
}

TEST_F(SoftwareUpdaterTest, TheNewImageTakesTheOldOnesPlaceAndItIsKept)
{
    beginDownload();
    downloader.sendWhole(UpdateFolder::newImage());
    settle();
    EXPECT_EQ(display.report.stage, Stage::Replaced);
    EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == UpdateFolder::newImage());
    EXPECT_TRUE(UpdateFolder::contents(folder.previous()) == UpdateFolder::oldImage());
    EXPECT_EQ(folder.names().size(), 2);

    // The next start is the new one's.
    make();
    EXPECT_EQ(folder.names(), QStringList{QStringLiteral("Corvane.AppImage")});
}

TEST_F(SoftwareUpdaterTest, TheDownloadIsSafeAndNoLongerThanAnnounced)
{
    beginDownload();
    const WebRequest &request = downloader.downloads.at(0).request;
    EXPECT_TRUE(request.mustBeSecure);
    EXPECT_EQ(request.maximumBytes, UpdateFolder::newImage().size() + 1);
    EXPECT_EQ(request.url, QUrl(QStringLiteral("https://corvane.example/new.AppImage")));
    EXPECT_EQ(request.foundIn, AddressSpace::Public) << "where the feed was";
}

TEST_F(SoftwareUpdaterTest, AFeedInsideTheUsersNetworkMayLeadThere)
{
    make();
    updater->checkForUpdates();
    const QByteArray bytes = newer();
    web.answer(
        web.requests.size() - 1,
        WebResponse{200, bytes.size(), web.requests.back().url, bytes, AddressSpace::Private});
    settle();
    display.onInstall();
    settle();
    EXPECT_EQ(downloader.downloads.at(0).request.foundIn, AddressSpace::Private);
}

TEST_F(SoftwareUpdaterTest, NothingIsDownloadedBeforeTheUserSaysSo)
{
    checkNow(newer());
    pass(10 * day);
    EXPECT_TRUE(downloader.downloads.empty());
}

TEST_F(SoftwareUpdaterTest, ProgressIsShown)
{
    beginDownload();
    EXPECT_EQ(display.report.total, UpdateFolder::newImage().size());
    EXPECT_TRUE(downloader.send(UpdateFolder::newImage().left(100'000)));
    settle();
    EXPECT_EQ(display.report.stage, Stage::Downloading);
    EXPECT_EQ(display.report.received, 100'000);
    EXPECT_TRUE(downloader.send(UpdateFolder::newImage().mid(100'000, 50'000)));
    settle();
    EXPECT_EQ(display.report.received, 150'000);
}

TEST_F(SoftwareUpdaterTest, AWrongSignatureOfTheFileLeavesEverythingAsItWas)
{
    const QByteArray image = UpdateFolder::newImage();
    const Statement statement = Statement::of("11", image);
    checkNow(feed("<item>" + statement.attributes(TestKey().sign(image)) + statement.element(key)
                  + "</item>"));
    display.onInstall();
    settle();
    downloader.sendWhole(image);
    settle();
    EXPECT_TRUE(hasFailed(UpdateFailure::WrongSignature));
    EXPECT_TRUE(isUntouched());
}

TEST_F(SoftwareUpdaterTest, AFileThatIsNotTheSignedOneLeavesEverythingAsItWas)
{
    beginDownload();
    QByteArray other = UpdateFolder::newImage();
    other[12'345] = 'x';
    downloader.sendWhole(other);
    settle();
    EXPECT_TRUE(hasFailed(UpdateFailure::WrongSignature));
    EXPECT_TRUE(isUntouched());
}

TEST_F(SoftwareUpdaterTest, AShorterFileLeavesEverythingAsItWas)
{
    beginDownload();
    downloader.sendWhole(UpdateFolder::newImage().chopped(1));
    settle();
    EXPECT_TRUE(hasFailed(UpdateFailure::WrongLength));
    EXPECT_TRUE(isUntouched());
}

TEST_F(SoftwareUpdaterTest, OfALongerFileNoByteTooMuchIsTaken)
{
    beginDownload();
    const QByteArray image = UpdateFolder::newImage();
    EXPECT_TRUE(downloader.send(image));
    EXPECT_FALSE(downloader.send("x"));
    downloader.fail();
    settle();
    EXPECT_TRUE(hasFailed(UpdateFailure::WrongLength));
    EXPECT_TRUE(isUntouched());
}

TEST_F(SoftwareUpdaterTest, ATransferThatBreaksLeavesEverythingAsItWas)
{
    beginDownload();
    EXPECT_TRUE(downloader.send("beginning"));
    downloader.fail();
    settle();
    EXPECT_TRUE(hasFailed(UpdateFailure::DownloadFailed));
    EXPECT_TRUE(isUntouched());
}

TEST_F(SoftwareUpdaterTest, AnAnswerThatIsNoFileLeavesEverythingAsItWas)
{
    beginDownload();
    downloader.end(WebResponse{404, -1, {}, {}});
    settle();
    EXPECT_TRUE(hasFailed(UpdateFailure::DownloadFailed));
    EXPECT_TRUE(isUntouched());
}

TEST_F(SoftwareUpdaterTest, CancellingEndsTheTransferAndLeavesEverythingAsItWas)
{
    beginDownload();
    EXPECT_TRUE(downloader.send("beginning"));
    display.onDismiss();
    EXPECT_TRUE(downloader.downloads.back().cancellation->isCancelled());
    downloader.fail();
    settle();
    EXPECT_TRUE(isUntouched());
    EXPECT_EQ(display.report.stage, Stage::Downloading) << "nobody looks any more";
    checkNow(newer());
    EXPECT_EQ(display.report.stage, Stage::Available) << "it may be taken another time";
}

TEST_F(SoftwareUpdaterTest, WhatTheImageBecameMeanwhileIsLeftAlone)
{
    beginDownload();
    folder.write("Corvane.AppImage", "the user's own");
    downloader.sendWhole(UpdateFolder::newImage());
    settle();
    EXPECT_TRUE(hasFailed(UpdateFailure::NotWritten));
    EXPECT_EQ(UpdateFolder::contents(folder.appImage()), "the user's own");
}

TEST_F(SoftwareUpdaterTest, OutsideAnAppImageTheFileIsHandedOverAndShown)
{
    installation = {Installation::Kind::Loose};
    downloads.write("new.AppImage", "the user's");
    beginDownload();
    downloader.sendWhole(UpdateFolder::newImage());
    settle();
    EXPECT_EQ(display.report.stage, Stage::HandedOver);
    EXPECT_EQ(display.report.fileName, QStringLiteral("new-2.AppImage"));
    EXPECT_TRUE(UpdateFolder::contents(downloads.path("new-2.AppImage"))
                == UpdateFolder::newImage());
    EXPECT_EQ(UpdateFolder::contents(downloads.path("new.AppImage")), "the user's");
    EXPECT_EQ(desktop.opened,
              QList<QUrl>{QUrl::fromLocalFile(QFile::decodeName(downloads.path()))});
    display.onShowFile();
    EXPECT_EQ(desktop.opened.size(), 2);
    EXPECT_TRUE(isUntouched());
}

TEST_F(SoftwareUpdaterTest, AnUnverifiedFileIsNeverHandedOver)
{
    installation = {Installation::Kind::Loose};
    beginDownload();
    downloader.sendWhole(QByteArray(UpdateFolder::newImage().size(), 'x'));
    settle();
    EXPECT_TRUE(hasFailed(UpdateFailure::WrongSignature));
    EXPECT_EQ(downloads.names().size(), 1);
    EXPECT_TRUE(desktop.opened.isEmpty());
}

TEST_F(SoftwareUpdaterTest, WhatHasBeenTakenIsNotOfferedAgainBeforeTheNextStart)
{
    beginDownload();
    downloader.sendWhole(UpdateFolder::newImage());
    settle();
    display.onDismiss();
    display.stages.clear();
    pass(day);
    answer(newer());
    EXPECT_TRUE(display.stages.empty());
    checkNow(newer());
    EXPECT_EQ(display.stages, (std::vector{Stage::Checking, Stage::Replaced}));
    checkNow(feed(item("12", UpdateFolder::newImage())));
    EXPECT_EQ(display.report.stage, Stage::Available);
}

TEST_F(SoftwareUpdaterTest, WhatIsOlderThanWhatHasBeenTakenIsNotOfferedEither)
{
    wantsBetas = true;
    Statement beta = Statement::of("12", UpdateFolder::newImage());
    beta.channel = "beta";
    const QByteArray stable = item("11", UpdateFolder::oldImage());
    const QByteArray both = feed(stable + beta.item(key, UpdateFolder::newImage()));
    checkNow(both);
    display.onInstall();
    settle();
    downloader.sendWhole(UpdateFolder::newImage());
    settle();
    ASSERT_EQ(UpdateFolder::contents(folder.appImage()), UpdateFolder::newImage());

    wantsBetas = false;
    checkNow(both);
    EXPECT_EQ(display.report.stage, Stage::Replaced);
    EXPECT_EQ(display.report.version, QStringLiteral("12.0"));
}

TEST_F(SoftwareUpdaterTest, AskingAgainShowsWhatIsUnderWay)
{
    beginDownload();
    updater->checkForUpdates();
    EXPECT_EQ(checks(), 1U);
    EXPECT_EQ(downloader.downloads.size(), 1U);
    EXPECT_EQ(display.report.stage, Stage::Downloading);
    EXPECT_EQ(display.attentions.back(), UpdateAttention::Asked);
}

TEST_F(SoftwareUpdaterTest, ClosingTheWindowWhileItLooksEndsTheWaiting)
{
    make();
    updater->checkForUpdates();
    display.onDismiss();
    answer(newer());
    EXPECT_EQ(display.report.stage, Stage::Checking);
}

TEST_F(SoftwareUpdaterTest, PressingInstallTwiceDownloadsOnce)
{
    beginDownload();
    display.onInstall();
    settle();
    EXPECT_EQ(downloader.downloads.size(), 1U);
}

TEST_F(SoftwareUpdaterTest, WhatComesAfterItsEndDoesNothing)
{
    beginDownload();
    EXPECT_TRUE(downloader.send("beginning"));
    updater.reset();
    display.onInstall();
    display.onDismiss();
    downloader.fail();
    settle();
    EXPECT_TRUE(isUntouched());

    checkNow(newer());
    updater->checkForUpdates();
    display.onDismiss();
    updater->checkForUpdates();
    updater.reset();
    answer(newer());
}

} // namespace corvane::test
