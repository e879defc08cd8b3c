#include "app/updates/choice_desk.h"

#include <QTimeZone>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using Verdict = UpdateChoice::Verdict;

class UpdateChoiceTest : public testing::Test, protected ChoiceDesk {
protected:
    static Statement build(const char *number) { return Statement::of(number, file); }
    bool isOffered(const Statement &statement) { return !offered(item(statement)).isEmpty(); }
    QByteArray withoutStatement(const Statement &statement) const
    {
        return "<item>" + statement.attributes(key.sign(file)) + "</item>";
    }
};

} // namespace

TEST_F(UpdateChoiceTest, TheNewestIsOfferedWhereverItStands)
{
    EXPECT_EQ(offered(item("11") + item("13") + item("12")), QStringLiteral("13"));
}

TEST_F(UpdateChoiceTest, WhatIsNotNewerIsNotOffered)
{
    EXPECT_EQ(verdict(item("9")), Verdict::UpToDate);
    EXPECT_EQ(verdict(item("10")), Verdict::UpToDate);
    audience.build.reset();
    EXPECT_EQ(verdict(item("11")), Verdict::UpToDate) << "than a build without a number";
}

TEST_F(UpdateChoiceTest, EverythingIsTakenFromTheStatement)
{
    QByteArray lying = item("11");
    lying.replace("<sparkle:version>11<", "<sparkle:version>99<");
    lying.replace("<sparkle:shortVersionString>11.0<", "<sparkle:shortVersionString>99.0<");
    const auto choice = choose(lying);
    ASSERT_TRUE(choice.offer);
    EXPECT_EQ(choice.offer->release.statement().version.text(), QStringLiteral("11"));
    EXPECT_EQ(choice.offer->release.statement().shortVersion, QStringLiteral("11.0"));
    EXPECT_EQ(choice.offer->notes, QStringLiteral("Notes of 11"));
    EXPECT_EQ(choice.offer->fileSignature, key.sign(file));
    EXPECT_EQ(choice.offer->keys.size(), 1);
}

TEST_F(UpdateChoiceTest, AnOldReleaseThatIsAnnouncedAsANewOneIsOld)
{
    QByteArray dressedUp = item("8");
    dressedUp.replace("<sparkle:version>8<", "<sparkle:version>99<");
    EXPECT_EQ(verdict(dressedUp), Verdict::UpToDate);
}

TEST_F(UpdateChoiceTest, AnItemWithoutAStatementCannotBeVerified)
{
    EXPECT_EQ(verdict(withoutStatement(build("11"))), Verdict::Unverifiable);
    EXPECT_EQ(verdict(item("10") + withoutStatement(build("11"))), Verdict::Unverifiable);
    EXPECT_EQ(verdict(item("10") + withoutStatement(build("9"))), Verdict::UpToDate)
        << "an old one from before there were statements";
    EXPECT_EQ(offered(item("11") + withoutStatement(build("99"))), QStringLiteral("11"))
        << "nor does it stand before one that can";
}

TEST_F(UpdateChoiceTest, AnItemWithoutABuildNumberIsComparedByTheVersionForPeople)
{
    QByteArray people = withoutStatement(build("11"));
    people.replace("<sparkle:version>11</sparkle:version>", "");
    EXPECT_EQ(verdict(item("10") + people), Verdict::Unverifiable);
    people.replace("11.0", "1.0");
    EXPECT_EQ(verdict(item("10") + people), Verdict::UpToDate);
}

TEST_F(UpdateChoiceTest, AnItemForAnotherMachineIsNothingToBeVerifiedHere)
{
    QByteArray other = withoutStatement(build("11"));
    other.replace("sparkle:os='linux'", "sparkle:os='macos'");
    EXPECT_EQ(verdict(item("10") + other), Verdict::UpToDate);
    other.replace("sparkle:os='macos'", "sparkle:arch='arm64'");
    EXPECT_EQ(verdict(item("10") + other), Verdict::UpToDate);
    other.replace("arm64", "x86_64");
    EXPECT_EQ(verdict(item("10") + other), Verdict::Unverifiable);
}

TEST_F(UpdateChoiceTest, SomebodyElsesStatementIsNone)
{
    EXPECT_EQ(verdict(item("10") + build("11").item(TestKey(), file)), Verdict::Unverifiable);
}

TEST_F(UpdateChoiceTest, AFeedThatStatesNothingForThisMachineProvesNothing)
{
    EXPECT_EQ(verdict(""), Verdict::Unverifiable);
    Statement other = build("11");
    other.architecture = "arm64";
    EXPECT_EQ(verdict(item(other)), Verdict::Unverifiable);
    other = build("11");
    other.system = "plan9";
    EXPECT_EQ(verdict(item(other)), Verdict::Unverifiable);
    other = build("11");
    other.application = "example.corvane.Other";
    EXPECT_EQ(verdict(item(other)), Verdict::Unverifiable);
}

