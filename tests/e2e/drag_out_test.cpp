// What becomes of an item that is let go over another program is what that program says at the end.

#include "e2e/desktop_test.h"

#include <QUrl>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class DragOutEnds : public DesktopTest {
protected:
    /// A shelf with one text in view.
    void startWithText()
    {
        start();
        ASSERT_TRUE(dropOffers({{"text/plain;charset=utf-8", "a text of some length"}}));
        ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
        ASSERT_TRUE(
            eventually([&] { return server().selectionOwner("XdndSelection") == noWindow; }));
    }

    /// Drags what is at `from` onto the target and lets go.
    void dragOnto(XdndTarget &target, QPoint from)
    {
        hands().beginDrag(from, target.frame().center());
        hands().glideTo(target.frame().center());
        ASSERT_TRUE(target.pumpUntil([&] { return target.isHovered(); }));
        hands().aim(target.frame().center());
        target.pump();
        hands().release();
        ASSERT_TRUE(target.pumpUntil([&] { return target.hasFinished(); }));
    }

    /// The text is still there, and can be dragged to somebody who takes it.
    void expectStillThere()
    {
        XdndTarget honest(m_desktop, QRect(600, 600, 150, 150), true, "UTF8_STRING");
        dragOnto(honest, corvane().at(38, 22));
        EXPECT_EQ(honest.data(), "a text of some length");
        EXPECT_TRUE(corvane().waitUntilHidden()) << "and then it leaves";
    }

    /// Drags the text onto a target that says nothing yet, and gives what the shelf looks like
    /// while it waits for that.
    QImage dragOntoSilent(XdndTarget &target)
    {
        target.finish = XdndTarget::Finish::Never;
        dragOnto(target, corvane().at(38, 22));
        return m_desktop.pictureAtRest(corvane().body());
    }
    void expectItSaysThatItStayed(const QImage &before)
    {
        EXPECT_TRUE(eventually([&] { return server().picture(corvane().body()) != before; }))
            << "the shelf does not say that it was not taken";
    }

    const QRect frame{900, 400, 200, 200};
};

TEST_F(DragOutEnds, anItemWhoseTargetFailsAtTheEndStays)
{
    startWithText();
    XdndTarget target(m_desktop, frame, true, "UTF8_STRING");
    const QImage waiting = dragOntoSilent(target);
    target.finish = XdndTarget::Finish::Failed;
    target.sayHowItEnded();
    expectItSaysThatItStayed(waiting);
    expectStillThere();
}

TEST_F(DragOutEnds, anItemThatNobodyFetchedStays)
{
    startWithText();
    XdndTarget target(m_desktop, frame, true, "UTF8_STRING");
    target.finish = XdndTarget::Finish::WellWithoutFetching;
    dragOnto(target, corvane().at(38, 22));
    expectStillThere();
}

TEST_F(DragOutEnds, anItemWhoseTargetDiesStays)
{
    startWithText();
    {
        XdndTarget target(m_desktop, frame, true, "UTF8_STRING");
        const QImage waiting = dragOntoSilent(target);
        target.die();
        expectItSaysThatItStayed(waiting);
    }
    expectStillThere();
}

TEST_F(DragOutEnds, aTargetThatSaysNothingKeepsNobodyFromDraggingElsewhere)
{
    startWithText();
    XdndTarget target(m_desktop, frame, true, "UTF8_STRING");
    target.finish = XdndTarget::Finish::Never;
    dragOnto(target, corvane().at(38, 22));
    expectStillThere();
}

TEST_F(DragOutEnds, ofAFileAndANoteTheNoteStaysWithThoseWhoTakeFilesOnly)
{
    startWithInView(3);
    ASSERT_TRUE(dropFiles({makeFile(u"file.txt"_s, "x")}));
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 1)));
    ASSERT_TRUE(dropOffers({{"text/plain;charset=utf-8", "a note"}}));
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 2)));
    ASSERT_TRUE(eventually([&] { return server().selectionOwner("XdndSelection") == noWindow; }));
    focusShelf(corvane().at(CorvaneProgram::cell(3, 2, 1).x(), CorvaneProgram::cell(3, 2, 1).y()));
    hands().key(keys::down);
    Bar bar(m_desktop, corvane(), 3);
    ASSERT_TRUE(bar.waitForKeyboard());
    m_desktop.pictureAtRest(bar.frame());

    XdndTarget target(m_desktop, QRect(900, 600, 200, 200), true, "text/uri-list");
    dragOnto(target, bar.tile(0, 2));
    EXPECT_TRUE(target.data().endsWith("file.txt\r\n"));
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 1))) << "the file leaves";
    const QPoint cell = CorvaneProgram::cell(3, 1, 0);
    m_desktop.clearClipboard();
    focusShelf(corvane().at(cell.x(), cell.y()));
    hands().key('c', {keys::control});
    EXPECT_EQ(clipboardText("a note"), "a note");
}

} // namespace
} // namespace corvane::e2e
