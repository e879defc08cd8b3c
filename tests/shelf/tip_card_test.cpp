#include "core/display_text.h"
#include "fakes/fake_motion_preference.h"
#include "fakes/fake_text_measurer.h"
#include "fakes/test_clock.h"
#include "shelf/drawing/theme.h"
#include "shelf/tip_card.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

constexpr double fakeAdvance = 7;
const int lettersOnALine = static_cast<int>(TipCard::maximumWidth / fakeAdvance);

class TipCardTest : public testing::Test {
protected:
    std::unique_ptr<TipCard> card(const QString &text)
    {
        return std::make_unique<TipCard>(TipCard::Context{clock, motion, theme, measurer}, text);
    }

    static std::vector<const TextLayer *> textsOn(const TipCard &card)
    {
        std::vector<const TextLayer *> texts;
        for (const Layer *layer : card.root().sublayers())
            texts.push_back(&dynamic_cast<const TextLayer &>(*layer));
        return texts;
    }

    TestClock clock;
    FakeMotionPreference motion;
    FakeTextMeasurer measurer;
    Theme theme{QFont(), 96};
};

} // namespace

TEST_F(TipCardTest, ItIsAsLargeAsItsText)
{
    EXPECT_EQ(card(QStringLiteral("abcd"))->size(),
              QSizeF(4 * fakeAdvance, TipCard::lineHeight) + 2 * TipCard::padding);
}

TEST_F(TipCardTest, ALongTextHasSeveralLinesNoneOfThemTooWide)
{
    const auto shown = card(QString(lettersOnALine * 2 + 1, u'a'));
    EXPECT_EQ(shown->lines().size(), 3);
    EXPECT_EQ(shown->lines().join(QString()), QString(lettersOnALine * 2 + 1, u'a'));
    EXPECT_LE(shown->size().width(), TipCard::maximumWidth + 2 * TipCard::padding.width());
    EXPECT_EQ(shown->size().height(), 3 * TipCard::lineHeight + 2 * TipCard::padding.height());
}

TEST_F(TipCardTest, TheFirstLineIsAtTheTop)
{
    const auto shown = card(QString(lettersOnALine + 1, u'a'));
    const auto texts = textsOn(*shown);
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[0]->frame().y() + TipCard::lineHeight,
              shown->size().height() - TipCard::padding.height());
    EXPECT_EQ(texts[1]->frame().y(), TipCard::padding.height());
}

TEST_F(TipCardTest, ATextOfThousandsOfLettersIsBounded)
{
    const auto shown = card(QStringLiteral("words and ").repeated(4000));
    EXPECT_EQ(shown->lines().size(), TipCard::maximumLines);
    EXPECT_LE(shown->size().width(), TipCard::maximumWidth + 2 * TipCard::padding.width());
    // The last line's layer cuts it.
    EXPECT_GT(measurer.width(shown->lines().constLast(), {}), TipCard::maximumWidth);
}

TEST_F(TipCardTest, WhatIsLeftOutOfANarrowTextIsSaid)
{
    measurer.advance = 1;
    const auto shown = card(QString(9000, u'a'));
    EXPECT_LT(shown->lines().size(), TipCard::maximumLines);
    EXPECT_TRUE(shown->lines().constLast().endsWith(u'\u2026'));
}

TEST_F(TipCardTest, CharactersThatForgeATextAreHarmless)
{
    const QString forged = QString::fromUtf8("a\u202Egpj.exe\nb");
    EXPECT_EQ(card(forged)->lines().join(QString()), displayText(forged));
}

TEST_F(TipCardTest, MarkupIsShownAsItIs)
{
    const QString text = QStringLiteral("<b>bold</b> &amp; more");
    EXPECT_EQ(card(text)->lines(), QStringList{text});
}

TEST_F(TipCardTest, LinesOfATextFromRightToLeftBeginAtTheRight)
{
    theme.direction = Qt::RightToLeft;
    const QString word = QString::fromUtf8("كلمة ");
    const auto shown = card(word.repeated(20) + QStringLiteral("Latin letters alone.").repeated(3));
    const auto texts = textsOn(*shown);
    ASSERT_GT(texts.size(), 2U);
    for (const TextLayer *text : texts) {
        EXPECT_EQ(text->alignment(), Qt::AlignRight);
        EXPECT_EQ(text->textDirection(), Qt::RightToLeft);
    }
    EXPECT_EQ(textsOn(*card(QStringLiteral("Latin")))[0]->alignment(), Qt::AlignLeft);
}

TEST_F(TipCardTest, ItHasAStrongEdgeWhereMoreContrastIsWanted)
{
    const QColor usual = card(QStringLiteral("a"))->root().border().color;
    theme.setContrast(Theme::Contrast::More);
    EXPECT_GT(card(QStringLiteral("a"))->root().border().color.alpha(), usual.alpha());
}

} // namespace corvane::test
