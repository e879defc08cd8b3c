// The hidden shelf at the top edge of the screen.

#include "e2e/desktop_test.h"

#include <QFile>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class Edge : public EveryDesktop {
protected:
    /// The shelf holds a file and was closed by hand.
    void startWithHiddenShelf()
    {
        start();
        ASSERT_TRUE(dropFiles({makeFile(u"one.txt"_s, "x")}));
        ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
        ASSERT_EQ(corvane().startAgain(), 0);
        ASSERT_TRUE(corvane().waitUntilHidden());
    }
    /// Pushes against the edge by steps, as a mouse does, and rests there.
    void pushAgainstEdge()
    {
        hands().glideTo(QPoint(middle().x(), 60));
        for (int i = 0; i < 4; ++i)
            hands().moveBy(QPoint(0, -30));
    }
    /// How often any of its threads has gone to sleep.
    long sleeps()
    {
        const QString tasks = u"/proc/%1/task"_s.arg(corvane().program().pid());
        long sum = 0;
        for (const QString &task : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            QFile status(tasks + u'/' + task + u"/status"_s);
            if (!status.open(QFile::ReadOnly))
                continue;
            const QByteArray text = status.readAll();
            const QByteArray key = "\nvoluntary_ctxt_switches:";
            const qsizetype at = text.indexOf(key) + key.size();
            sum += text.mid(at, text.indexOf('\n', at) - at).trimmed().toLong();
        }
        return sum;
    }
    /// Long enough for the shelf to be shown if it were to be.
    bool staysHidden()
    {
        return !eventually([&] { return corvane().isShown(); }, std::chrono::seconds{1});
    }
    bool staysShown()
    {
        return !eventually([&] { return !corvane().isShown(); }, std::chrono::seconds{2});
    }
    /// Below the shelf and beside where it hangs.
    QPoint elsewhere() { return {middle().x(), 500}; }
    QPoint middle() { return {server().size().width() / 2, 0}; }
};

INSTANTIATE_TEST_SUITE_P(, Edge, twoDesktops(), nameOf);

TEST_P(Edge, showsTheShelfAndHidesItAfterThePointerHasLeft)
{
    startWithHiddenShelf();
    pushAgainstEdge();
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    EXPECT_TRUE(staysShown()) << "the pointer rests on it";
    hands().glideTo(elsewhere());
    EXPECT_TRUE(corvane().waitUntilHidden());
    pushAgainstEdge();
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight)) << "and another time";
    hands().glideTo(elsewhere());
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_P(Edge, comingBackInTimeKeepsTheShelf)
{
    startWithHiddenShelf();
    pushAgainstEdge();
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    const QPoint inside = corvane().body().center();
    hands().moveTo(elsewhere());
    hands().moveTo(inside);
    EXPECT_TRUE(staysShown());
}

TEST_P(Edge, anEmptyShelfStaysHidden)
{
    start();
    pushAgainstEdge();
    EXPECT_TRUE(staysHidden());
}

TEST_P(Edge, theRestOfTheEdgeShowsNothing)
{
    startWithHiddenShelf();
    hands().glideTo(QPoint(100, 60));
    for (int i = 0; i < 4; ++i)
        hands().moveBy(QPoint(0, -30));
    EXPECT_TRUE(staysHidden());
}

TEST_P(Edge, withAButtonHeldNothingIsShown)
{
    startWithHiddenShelf();
    XdndPeer below(m_desktop, QRect(300, 0, 900, 200));
    hands().glideTo(QPoint(middle().x(), 60));
    hands().press();
    for (int i = 0; i < 4; ++i)
        hands().moveBy(QPoint(0, -30));
    EXPECT_TRUE(staysHidden());
    hands().release();
    EXPECT_TRUE(staysHidden());
}

TEST_P(Edge, overAFullScreenWindowNothingIsShown)
{
    startWithHiddenShelf();
    {
        XdndPeer film(m_desktop, QRect({0, 0}, server().size()));
        pushAgainstEdge();
        EXPECT_TRUE(staysHidden());
        hands().glideTo(elsewhere());
    }
    pushAgainstEdge();
    EXPECT_TRUE(corvane().waitUntilShown()) << "the film is over";
}

TEST_P(Edge, clicksAtTheEdgeReachTheWindowBelow)
{
    XdndPeer below(m_desktop, QRect(300, 0, 900, 200));
    startWithHiddenShelf();
    hands().glideTo(QPoint(middle().x(), 60));
    for (int i = 0; i < 4; ++i)
        hands().moveBy(QPoint(0, -30));
    ASSERT_EQ(server().pointerPosition().y(), 0);
    hands().press();
    hands().release();
    EXPECT_TRUE(below.pumpUntil([&] { return below.clicks() == 1; }));
    EXPECT_TRUE(staysHidden()) << "whoever clicks there wants what lies there";
}

TEST_P(Edge, aClickOnTheShelfMakesItStay)
{
    startWithHiddenShelf();
    pushAgainstEdge();
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    hands().click(corvane().at(40, 22));
    hands().glideTo(elsewhere());
    EXPECT_TRUE(staysShown());
}

TEST_P(Edge, aDragToTheShelfMakesItStay)
{
    startWithHiddenShelf();
    pushAgainstEdge();
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    ASSERT_TRUE(dropFiles({makeFile(u"two.txt"_s, "x")}));
    hands().glideTo(elsewhere());
    EXPECT_TRUE(staysShown());
}

TEST_P(Edge, waitingForThePointerWakesNobody)
{
    startWithHiddenShelf();
    hands().glideTo(QPoint(100, 500));
    ASSERT_TRUE(corvane().waitUntilReady());
    const long before = sleeps();
    // Through the middle of the screen, and along the edge beside where the shelf hangs.
    for (int i = 0; i < 500; ++i)
        hands().moveBy(QPoint(i % 2 == 0 ? 5 : -3, i % 2 == 0 ? 2 : -2));
    hands().moveTo(QPoint(100, 0));
    for (int i = 0; i < 200; ++i)
        hands().moveBy(QPoint(1, -1));
    EXPECT_LE(sleeps() - before, 5);
}

TEST_P(Edge, takesNoKeyboard)
{
    startWithHiddenShelf();
    const xcb_window_t before = server().focusedWindow();
    pushAgainstEdge();
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    EXPECT_EQ(server().focusedWindow(), before);
    hands().glideTo(elsewhere());
    ASSERT_TRUE(corvane().waitUntilHidden());
    EXPECT_EQ(server().focusedWindow(), before);
}

} // namespace
} // namespace corvane::e2e
