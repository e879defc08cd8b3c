#include "services/preview_text.h"

#include <QMimeDatabase>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace corvane::test {
namespace {

using namespace preview_text;

QMimeType type(const char *name)
{
    return QMimeDatabase().mimeTypeForName(QLatin1String(name));
}

QString decoded(const QByteArray &bytes)
{
    return decode(bytes, false).text;
}

qsizetype longestLine(const QString &text)
{
    qsizetype longest = 0;
    for (const auto line : QStringView(text).split(u'\n'))
        longest = std::max(longest, line.size());
    return longest;
}

TEST(PreviewText, ReadsUtf8WithAndWithoutItsMark)
{
    EXPECT_EQ(decoded("\xC3\xA9\xF0\x9F\x98\x80"), QStringLiteral("é😀"));
    EXPECT_EQ(decoded("\xEF\xBB\xBF\xC3\xA9"), QStringLiteral("é"));
}

TEST(PreviewText, ReadsUtf16And32ByTheirMarks)
{
    EXPECT_EQ(decoded(QByteArray("\xFF\xFE\xE9\0a\0", 6)), QStringLiteral("éa"));
    EXPECT_EQ(decoded(QByteArray("\xFE\xFF\0\xE9\0a", 6)), QStringLiteral("éa"));
    EXPECT_EQ(decoded(QByteArray("\xFF\xFE\0\0\xE9\0\0\0", 8)), QStringLiteral("é"));
}

TEST(PreviewText, ReadsWhatIsNoUtf8AsLatin1)
{
    EXPECT_EQ(decoded("caf\xE9!"), QStringLiteral("café!"));
    EXPECT_EQ(decoded("\xC3"), QStringLiteral("Ã"));
}

TEST(PreviewText, ACharacterThatWasCutInTwoDoesNotMakeItLatin1)
{
    const QByteArray bytes = "\xC3\xA9\xF0\x9F\x98\x80";
    EXPECT_EQ(decode(bytes.chopped(1), true).text, QStringLiteral("é"));
    EXPECT_EQ(decode(bytes.chopped(3), true).text, QStringLiteral("é"));
    EXPECT_EQ(decode(bytes, true).text, QStringLiteral("é😀"));
    EXPECT_EQ(decode("", true).text, QString());
}

TEST(PreviewText, MakesLineEndsTheSame)
{
    EXPECT_EQ(decoded("a\r\nb\rc\nd\n\re"), QStringLiteral("a\nb\nc\nd\n\ne"));
}

TEST(PreviewText, MakesCharactersHarmlessThatControlOrForgeAndKeepsTabs)
{
    const QString replaced(QChar::ReplacementCharacter);
    EXPECT_EQ(decoded(QByteArray("a\0\x1b[31mb\tc", 10)),
              QLatin1Char('a') + replaced + replaced + QStringLiteral("[31mb\tc"));
    EXPECT_EQ(decoded(QStringLiteral("a\u202Etxt.exe\u2066").toUtf8()),
              QLatin1Char('a') + replaced + QStringLiteral("txt.exe") + replaced);
    EXPECT_EQ(decoded(QString(QChar(0xFDD0)).toUtf8()), replaced) << "means a frame to text views";
}

TEST(PreviewText, ReplacesExactlyTheHarmfulCharacters)
{
    const std::vector<std::pair<char16_t, char16_t>> harmful
        = {{0x00, 0x08},     {0x0E, 0x1F},     {0x7F, 0x84},     {0x86, 0x9F},    {0x202A, 0x202E},
           {0x2066, 0x2069}, {0xFDD0, 0xFDD1}, {0xFEFF, 0xFEFF}, {0xFFFC, 0xFFFC}};
    const QString lineEnds = QStringLiteral("\n\v\f\r\u0085\u2028\u2029");
    for (char16_t unit = 0; unit < 0xFFFE; ++unit) {
        if (QChar::isSurrogate(unit))
            continue;
        const bool isHarmful = std::ranges::any_of(harmful, [unit](const auto &range) {
            return unit >= range.first && unit <= range.second;
        });
        QChar expected = isHarmful ? QChar(QChar::ReplacementCharacter) : QChar(unit);
        if (lineEnds.contains(QChar(unit)))
            expected = QLatin1Char('\n');
        const QString text = QLatin1Char('a') + QChar(unit) + QLatin1Char('b');
        ASSERT_EQ(decoded(text.toUtf8()), QLatin1Char('a') + expected + QLatin1Char('b'))
            << static_cast<int>(unit);
    }
}

TEST(PreviewText, BreaksALineThatIsAllThereIs)
{
    const QString text = decoded(QByteArray(1'000'000, 'x'));
    EXPECT_EQ(longestLine(text), maximumLineLength);
    EXPECT_EQ(text.count(QLatin1Char('x')), 1'000'000);
}

TEST(PreviewText, DoesNotBreakACharacterInTwo)
{
    const QString emoji = QStringLiteral("😀");
    const QString text = decoded((QLatin1Char('x') + emoji.repeated(3000)).toUtf8());
    for (qsizetype i = 0; i + 1 < text.size(); ++i)
        ASSERT_FALSE(text[i].isHighSurrogate() && !text[i + 1].isLowSurrogate()) << i;
}

TEST(PreviewText, LeavesLinesAwayBeyondWhatAViewCanHold)
{
    const Decoded many = decode(QByteArray(maximumLines + 5, '\n'), false);
    EXPECT_EQ(many.text.size(), maximumLines);
    EXPECT_TRUE(many.isCut);
    EXPECT_FALSE(decode(QByteArray(maximumLines, '\n'), false).isCut);
}

TEST(PreviewText, TellsThatTheFileWasCut)
{
    EXPECT_TRUE(decode("abc", true).isCut);
    EXPECT_FALSE(decode("abc", false).isCut);
}

TEST(PreviewText, CountsAsTextWhateverDescendsFromText)
{
    for (const char *name : {"text/plain", "text/html", "application/json", "application/xml",
                             "application/x-shellscript", "text/x-python", "text/csv"})
        EXPECT_TRUE(isText(type(name))) << name;
    for (const char *name : {"application/zip", "video/mp4", "application/octet-stream"})
        EXPECT_FALSE(isText(type(name))) << name;
}

TEST(PreviewText, SetsCodeAndLogsInColumnsAndProseInTheDesktopsFont)
{
    EXPECT_TRUE(isMonospaced(type("text/x-python"), QStringLiteral("a.py")));
    EXPECT_TRUE(isMonospaced(type("text/html"), QStringLiteral("a.html")));
    EXPECT_TRUE(isMonospaced(type("text/plain"), QStringLiteral("boot.LOG")));
    EXPECT_FALSE(isMonospaced(type("text/plain"), QStringLiteral("letter.txt")));
    EXPECT_FALSE(isMonospaced(type("text/markdown"), QStringLiteral("README.md")));
}

} // namespace
} // namespace corvane::test
