// What makers of releases type: the feed that comes of it is the one that programs take.

#include "e2e/updates_desk.h"

#include <QCoreApplication>
#include <QProcess>

namespace corvane::e2e {

namespace {

/// A folder with a key, a feed and a file to be released.
struct ReleaseDesk {
    ReleaseDesk()
    {
        write("key.pem", key.pem());
        write("new.AppImage", image);
    }

    QString path(const char *name) const { return directory.path() + u'/' + QLatin1String(name); }
    void write(const char *name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("no room for a test");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    }
    QByteArray feed() const { return UpdateFolder::contents(QFile::encodeName(path("feed.xml"))); }

    /// What it says on its way out, and how it ends.
    int run(const QStringList &arguments)
    {
        QProcess tool;
        tool.start(QCoreApplication::applicationDirPath() + u"/corvane_release"_s, arguments);
        tool.waitForFinished();
        said = tool.readAllStandardError() + tool.readAllStandardOutput();
        return tool.exitCode();
    }
    int renew(const QStringList &more = {})
    {
        return run(QStringList{u"--key"_s, path("key.pem"), u"--feed"_s, path("feed.xml")} + more);
    }
    int publish(const QString &build, const QStringList &more = {})
    {
        return renew(QStringList{u"--file"_s, path("new.AppImage"), u"--address"_s, address,
                                 u"--build"_s, build, u"--short-version"_s, build + u".0"_s}
                     + more);
    }

    QTemporaryDir directory;
    test::TestKey key;
    QByteArray image = UpdateFolder::image('n', 3'000'000);
    QString address = u"https://corvane.example/new.AppImage"_s;
    QByteArray said;
};

class ReleaseTool : public testing::Test, protected ReleaseDesk { };

class ReleaseToolAndProgram : public Updates { };

} // namespace

TEST_F(ReleaseToolAndProgram, aReleaseThatTheToolMadeIsTaken)
{
    ReleaseDesk desk;
    desk.key = key;
    desk.write("key.pem", key.pem());
    desk.address = announcer.url(QLatin1String(imagePath)).toString();
    desk.write("notes.txt", "Faster & <b>better</b>\n");
    ASSERT_EQ(desk.publish(u"11"_s, {u"--notes"_s, desk.path("notes.txt")}), 0)
        << desk.said.toStdString();
    announce(desk.feed());
    serve(desk.image);
    startUpdating();
    takeOffer();
    EXPECT_TRUE(says("Corvane 11.0 is installed"));
    EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == desk.image);
}

TEST_F(ReleaseToolAndProgram, aRotationThatTheToolMadeIsFollowed)
{
    ReleaseDesk desk;
    desk.key = key;
    desk.write("key.pem", key.pem());
    const test::TestKey next;
    desk.write("next.pem", next.pem());
    const QString first = key.publicText();
    desk.address = announcer.url(u"/10"_s).toString();
    ASSERT_EQ(desk.publish(u"10"_s, {u"--next-key"_s, desk.path("next.pem")}), 0)
        << desk.said.toStdString();
    desk.address = announcer.url(QLatin1String(imagePath)).toString();
    const QStringList byNext{u"--key"_s, desk.path("next.pem"), u"--first-key"_s, first};
    ASSERT_NE(desk.publish(u"11"_s), 0) << "the old key's time is over";
    ASSERT_EQ(desk.publish(u"11"_s, byNext), 0) << desk.said.toStdString();
    announce(desk.feed());
    serve(desk.image);
    startUpdating();
    takeOffer();
    EXPECT_TRUE(says("Corvane 11.0 is installed"));
}

TEST_F(ReleaseTool, aBuildThatIsNotHigherIsRefusedAndTheFeedStays)
{
    ASSERT_EQ(publish(u"11"_s), 0) << said.toStdString();
    const QByteArray before = feed();
    address = u"https://corvane.example/newer.AppImage"_s;
    for (const QString &build : {u"11"_s, u"10"_s, u"11.0"_s, u"9.9"_s}) {
        EXPECT_NE(publish(build), 0) << build.toStdString();
        EXPECT_TRUE(said.contains("not higher")) << said.toStdString();
    }
    EXPECT_EQ(feed(), before);
    EXPECT_EQ(publish(u"12"_s), 0) << said.toStdString();
}

TEST_F(ReleaseTool, anAddressThatIsTakenOrThatNobodyDownloadsFromIsRefused)
{
    ASSERT_EQ(publish(u"11"_s), 0) << said.toStdString();
    const QByteArray before = feed();
    EXPECT_NE(publish(u"12"_s), 0);
    EXPECT_TRUE(said.contains("has this address")) << said.toStdString();
    address = u"http://corvane.example/newer.AppImage"_s;
    EXPECT_NE(publish(u"12"_s), 0);
    EXPECT_TRUE(said.contains("https")) << said.toStdString();
    EXPECT_EQ(feed(), before);
}

TEST_F(ReleaseTool, notesThatAreNotThereAreRefused)
{
    EXPECT_NE(publish(u"11"_s, {u"--notes"_s, path("missing.txt")}), 0);
    EXPECT_TRUE(said.contains("cannot be read")) << said.toStdString();
    EXPECT_EQ(feed(), QByteArray());
}

TEST_F(ReleaseTool, betasHaveNoNumbersOfTheirOwn)
{
    ASSERT_EQ(publish(u"12"_s, {u"--channel"_s, u"beta"_s}), 0) << said.toStdString();
    address = u"https://corvane.example/newer.AppImage"_s;
    EXPECT_NE(publish(u"12"_s), 0);
    EXPECT_EQ(publish(u"13"_s), 0) << said.toStdString();
}

