#include "fakes/fake_text_measurer.h"
#include "shelf/drawing/wrapped_lines.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// On lines that have room for so many letters.
QStringList wrap(const QString &text, int letters, int maximum = 99)
{
    const FakeTextMeasurer measurer;
    return wrappedLines(text, {}, letters * measurer.advance, maximum, measurer);
}

} // namespace

TEST(WrappedLines, ATextThatFitsStaysOnOneLine)
{
    EXPECT_EQ(wrap(QStringLiteral("one two"), 7), QStringList{QStringLiteral("one two")});
}

TEST(WrappedLines, ATextIsBrokenBetweenItsWords)
{
    EXPECT_EQ(wrap(QStringLiteral("one two three"), 8),
              (QStringList{QStringLiteral("one two"), QStringLiteral("three")}));
}

TEST(WrappedLines, ASpaceAtTheEndOfALineNeedsNoRoom)
{
    EXPECT_EQ(wrap(QStringLiteral("one  two"), 3),
              (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
}

TEST(WrappedLines, AWordThatIsTooWideIsBrokenBetweenItsLetters)
{
    EXPECT_EQ(wrap(QStringLiteral("abcdefgh"), 3),
              (QStringList{QStringLiteral("abc"), QStringLiteral("def"), QStringLiteral("gh")}));
}

TEST(WrappedLines, LettersOfSeveralCharactersStayWhole)
{
    const QString letter = QString::fromUtf8("👩‍🚀");
    EXPECT_EQ(wrap(letter + letter, static_cast<int>(letter.size()) + 1),
              (QStringList{letter, letter}));
}

TEST(WrappedLines, ALetterThatIsWiderThanALineHasOneToItself)
{
    EXPECT_EQ(wrap(QStringLiteral("ab"), 0),
              (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
}

TEST(WrappedLines, TheLastLineHasAllTheRest)
{
    EXPECT_EQ(wrap(QStringLiteral("one two three four"), 5, 2),
              (QStringList{QStringLiteral("one"), QStringLiteral("two three four")}));
}

TEST(WrappedLines, ATextOfSpacesHasNoLines)
{
    EXPECT_TRUE(wrap(QStringLiteral("  "), 5).isEmpty());
}

} // namespace corvane::test
