#include "app/updates/release_statement.h"
#include "app/updates/statements.h"

#include <QTimeZone>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

Statement whole()
{
    Statement statement = Statement::of("12", "file");
    statement.number = "57";
    statement.shortVersion = "1.2";
    statement.minimums = {"debian 12", "ubuntu 24.04"};
    statement.nextKey = QByteArray(32, 'k');
    return statement;
}

bool isStatement(const QByteArray &bytes)
{
    return ReleaseStatement::fromBytes(bytes).has_value();
}

} // namespace

TEST(ReleaseStatement, SaysEverythingThatWasWritten)
{
    const auto read = ReleaseStatement::fromBytes(whole().bytes());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->number, 57);
    EXPECT_EQ(read->application, QStringLiteral("example.corvane.Corvane"));
    EXPECT_EQ(read->version.text(), QStringLiteral("12"));
    EXPECT_EQ(read->shortVersion, QStringLiteral("1.2"));
    EXPECT_EQ(read->channel, ReleaseStatement::stable);
    EXPECT_EQ(read->system, QStringLiteral("linux"));
    EXPECT_EQ(read->architecture, QStringLiteral("x86_64"));
    EXPECT_EQ(read->kind, ReleaseStatement::appImage);
    EXPECT_EQ(read->address, QUrl(QStringLiteral("https://corvane.example/new.AppImage")));
    EXPECT_EQ(read->length, 4);
    EXPECT_EQ(read->digest, sha512("file"));
    EXPECT_EQ(read->minimumSystems,
              (QStringList{QStringLiteral("debian 12"), QStringLiteral("ubuntu 24.04")}));
    EXPECT_FALSE(read->notesAreMarkup);
    EXPECT_EQ(read->notesDigest, sha512("Notes of 12"));
    EXPECT_EQ(read->date, QDateTime({2026, 11, 1}, {0, 0}, QTimeZone::utc()));
    EXPECT_EQ(read->expiry, QDateTime({2099, 1, 1}, {0, 0}, QTimeZone::utc()));
    EXPECT_EQ(read->nextKey, QByteArray(32, 'k'));
    EXPECT_EQ(read->toBytes(), whole().bytes());
}

TEST(ReleaseStatement, WhatIsNotNeededMayBeMissing)
{
    const auto read = ReleaseStatement::fromBytes(Statement::of("12", "file").bytes());
    ASSERT_TRUE(read);
    EXPECT_TRUE(read->minimumSystems.isEmpty());
    EXPECT_TRUE(read->nextKey.isEmpty());
    QByteArray markup = whole().bytes();
    markup.replace("plain-text", "html");
    EXPECT_TRUE(ReleaseStatement::fromBytes(markup)->notesAreMarkup);
}

TEST(ReleaseStatement, EveryLineIsNeededAndThereIsOneOrder)
{
    const QByteArray bytes = Statement::of("12", "file").bytes();
    const QList<QByteArray> lines = bytes.trimmed().split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QList<QByteArray> fewer = lines;
        fewer.removeAt(i);
        EXPECT_FALSE(isStatement(fewer.join('\n') + '\n')) << lines.at(i).toStdString();
        QList<QByteArray> twice = lines;
        twice.insert(i, lines.at(i));
        EXPECT_FALSE(isStatement(twice.join('\n') + '\n')) << lines.at(i).toStdString();
        if (i > 0) {
            QList<QByteArray> turned = lines;
            turned.swapItemsAt(i, i - 1);
            EXPECT_FALSE(isStatement(turned.join('\n') + '\n')) << lines.at(i).toStdString();
        }
    }
}

TEST(ReleaseStatement, ThereIsOneWayToWriteIt)
{
    const QByteArray bytes = whole().bytes();
    const QByteArray without = Statement::of("12", "file").bytes();
    for (qsizetype size = 0; size < without.size(); ++size)
        EXPECT_FALSE(isStatement(without.left(size))) << size;
    EXPECT_FALSE(isStatement(bytes + '\n'));
    EXPECT_FALSE(isStatement(' ' + bytes));
    EXPECT_FALSE(isStatement(bytes + "more 1\n"));
    EXPECT_FALSE(isStatement(QByteArray(bytes).replace("\n", "\r\n")));
    EXPECT_FALSE(isStatement(QByteArray(bytes).replace("number 57", "number 057")));
    EXPECT_FALSE(isStatement(QByteArray(bytes).replace("number 57", "number +57")));
    EXPECT_FALSE(isStatement(QByteArray(bytes).replace("number 57", "number  57")));
    EXPECT_FALSE(isStatement(QByteArray(bytes).replace("00:00:00Z", "00:00:00.000Z")));
    EXPECT_FALSE(isStatement(QByteArray(bytes).replace("00:00:00Z", "01:00:00+01:00")));
    EXPECT_FALSE(isStatement(
        QByteArray(bytes).replace(sha512("file").toHex(), sha512("file").toHex().toUpper())));
}

