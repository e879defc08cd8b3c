#include "app/look/text_label.h"

#include <gtest/gtest.h>

namespace corvane::test {

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

} // namespace corvane::test
