#include "app/look/text_label.h"

#include <QImage>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// The column behind the last one of each line in which something is drawn.
QList<int> rightEndsOfLines(const QImage &image, int lineHeight)
{
    QList<int> ends;
    const QRgb ground = image.pixel(0, 0);
    for (int top = 0; top + lineHeight <= image.height(); top += lineHeight) {
        int end = 0;
        for (int y = top; y < top + lineHeight; ++y) {
            for (int x = end; x < image.width(); ++x) {
                if (image.pixel(x, y) != ground)
                    end = x + 1;
            }
        }
        if (end > 0)
            ends << end;
    }
    return ends;
}

} // namespace

TEST(TextLabel, AsksForMoreRoomOnceItsFontIsLarger)
{
    QFont font;
    font.setPixelSize(12);
    TextLabel label(QStringLiteral("Some words"), font, TextLabel::Tone::Primary);
    const QSize before = label.sizeHint();
    font.setPixelSize(24);
    label.setFont(font);
    EXPECT_GT(label.sizeHint().width(), before.width());
    EXPECT_GT(label.sizeHint().height(), before.height());
}

TEST(TextLabel, SpreadsTheLettersOfAHeadingUnlessTheyAreJoined)
{
    const auto spacing = [](const QString &text) {
        return TextLabel(text, {}, TextLabel::Tone::Heading).font().letterSpacing();
    };
    EXPECT_GT(spacing(QStringLiteral("Shelf")), 0);
    EXPECT_EQ(spacing(QStringLiteral("\u0627\u0644\u0631\u0641")), 0);
    EXPECT_EQ(spacing(QStringLiteral("\u0936\u0947\u0932\u094D\u092B")), 0);
}

TEST(TextLabel, BeginsEachLineAtTheEdgeWhereTextsAreWrittenFromRightToLeft)
{
    QFont font;
    font.setPixelSize(14);
    const QString word = QStringLiteral("\u05D0\u05D1\u05D2");
    for (const TextLabel::Tone tone : {TextLabel::Tone::Primary, TextLabel::Tone::Secondary}) {
        TextLabel label(QStringList(9, word).join(u' '), font, tone);
        label.setLayoutDirection(Qt::RightToLeft);
        label.setWordWrap(true);
        const int lineHeight = label.fontMetrics().height();
        label.resize(label.fontMetrics().horizontalAdvance(QStringList(3, word).join(u' ')) + 2,
                     3 * lineHeight);
        label.setAlignment(Qt::AlignTop | Qt::AlignLeading);
        const QList<int> ends = rightEndsOfLines(label.grab().toImage(), lineHeight);
        EXPECT_EQ(ends, QList<int>(3, ends.value(0)));
        EXPECT_GE(ends.value(0), label.width() - 2);
    }
}

} // namespace corvane::test
