#include "fakes/test_clock.h"
#include "preview/text_view.h"

#include <gtest/gtest.h>

namespace corvane::test {

TEST(TextView, ShowsNoHalfOfACharacterWhileALongTextComesInPieces)
{
    for (const QString &beginning : {QString(), QStringLiteral("a")}) {
        const QString text = beginning + QStringLiteral("\U0001F422").repeated(20'000);
        TestClock clock;
        const TextView view({text, false, false}, clock);
        ASSERT_LT(view.toPlainText().size(), text.size());
        EXPECT_FALSE(view.toPlainText().back().isHighSurrogate()) << qPrintable(beginning);
        clock.runPending();
        EXPECT_EQ(view.toPlainText(), text);
    }
}

} // namespace corvane::test
