#include "app/updates/appcast.h"
#include "app/updates/feeds.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

QList<ClaimedRelease> itemsOf(const QByteArray &contents)
{
    return appcast::read(feed(contents)).value_or(QList<ClaimedRelease>());
}

} // namespace

TEST(Appcast, AnItemIsReadWithEverythingThatItSays)
{
    const auto items = itemsOf(
        "<item><title>1.2</title><sparkle:version>12</sparkle:version>"
        "<sparkle:shortVersionString>1.2</sparkle:shortVersionString>"
        "<sparkle:minimumSystemVersion> debian  12 </sparkle:minimumSystemVersion>"
        "<description>News</description>"
        "<enclosure url='https://corvane.example/a' length='10' type='application/octet-stream' "
        "sparkle:os='linux' sparkle:arch='x86_64' sparkle:edSignature='"
        + QByteArray(64, 's').toBase64() + "'/></item>");
    ASSERT_EQ(items.size(), 1);
    const ClaimedRelease &item = items.first();
    EXPECT_EQ(item.version, QStringLiteral("12"));
    EXPECT_EQ(item.shortVersion, QStringLiteral("1.2"));
    EXPECT_EQ(item.minimumSystems, QStringList{QStringLiteral("debian 12")});
    EXPECT_EQ(item.notes, QStringLiteral("News"));
    EXPECT_TRUE(item.notesAreMarkup);
    ASSERT_EQ(item.files.size(), 1);
    const ClaimedFile &enclosure = item.files.first();
    EXPECT_EQ(enclosure.url, QUrl(QStringLiteral("https://corvane.example/a")));
    EXPECT_EQ(enclosure.length, 10);
    EXPECT_EQ(enclosure.system, QStringLiteral("linux"));
    EXPECT_EQ(enclosure.architecture, QStringLiteral("x86_64"));
    EXPECT_EQ(enclosure.signature, QByteArray(64, 's'));
}

TEST(Appcast, VersionsMayStandOnTheEnclosureAndAnElementWins)
{
    const auto items = itemsOf("<item><enclosure sparkle:version='3' "
                               "sparkle:shortVersionString='0.3'/></item>"
                               "<item><sparkle:version>4</sparkle:version>"
                               "<enclosure sparkle:version='3'/></item>");
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(items.at(0).version, QStringLiteral("3"));
    EXPECT_EQ(items.at(0).shortVersion, QStringLiteral("0.3"));
    EXPECT_EQ(items.at(1).version, QStringLiteral("4"));
}

TEST(Appcast, NamesOfOtherNamespacesAreNotMeant)
{
    const auto items = itemsOf("<item xmlns:other='urn:o'><version>1</version>"
                               "<other:version>2</other:version></item>");
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items.first().version, QString());
}

TEST(Appcast, ASignatureThatIsNoneIsNone)
{
    for (const QByteArray &text :
         {QByteArray("%%%"), QByteArray("QUJD"), QByteArray(65, 's').toBase64()}) {
        const auto items = itemsOf("<item><enclosure sparkle:edSignature='" + text + "'/></item>");
        EXPECT_TRUE(items.first().files.first().signature.isEmpty());
    }
}

TEST(Appcast, ALengthThatIsNoneIsNone)
{
    for (const char *text : {"", "-1", "ten", "99999999999999999999"}) {
        const auto items = itemsOf("<item><enclosure length='" + QByteArray(text) + "'/></item>");
        EXPECT_EQ(items.first().files.first().length, -1) << text;
    }
}

TEST(Appcast, NotesMayHoldMarkupOrPlainText)
{
    const auto items = itemsOf("<item><description><![CDATA[<b>x</b>]]></description></item>"
                               "<item><description sparkle:format='plain-text'>1 &lt; 2"
                               "</description></item>");
    EXPECT_EQ(items.at(0).notes, QStringLiteral("<b>x</b>"));
    EXPECT_TRUE(items.at(0).notesAreMarkup);
    EXPECT_EQ(items.at(1).notes, QStringLiteral("1 < 2"));
    EXPECT_FALSE(items.at(1).notesAreMarkup);
}

TEST(Appcast, WhatIsNoFeedIsNone)
{
    for (const QByteArray &bytes :
         {QByteArray(), QByteArray("hello"), QByteArray("<html><body/></html>"),
          QByteArray("<rss><channel><item></channel></rss>"), QByteArray(R"({"a": 1})"),
          QByteArray(1000, '\0')})
        EXPECT_FALSE(appcast::read(bytes)) << bytes.toStdString();
}

TEST(Appcast, AFeedThatIsBrokenOffIsNone)
{
    const QByteArray whole = feed("<item><sparkle:version>1</sparkle:version></item>");
    ASSERT_TRUE(appcast::read(whole));
    for (qsizetype size = 0; size < whole.trimmed().size(); ++size)
        EXPECT_FALSE(appcast::read(whole.left(size))) << size;
}

TEST(Appcast, AFeedWithoutItemsIsOne)
{
    const auto items = appcast::read(feed(""));
    ASSERT_TRUE(items);
    EXPECT_TRUE(items->isEmpty());
}

TEST(Appcast, AnEntityBombIsRefusedBeforeItGrows)
{
    EXPECT_FALSE(appcast::read(entityBomb()));
}