TEST_F(UpdateChoiceTest, AFeedThatFallsBehindWhatItStatedGoesBack)
{
    EXPECT_EQ(verdict(item("12")), Verdict::Newer);
    EXPECT_EQ(verdict(item("11")), Verdict::WentBack);
    EXPECT_EQ(verdict(""), Verdict::WentBack) << "nor may it fall silent";
    EXPECT_EQ(verdict(item("12")), Verdict::Newer);
    Statement renewed = build("12");
    renewed.number = "40";
    EXPECT_EQ(verdict(item(renewed)), Verdict::Newer);
    EXPECT_EQ(verdict(item("12")), Verdict::WentBack) << "an older word on the same release";
    Statement old = build("11");
    old.number = "41";
    EXPECT_EQ(verdict(item(old)), Verdict::WentBack) << "a later word on an older release";
    EXPECT_EQ(verdict(item(renewed) + item(old)), Verdict::Newer);
}

TEST_F(UpdateChoiceTest, WhatIsOnlyClaimedIsNotRemembered)
{
    Statement nines = build("9");
    nines.version = QByteArray(64, '9');
    verdict(withoutStatement(nines));
    verdict(nines.item(TestKey(), file));
    EXPECT_EQ(verdict(item("11")), Verdict::Newer);
}

TEST_F(UpdateChoiceTest, AFeedWhoseTimeIsOverIsSaidToBe)
{
    Statement old = build("11");
    old.expiry = "2026-12-31T23:59:59Z";
    const UpdateChoice choice = choose(item(old));
    EXPECT_EQ(choice.verdict, Verdict::Expired);
    EXPECT_FALSE(choice.offer);
    EXPECT_EQ(choice.renewed, QDateTime({2026, 11, 1}, {0, 0}, QTimeZone::utc()));
    now = QDateTime({2026, 12, 31}, {23, 59, 58}, QTimeZone::utc());
    EXPECT_EQ(verdict(item(old)), Verdict::Newer);
    now = now.addSecs(1);
    EXPECT_EQ(verdict(item(old)), Verdict::Expired) << "at its last moment";
}

TEST_F(UpdateChoiceTest, AnOldStatementBesideARenewedOneIsNoExpiry)
{
    Statement old = build("11");
    old.expiry = "2026-12-01T00:00:00Z";
    EXPECT_EQ(offered(item(old) + item("12")), QStringLiteral("12"));
    Statement present = build("10");
    present.number = "50";
    EXPECT_EQ(choose(item(old) + item(present)).verdict, Verdict::Unverifiable)
        << "but it is not offered";
    old.expiry = "2027-01-01T00:00:00Z";
    EXPECT_EQ(verdict(item(old) + item(present)), Verdict::Unverifiable) << "at its last moment";
}

TEST_F(UpdateChoiceTest, BetasAreForThoseWhoChoseThem)
{
    Statement beta = build("12");
    beta.channel = "beta";
    const QByteArray both = item("11") + item(beta);
    EXPECT_EQ(offered(both), QStringLiteral("11"));
    audience.wantsBetas = true;
    EXPECT_EQ(offered(both), QStringLiteral("12"));
    beta.channel = "nightly";
    EXPECT_EQ(offered(item("11") + item(beta)), QStringLiteral("11")) << "nobody chose these";
}

TEST_F(UpdateChoiceTest, WhoLeavesTheBetasIsNotToldThatTheFeedWentBack)
{
    Statement beta = build("12");
    beta.channel = "beta";
    audience.wantsBetas = true;
    EXPECT_EQ(verdict(item("11") + item(beta)), Verdict::Newer);
    audience.wantsBetas = false;
    EXPECT_EQ(offered(item("11") + item(beta)), QStringLiteral("11"));
    EXPECT_EQ(verdict(item("11")), Verdict::Newer);
    audience.wantsBetas = true;
    EXPECT_EQ(verdict(item("11")), Verdict::WentBack);
}

TEST_F(UpdateChoiceTest, OfOneVersionTheAppImageIsTakenWhereverItStands)
{
    Statement archive = build("11");
    archive.kind = "archive";
    archive.address = "https://corvane.example/new.tar.gz";
    archive.number = "12";
    for (const QByteArray &items :
         {QByteArray(item(archive) + item("11")), QByteArray(item("11") + item(archive))})
        EXPECT_EQ(choose(items).offer->release.statement().kind, ReleaseStatement::appImage);
    EXPECT_EQ(choose(item(archive)).offer->release.statement().kind, QStringLiteral("archive"));
}

TEST_F(UpdateChoiceTest, OfTwoStatementsOnOneVersionTheLaterOneCounts)
{
    Statement renewed = build("11");
    renewed.number = "12";
    for (const QByteArray &items :
         {QByteArray(item(renewed) + item("11")), QByteArray(item("11") + item(renewed))})
        EXPECT_EQ(choose(items).offer->release.statement().number, 12);
}

TEST_F(UpdateChoiceTest, TheEnclosureIsTheOneOfTheStatedAddress)
{
    const Statement statement = build("11");
    Statement other = statement;
    other.address = "https://corvane.example/other";
    const QByteArray items = "<item>" + other.attributes(QByteArray(64, 'x'))
        + statement.enclosure(key.sign(file)) + statement.element(key) + "</item>";
    EXPECT_EQ(choose(items).offer->fileSignature, key.sign(file));
}

