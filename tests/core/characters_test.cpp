#include "core/characters.h"

#include <QStringList>
#include <QTextBoundaryFinder>

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(Characters, AreCountedAsPeopleCountThem)
{
    const auto count = [](const char16_t *text) { return characters::count(QStringView(text)); };
    EXPECT_EQ(count(u""), 0);
    EXPECT_EQ(count(u"a"), 1);
    EXPECT_EQ(count(u"hello\nworld"), 11);
    EXPECT_EQ(count(u"e\u0301"), 1) << "a letter and its accent";
    EXPECT_EQ(count(u"\u0301"), 1) << "an accent with no letter";
    EXPECT_EQ(count(u"abe\u0301cd"), 5);
    EXPECT_EQ(count(u"\U0001F426"), 1) << "two code units";
    EXPECT_EQ(count(u"\U0001F426\U0001F426"), 2);
    EXPECT_EQ(count(u"\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7"), 2) << "two flags";
    EXPECT_EQ(count(u"日本語"), 3);
    EXPECT_EQ(count(u"Привет"), 6);
    EXPECT_EQ(count(u"각"), 1);
    EXPECT_EQ(count(u"\u1112\u1161\u11ab"), 1) << "one syllable of three letters";
    EXPECT_EQ(count(u"a\r\nb"), 3) << "a line end of two characters";
    EXPECT_EQ(count(u"\u0301\r\n\u0301"), 3);
    EXPECT_EQ(count(u"\r\n\r\n"), 2);
    EXPECT_EQ(count(u"\n\r"), 2);
}

TEST(Characters, CountAFamilyAsOne)
{
    EXPECT_EQ(characters::count(QStringView(u"\U0001F468\u200D\U0001F469\u200D\U0001F467")), 1);
    EXPECT_EQ(characters::count(QStringView(u"\U0001F44D\U0001F3FD")), 1) << "a skin tone";
}

TEST(Characters, AreCountedTheSameQuicklyAndByTheRules)
{
    // No letters of Thailand and India: Qt has rules for those that reach beyond them.
    const QStringList pieces = {
        QStringLiteral("a"),      QStringLiteral("\r"),     QStringLiteral("\n"),
        QStringLiteral("\u0301"), QStringLiteral("\u200d"), QStringLiteral("\u00a9"),
        QStringLiteral("日"),     QStringLiteral("\u0600"), QStringLiteral("\U0001F426"),
        QStringLiteral("ж"),      QStringLiteral("\u1100"), QStringLiteral("\u1161"),
        QStringLiteral("\u00ad"),
    };
    quint32 random = 1;
    for (int round = 0; round < 3000; ++round) {
        QString text;
        for (int i = 0; i < 8; ++i) {
            random = random * 1664525 + 1013904223;
            text += pieces[(random >> 16) % static_cast<quint32>(pieces.size())];
        }
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
        qsizetype byTheRules = 0;
        for (qsizetype at = finder.toNextBoundary(); at >= 0; at = finder.toNextBoundary())
            byTheRules += at < text.size() && text[at].isLowSurrogate() ? 0 : 1;
        ASSERT_EQ(characters::count(text), byTheRules) << text.toUtf8().toPercentEncoding().data();
    }
}

TEST(Characters, AreNeverCutInTwo)
{
    const QString birds = QStringLiteral("\U0001F426e\u0301\U0001F426");
    EXPECT_EQ(characters::prefix(birds, 2, 1000), QStringLiteral("\U0001F426e\u0301"));
    EXPECT_EQ(characters::prefix(birds, 9, 1000), birds);
    EXPECT_EQ(characters::prefix(birds, 9, 6), QStringLiteral("\U0001F426"));
    EXPECT_EQ(characters::prefix(birds, 9, 7), QStringLiteral("\U0001F426e\u0301"));
    EXPECT_EQ(characters::prefix(birds, 9, 3), QString());
    const QString besideThai = QStringLiteral("\u00a9\U0001F426\n\u0e33a");
    EXPECT_EQ(characters::prefix(besideThai, 2, 1000), QStringLiteral("\u00a9\U0001F426"));
}

TEST(Characters, AreLookedAtOnlyAsFarAsAnySensibleOneReaches)
{
    const QString piled = QStringLiteral("a") + QString(1000, QChar(0x301));
    EXPECT_EQ(characters::prefix(piled, 1, 10000).size(), 128);
    EXPECT_EQ(characters::prefix(piled, 2, 10000).size(), 192);
}

} // namespace
} // namespace corvane