TEST(Appcast, AnyDocumentTypeIsRefused)
{
    EXPECT_FALSE(appcast::read("<!DOCTYPE rss>" + feed("")));
    EXPECT_FALSE(appcast::read("<!DOCTYPE rss SYSTEM 'file:///etc/passwd'>" + feed("")));
}

TEST(Appcast, EntitiesThatNobodyDeclaredAreRefused)
{
    EXPECT_FALSE(appcast::read(feed("<item><description>&lol;</description></item>")));
}

TEST(Appcast, AFeedOfMoreThanItsLimitIsRefusedAndOneOfTheLimitIsRead)
{
    QByteArray whole = feed("");
    whole += QByteArray(appcast::maximumBytes - whole.size(), ' ');
    EXPECT_TRUE(appcast::read(whole));
    EXPECT_FALSE(appcast::read(whole + ' '));
}

TEST(Appcast, AFeedOfTooManyItemsIsRefused)
{
    EXPECT_TRUE(appcast::read(feed(QByteArray("<item/>").repeated(appcast::maximumItems))));
    EXPECT_FALSE(appcast::read(feed(QByteArray("<item/>").repeated(appcast::maximumItems + 1))));
}

TEST(Appcast, ElementsNestedWithoutEndAreRefused)
{
    const auto nested = [](int depth) -> QByteArray {
        return QByteArray("<a>").repeated(depth) + "x" + QByteArray("</a>").repeated(depth);
    };
    const auto items = itemsOf("<item><description>" + nested(20) + "</description></item>");
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items.first().notes, QStringLiteral("x"));
    EXPECT_FALSE(appcast::read(feed("<item><description>" + nested(140'000))));
    EXPECT_FALSE(appcast::read(feed("<item><description>" + QByteArray("<a>").repeated(300'000))));
}

TEST(Appcast, AnElementOfMoreAttributesThanAnybodyNeedsIsRefused)
{
    QByteArray attributes;
    for (int i = 0; attributes.size() < 900'000; ++i)
        attributes += " a" + QByteArray::number(i) + "=''";
    EXPECT_FALSE(appcast::read(feed("<item><enclosure" + attributes + "/></item>")));
}

TEST(Appcast, StatementsAreReadWithTheirSignatures)
{
    const QByteArray signature(64, 's');
    const QByteArray statement = "<corvane:statement signature='" + signature.toBase64() + "'>";
    const auto items
        = itemsOf("<item>" + statement + "\n  "
                  + QByteArray("a statement").toBase64().insert(4, "\n ") + "\n</corvane:statement>"
                  + statement + QByteArray("another").toBase64() + "</corvane:statement></item>");
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items.first().statements,
              (QList<ClaimedStatement>{{"a statement", signature}, {"another", signature}}));
}

TEST(Appcast, AStatementThatIsNoneIsPassedOver)
{
    const QByteArray signature = QByteArray(64, 's').toBase64();
    const auto items = itemsOf("<item><corvane:statement signature='" + signature
                               + "'>%%%</corvane:statement>"
                                 "<corvane:statement signature='QUJD'>QUJD</corvane:statement>"
                                 "<corvane:statement>QUJD</corvane:statement><statement signature='"
                               + signature + "'>QUJD</statement><corvane:statement signature='"
                               + signature + "'/><corvane:statement signature='" + signature + "'>"
                               + QByteArray(9000, 'A') + "</corvane:statement></item>");
    ASSERT_EQ(items.size(), 1);
    for (const ClaimedStatement &one : items.first().statements)
        EXPECT_LE(one.bytes.size(), 6144) << "one that is too long is cut, and so not signed";
    EXPECT_LE(items.first().statements.size(), 1);
}

TEST(Appcast, AFeedOfTooManyStatementsIsRefused)
{
    const QByteArray one = "<corvane:statement/>";
    EXPECT_TRUE(appcast::read(feed("<item>" + one.repeated(1000) + "</item>")));
    EXPECT_FALSE(appcast::read(feed("<item>" + one.repeated(1001) + "</item>")));
}

TEST(Appcast, EncodingsInWhichMarkupIsWrittenOtherwiseAreRefused)
{
    const QString text = QString::fromUtf8(feed(""));
    QByteArray utf16(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
    EXPECT_FALSE(appcast::read(utf16));
    EXPECT_FALSE(appcast::read("\xff\xfe" + utf16));
    EXPECT_FALSE(appcast::read(feed("<item><title>\xff</title></item>")));
}

TEST(Appcast, LongTextsAreCut)
{
    const auto items = itemsOf("<item><sparkle:version>" + QByteArray(5000, '1')
                               + "</sparkle:version><description>" + QByteArray(100'000, 'n')
                               + "</description></item>");
    EXPECT_EQ(items.first().version.size(), 1024);
    EXPECT_EQ(items.first().notes.size(), 65'536);
}

TEST(Appcast, OtherEncodingsAreRead)
{
    const QByteArray latin = "<?xml version='1.0' encoding='ISO-8859-1'?>"
        + feed("<item><description>\xe9"
               "</description></item>");
    const auto items = appcast::read(latin);
    ASSERT_TRUE(items);
    EXPECT_EQ(items->first().notes, QStringLiteral("é"));
}

} // namespace corvane::test