TEST(ReleaseStatement, WhatIsOutOfBoundsIsNone)
{
    const auto with = [](auto change) {
        Statement statement = whole();
        change(statement);
        return isStatement(statement.bytes());
    };
    EXPECT_TRUE(with([](Statement &) {}));
    for (const char *number : {"0", "-1", "1000000000000001", "99999999999999999999", "x"})
        EXPECT_FALSE(with([&](Statement &s) { s.number = number; })) << number;
    EXPECT_TRUE(with([](Statement &s) { s.number = "1000000000000000"; }));
    for (const char *version : {"", "1.0-beta", "1 2"})
        EXPECT_FALSE(with([&](Statement &s) { s.version = version; })) << version;
    EXPECT_FALSE(with([](Statement &s) { s.version = QByteArray(65, '9'); }));
    for (const QByteArray &word : {QByteArray(), QByteArray("a b"), QByteArray("a/b"),
                                   QByteArray("\xc3\xa4"), QByteArray(65, 'a')}) {
        EXPECT_FALSE(with([&](Statement &s) { s.application = word; })) << word.toStdString();
        EXPECT_FALSE(with([&](Statement &s) { s.shortVersion = word; })) << word.toStdString();
        EXPECT_FALSE(with([&](Statement &s) { s.channel = word; })) << word.toStdString();
        EXPECT_FALSE(with([&](Statement &s) { s.system = word; })) << word.toStdString();
        EXPECT_FALSE(with([&](Statement &s) { s.architecture = word; })) << word.toStdString();
        EXPECT_FALSE(with([&](Statement &s) { s.kind = word; })) << word.toStdString();
    }
    for (const char *address : {"", "new.AppImage", "file:///new", "ftp://a.test/new",
                                "https:///new", "https://a.test/a b"})
        EXPECT_FALSE(with([&](Statement &s) { s.address = address; })) << address;
    EXPECT_FALSE(with([](Statement &s) { s.address = "https://a.test/" + QByteArray(1024, 'a'); }));
    for (const char *length : {"0", "-1", "1e3"})
        EXPECT_FALSE(with([&](Statement &s) { s.length = length; })) << length;
    EXPECT_FALSE(with([](Statement &s) { s.digest = sha512("").toHex().chopped(2); }));
    EXPECT_FALSE(with([](Statement &s) { s.minimums = {"debian"}; }));
    EXPECT_FALSE(with([](Statement &s) { s.minimums = {"debian 12 13"}; }));
    EXPECT_TRUE(with([](Statement &s) { s.minimums = QList<QByteArray>(16, "debian 12"); }));
    EXPECT_FALSE(with([](Statement &s) { s.minimums = QList<QByteArray>(17, "debian 12"); }));
    EXPECT_FALSE(with([](Statement &s) { s.expiry = s.date; }));
    EXPECT_FALSE(with([](Statement &s) { s.date = "yesterday"; }));
    EXPECT_FALSE(with([](Statement &s) { s.nextKey = QByteArray(31, 'k'); }));
}

TEST(ReleaseStatement, ItBeginsAsNothingElseDoesThatIsSigned)
{
    Statement other = whole();
    other.firstLine = "Corvane release statement 2";
    EXPECT_FALSE(isStatement(other.bytes()));
    EXPECT_FALSE(isStatement("\x7f"
                             "ELF"
                             + whole().bytes()));
}

TEST(ReleaseStatement, LongBytesAreNotRead)
{
    EXPECT_FALSE(isStatement(QByteArray(ReleaseStatement::maximumBytes + 1, 'x')));
    Statement longest = whole();
    longest.address = "https://a.test/" + QByteArray(1000, 'a');
    EXPECT_TRUE(isStatement(longest.bytes()));
}

} // namespace corvane::test