TEST_F(ReleaseTool, whatIsIncompleteOrNoAppImageOfOursIsRefused)
{
    address = u"not an address"_s;
    EXPECT_NE(publish(u"11"_s), 0);
    address = u"https://corvane.example/new.AppImage"_s;
    EXPECT_NE(publish(u"1.0-beta"_s), 0);
    EXPECT_NE(publish(u"11"_s, {u"--architecture"_s, u"arm64"_s}), 0);
    EXPECT_TRUE(said.contains("no AppImage")) << said.toStdString();
    write("new.AppImage", QByteArray(image).replace("application-id=", "application-is="));
    EXPECT_NE(publish(u"11"_s), 0);
    EXPECT_EQ(feed(), QByteArray()) << "nothing was written";
    EXPECT_EQ(run({u"--mark"_s, u"--file"_s, path("new.AppImage")}), 0) << said.toStdString();
    EXPECT_EQ(publish(u"11"_s), 0) << said.toStdString();
}

TEST_F(ReleaseTool, notesThatWouldNotComeThroughAreRefused)
{
    write("notes.txt", QByteArray(70'000, 'n'));
    EXPECT_NE(publish(u"11"_s, {u"--notes"_s, path("notes.txt")}), 0);
    write("notes.txt", "a bell \a");
    EXPECT_NE(publish(u"11"_s, {u"--notes"_s, path("notes.txt")}), 0);
    EXPECT_EQ(feed(), QByteArray());
}

TEST_F(ReleaseTool, aKeyThatOthersCanReadOrThatIsNoneIsRefused)
{
    QFile::setPermissions(path("key.pem"), QFile::ReadOwner | QFile::ReadOther);
    EXPECT_NE(publish(u"11"_s), 0);
    EXPECT_TRUE(said.contains("Others can read")) << said.toStdString();
    write("key.pem", "no key");
    EXPECT_NE(publish(u"11"_s), 0);
    EXPECT_NE(run({u"--key"_s, path("missing.pem"), u"--public-key"_s}), 0);
}

TEST_F(ReleaseTool, saysThePublicHalfOfTheKey)
{
    ASSERT_EQ(run({u"--key"_s, path("key.pem"), u"--public-key"_s}), 0) << said.toStdString();
    EXPECT_EQ(said.trimmed(), key.publicText().toLatin1());
}

TEST_F(ReleaseTool, aFeedOfAnotherKeyIsNotContinued)
{
    ASSERT_EQ(publish(u"11"_s), 0) << said.toStdString();
    write("key.pem", test::TestKey().pem());
    EXPECT_NE(renew({u"--first-key"_s, key.publicText()}), 0);
    EXPECT_TRUE(said.contains("another key")) << said.toStdString();
}

TEST_F(ReleaseTool, whatNamedTheNextKeyIsNotLostWhereTheFirstKeyIsForgotten)
{
    const test::TestKey next;
    write("next.pem", next.pem());
    ASSERT_EQ(publish(u"11"_s, {u"--next-key"_s, path("next.pem")}), 0) << said.toStdString();
    const QByteArray before = feed();
    const QStringList byNext{u"--key"_s, path("next.pem"), u"--feed"_s, path("feed.xml")};
    EXPECT_NE(run(byNext), 0);
    EXPECT_TRUE(said.contains("--first-key")) << said.toStdString();
    EXPECT_EQ(feed(), before);
    EXPECT_EQ(run(byNext + QStringList{u"--first-key"_s, key.publicText()}), 0)
        << said.toStdString();
}

TEST_F(ReleaseTool, aKeyThatProgramsWouldNotFollowToIsRefused)
{
    ASSERT_EQ(publish(u"11"_s), 0) << said.toStdString();
    const QStringList first{u"--first-key"_s, key.publicText(), u"--next-key"_s, path("next.pem")};
    constexpr int mostRotations = 8;
    for (int i = 0; i < mostRotations; ++i) {
        const QByteArray next = test::TestKey().pem();
        write("next.pem", next);
        ASSERT_EQ(renew(first), 0) << said.toStdString();
        write("key.pem", next);
    }
    const QByteArray before = feed();
    write("next.pem", test::TestKey().pem());
    EXPECT_NE(renew(first), 0);
    EXPECT_TRUE(said.contains("not follow")) << said.toStdString();
    EXPECT_EQ(feed(), before);
}

TEST_F(ReleaseTool, whatIsRenewedSaysTheSameWithHigherNumbers)
{
    ASSERT_EQ(publish(u"11"_s), 0) << said.toStdString();
    const QByteArray before = feed();
    ASSERT_EQ(renew({u"--valid-days"_s, u"10"_s}), 0) << said.toStdString();
    EXPECT_NE(feed(), before);
    EXPECT_EQ(feed().count("<item>"), 1);
    EXPECT_EQ(feed().count("<corvane:statement "), 1);
    const auto statementOf = [](const QByteArray &bytes) {
        const qsizetype end = bytes.indexOf("</corvane:statement>");
        const qsizetype begin = bytes.lastIndexOf('>', end - 1) + 1;
        return QByteArray::fromBase64(bytes.mid(begin, end - begin)).split('\n');
    };
    QList<QByteArray> was = statementOf(before);
    QList<QByteArray> is = statementOf(feed());
    EXPECT_EQ(was.at(1), "number 1");
    EXPECT_EQ(is.at(1), "number 2");
    ASSERT_EQ(was.size(), is.size());
    for (qsizetype i = 2; i < was.size(); ++i) {
        const bool isTime = was.at(i).startsWith("date") || was.at(i).startsWith("expiry");
        EXPECT_TRUE(isTime || was.at(i) == is.at(i)) << is.at(i).toStdString();
    }
}

} // namespace corvane::e2e
