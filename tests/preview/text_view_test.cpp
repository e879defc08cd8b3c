#include "fakes/test_clock.h"
#include "preview/text_view.h"

#include <QKeyEvent>
#include <QScrollBar>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

void press(QWidget &widget, Qt::Key key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

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

TEST(TextView, HasItsCursorAtTheBeginningWhateverIsAppended)
{
    TestClock clock;
    const TextView view({QStringLiteral("line\n").repeated(5'000), false, false}, clock);
    EXPECT_EQ(view.textCursor().position(), 0);
    clock.runPending();
    EXPECT_EQ(view.textCursor().position(), 0);
    EXPECT_FALSE(view.textCursor().hasSelection());
}

TEST(TextView, IsScrolledByTheArrowsWhileNobodyFollowsTheCursor)
{
    TestClock clock;
    TextView view({QStringLiteral("line\n").repeated(500), false, false}, clock);
    view.resize(300, 200);
    view.show();
    press(view, Qt::Key_Down);
    press(view, Qt::Key_Down);
    EXPECT_EQ(view.verticalScrollBar()->value(), 2);
    press(view, Qt::Key_Up);
    EXPECT_EQ(view.verticalScrollBar()->value(), 1);
    EXPECT_EQ(view.textCursor().position(), 0);
}

} // namespace corvane::test