TEST_F(UpdateChoiceTest, WhatIsMixedFromTwoReleasesIsNotOffered)
{
    const Statement statement = build("11");
    const auto mixed = [&](const QByteArray &attributes) {
        const QByteArray items
            = item("10") + "<item>" + attributes + statement.element(key) + "</item>";
        return offered(items).isEmpty() && verdict(items) == Verdict::Unverifiable;
    };
    Statement other = statement;
    other.address = "https://corvane.example/old.AppImage";
    EXPECT_TRUE(mixed(other.attributes(key.sign(file)))) << "the file of another one";
    other = statement;
    other.notes = "Notes of 8";
    EXPECT_TRUE(mixed(other.attributes(key.sign(file)))) << "the notes of another one";
    other = statement;
    other.length = "5";
    EXPECT_TRUE(mixed(other.attributes(key.sign(file)))) << "the length of another one";
    EXPECT_TRUE(mixed(statement.attributes(""))) << "no signature of the file";
    EXPECT_TRUE(mixed(statement.attributes(key.sign(file)).replace("plain-text", "html")));
}

TEST_F(UpdateChoiceTest, AnOlderReleaseIsNotOfferedInPlaceOfANewerOneThatTheFeedDoesNotKeep)
{
    const QByteArray broken = item("13").replace("Notes of 13", "Notes of 8");
    EXPECT_EQ(verdict(item("12") + broken), Verdict::Unverifiable);
    EXPECT_EQ(offered(item("12") + item("13")), QStringLiteral("13"));
}

TEST_F(UpdateChoiceTest, AThiefWhoHandsOverToTheGenuineKeyDoesNotEndUpdates)
{
    const TestKey next;
    Statement last = build("99");
    last.number = "1000000000000000";
    last.nextKey = next.publicBytes();
    EXPECT_EQ(verdict(item(last)), Verdict::Newer) << "the thief is believed as long as the key is";
    EXPECT_EQ(verdict(build("11").item(next, file)), Verdict::Newer);
    EXPECT_EQ(verdict(build("12").item(next, file)), Verdict::Newer);
    EXPECT_EQ(verdict(build("11").item(next, file)), Verdict::WentBack);
}

TEST_F(UpdateChoiceTest, WhatWasStatedForAnotherMachineIsNotWhatThisOneGoesBackBehind)
{
    Statement other = build("12");
    other.architecture = "arm64";
    const QByteArray both = item("11") + item(other);
    audience.system.architecture = QStringLiteral("arm64");
    EXPECT_EQ(verdict(both), Verdict::Newer);
    audience.system.architecture = QStringLiteral("x86_64");
    EXPECT_EQ(verdict(both), Verdict::Newer) << "with a state folder that both machines share";
}

TEST_F(UpdateChoiceTest, AFileThatIsTooLargeIsNotOffered)
{
    Statement large = build("11");
    large.length = QByteArray::number(update_choice::largestFile);
    EXPECT_TRUE(isOffered(large));
    large.length = QByteArray::number(update_choice::largestFile + 1);
    EXPECT_FALSE(isOffered(large));
}

TEST_F(UpdateChoiceTest, AMinimumBindsOnlyTheDistributionThatItNames)
{
    const auto fits = [this](const char *minimum) {
        Statement statement = build("11");
        statement.minimums = {minimum};
        return isOffered(statement);
    };
    EXPECT_TRUE(fits("debian 12"));
    EXPECT_TRUE(fits("Debian 11"));
    EXPECT_FALSE(fits("debian 12.1"));
    EXPECT_FALSE(fits("debian 13"));
    EXPECT_TRUE(fits("ubuntu 99.04"));
    audience.system.release = QStringLiteral("unknown");
    EXPECT_TRUE(fits("debian 13")) << "a rolling release is new enough";
}

TEST_F(UpdateChoiceTest, WhereTheNewestDoesNotRunTheNewestThatDoesIsOffered)
{
    Statement newest = build("13");
    newest.minimums = {"debian 13"};
    EXPECT_EQ(offered(item(newest) + item("12") + item("11")), QStringLiteral("12"));
    EXPECT_EQ(verdict(item(newest)), Verdict::UpToDate);
    EXPECT_EQ(verdict(item("12")), Verdict::WentBack) << "it was stated all the same";
}

TEST_F(UpdateChoiceTest, MarkupInNotesIsShownAsText)
{
    Statement statement = build("11");
    statement.notes = "<p>A &amp; B</p>";
    QByteArray announced = "<item>" + statement.attributes(key.sign(file));
    announced.replace("<p>A &amp; B</p>", "<![CDATA[<p>A &amp; B</p>]]>");
    EXPECT_EQ(choose(announced + statement.element(key) + "</item>").offer->notes,
              QStringLiteral("<p>A &amp; B</p>"))
        << "which was meant as text";
    const QByteArray html = statement.bytes().replace("plain-text", "html");
    announced.replace("plain-text", "html");
    announced += Statement::element(html, key.sign(html)) + "</item>";
    EXPECT_EQ(choose(announced).offer->notes, QStringLiteral("A & B"));
}

} // namespace corvane::test
