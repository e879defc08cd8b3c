#include <QProcess>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// Whether a build can be configured so.
bool isAccepted(const QString &number, const QString &feed)
{
    QProcess configuration;
    configuration.start(QStringLiteral("cmake"),
                        {QStringLiteral("-DCORVANE_BUILD_NUMBER=") + number,
                         QStringLiteral("-DCORVANE_FEED_URL=") + feed, QStringLiteral("-P"),
                         QStringLiteral(CORVANE_TEST_DATA "/../cmake/build_number.cmake")});
    return configuration.waitForFinished() && configuration.exitCode() == 0;
}

const QString someFeed = QStringLiteral("https://corvane.example/appcast.xml");

} // namespace

TEST(BuildNumber, HasNoDefaultBesideAFeed)
{
    EXPECT_FALSE(isAccepted({}, someFeed));
    EXPECT_TRUE(isAccepted(QStringLiteral("12"), someFeed));
    EXPECT_TRUE(isAccepted({}, {}));
    EXPECT_TRUE(isAccepted({}, QStringLiteral("https://REPLACE_ME/appcast.xml")));
}

TEST(BuildNumber, IsANumberThatCanBeCompared)
{
    EXPECT_TRUE(isAccepted(QStringLiteral("1.12"), someFeed));
    for (const char *number : {"1.0-beta", "abc", "1.", "-1"})
        EXPECT_FALSE(isAccepted(QString::fromLatin1(number), someFeed)) << number;
}

} // namespace corvane::test
