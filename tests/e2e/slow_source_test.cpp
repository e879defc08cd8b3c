// Sources that are slow, silent or end: the shelf goes on, stays open for what comes, and tells
// them how it ended.

#include "e2e/desktop_test.h"

#include <QFile>

#include <csignal>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class SlowSource : public DesktopTest {
protected:
    /// Drags from the source and lets go over the shelf; whether it was welcome there.
    bool letGo(XdndSource &source)
    {
        source.pickUp();
        if (!corvane().waitUntilShown() || !corvane().waitForHeight(CorvaneProgram::empty.height()))
            return false;
        const auto status = source.hover(panel(), dropPoint());
        if (!status || !status->accepts)
            return false;
        source.drop();
        return true;
    }
    /// Lets go, and waits until the source was asked for something that it keeps to itself.
    bool letGoUnanswered(XdndSource &source)
    {
        return letGo(source)
            && source.pumpUntil([&] { return source.asked().contains("text/plain"); });
    }
    xcb_window_t panel() { return corvane().panel().value_or(WindowFacts{}).id; }
    /// The path or text of one item of a shelf that shows up to three.
    QByteArray copiedCell(int total, int nth, const QByteArray &expected)
    {
        const QPoint cell = CorvaneProgram::cell(3, total, nth);
        focusShelf(corvane().at(cell.x(), cell.y()));
        hands().key('c', {keys::control});
        return clipboardText(expected);
    }
};

TEST_F(SlowSource, isWaitedForByAnOpenShelfThatTakesOtherDropsMeanwhile)
{
    startWithInView(3);
    XdndSource slow(m_desktop, {{"text/plain", "late", true}});
    ASSERT_TRUE(letGoUnanswered(slow));

    const QString file = makeFile(u"meanwhile.txt"_s, "x");
    ASSERT_TRUE(dropFiles({file}));
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 1)));
    EXPECT_EQ(copiedCell(1, 0, file.toUtf8()), file.toUtf8());
    slow.pump();
    EXPECT_FALSE(slow.hasFinished()) << "it was given up";
}

TEST_F(SlowSource, isWaitedForAfterTheDragHasEnded)
{
    startWithInView(3);
    XdndSource slow(m_desktop, {{"text/plain", "late", true}});
    ASSERT_TRUE(letGoUnanswered(slow));
    // Long enough for an empty shelf to close after a drag.
    EXPECT_FALSE(eventually([&] { return !corvane().isShown(); }, std::chrono::seconds{1}));
    slow.pump();
    EXPECT_FALSE(slow.hasFinished());
    slow.answerTheRest();
    const auto finish = slow.waitForFinish();
    ASSERT_TRUE(finish);
    EXPECT_TRUE(finish->accepts);
    EXPECT_EQ(finish->action, "XdndActionCopy");
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 1)));
    EXPECT_EQ(copiedCell(1, 0, "late"), "late");
}

TEST_F(SlowSource, thatEndsLetsAnEmptyShelfClose)
{
    start();
    {
        XdndSource dying(m_desktop, {{"text/plain", "never", true}});
        ASSERT_TRUE(letGoUnanswered(dying));
        dying.die();
    }
    EXPECT_TRUE(corvane().waitUntilHidden());
    ASSERT_TRUE(dropFiles({makeFile(u"next.txt"_s, "x")}));
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
}

TEST_F(SlowSource, thatEndsInTheMiddleOfALargeTextLeavesNothing)
{
    start();
    {
        XdndSource dying(m_desktop, {{"text/plain", QByteArray(20'000'000, 'x')}});
        dying.setLargestPiece(64 * 1024);
        ASSERT_TRUE(letGo(dying));
        ASSERT_TRUE(
            dying.pumpUntil([&] { return dying.unsent() > 0 && dying.unsent() < 19'000'000; }));
        dying.die();
    }
    EXPECT_TRUE(corvane().waitUntilHidden());
    ASSERT_TRUE(dropFiles({makeFile(u"next.txt"_s, "x")}));
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
}

TEST_F(SlowSource, ofTwentyMegabytesInSmallPiecesIsKeptWhole)
{
    start();
    QByteArray text;
    for (int line = 0; text.size() < 20'000'000; ++line)
        text += QByteArray::number(line) + '\n';
    XdndSource source(m_desktop, {{"text/plain", text}});
    source.setLargestPiece(16 * 1024);
    ASSERT_TRUE(letGo(source));
    ASSERT_TRUE(source.pumpUntil([&] { return source.hasFinished(); }, std::chrono::minutes{1}));
    ASSERT_TRUE(source.waitForFinish()->accepts) << source.unsent();
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    focusShelf(corvane().at(38, 22));
    hands().key('c', {keys::control});
    EXPECT_TRUE(eventually([&] { return m_desktop.clipboard(u"UTF8_STRING"_s) == text; }));
}

TEST_F(SlowSource, hearsThatTheProgramEnds)
{
    start();
    XdndSource slow(m_desktop, {{"text/plain", "late", true}});
    ASSERT_TRUE(letGoUnanswered(slow));
    corvane().program().signal(SIGTERM);
    const auto finish = slow.waitForFinish();
    ASSERT_TRUE(finish);
    EXPECT_FALSE(finish->accepts);
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
}

TEST_F(SlowSource, ofAddressesIsAnsweredWhenTheyAreKnown)
{
    const QString file = makeFile(u"one.txt"_s, "x");
    startWithInView(3);
    const QString kept = makeFile(u"kept.txt"_s, "x");
    ASSERT_TRUE(dropFiles({kept}));
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 1)));

    XdndSource slow(m_desktop, {{"text/uri-list", uriList({file}), true}});
    slow.pickUp();
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::empty.height()));
    slow.enter(panel(), dropPoint());
    ASSERT_TRUE(slow.pumpUntil([&] { return slow.asked().contains("text/uri-list"); }));
    // The shelf is free while it waits: it closes and opens when it is told to.
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitUntilHidden());
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitUntilShown());
    slow.answerTheRest();
    const auto status = slow.waitForStatus();
    ASSERT_TRUE(status);
    EXPECT_TRUE(status->accepts);
    slow.leave(panel());
    slow.letGo();
}

TEST_F(SlowSource, isAskedOnlyForWhatIsKept)
{
    start();
    const QString file = makeFile(u"one.txt"_s, "x");
    XdndSource source(m_desktop,
                      {{"image/png", "pixels"},
                       {"UTF8_STRING", "text"},
                       {"text/plain", "text"},
                       {"text/uri-list", uriList({file})}});
    ASSERT_TRUE(letGo(source));
    ASSERT_TRUE(source.waitForFinish());
    EXPECT_EQ(source.asked(), QList<QByteArray>{"text/uri-list"});
}

} // namespace
} // namespace corvane::e2e
