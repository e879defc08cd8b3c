// The program in Wayland sessions: what its own test program cannot see, the main job above all.

#include "e2e/wayland_session.h"

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class LayerSession : public WaylandSession { };
class LayerSessionWithoutXWayland : public WaylandSession { };

auto everyWaylandSession()
{
    return testing::Values(sessionOf(WindowManager::Sway), sessionOf(WindowManager::KWin),
                           sessionOf(WindowManager::Mutter));
}
INSTANTIATE_TEST_SUITE_P(Every, WaylandSession, everyWaylandSession(), nameOf);

INSTANTIATE_TEST_SUITE_P(Sway, LayerSession, testing::Values(sessionOf(WindowManager::Sway)),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(KWin, LayerSession, testing::Values(sessionOf(WindowManager::KWin)),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Sway, LayerSessionWithoutXWayland,
                         testing::Values(sessionOf(WindowManager::Sway, {.hasXWayland = false})),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(KWin, LayerSessionWithoutXWayland,
                         testing::Values(sessionOf(WindowManager::KWin, {.hasXWayland = false})),
                         nameOf);

TEST_P(WaylandSession, aFileIsKeptAndGoesOnIntoAnotherProgram)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    GtkPeer source(m_desktop, {.files = {file}}, leftPlace());
    ASSERT_EQ(source.problem(), QString());
    GtkPeer target(m_desktop, {}, rightPlace());
    ASSERT_EQ(target.problem(), QString());
    start();

    hands().beginDrag(source.source(), edge());
    dropWhereTheShelfOpens(source);
    EXPECT_EQ(source.endOfDrag(), "done");
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));

    dragOut(target);
    EXPECT_EQ(target.droppedAddresses().trimmed(), uriList({file}).trimmed());
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_P(WaylandSession, aTextComesBackLetterForLetter)
{
    const QString text = u"Grüße, 你好\nzweite Zeile"_s;
    GtkPeer source(m_desktop, {.text = text}, leftPlace());
    ASSERT_EQ(source.problem(), QString());
    GtkPeer target(m_desktop, {}, rightPlace());
    ASSERT_EQ(target.problem(), QString());
    start();

    hands().beginDrag(source.source(), edge());
    dropWhereTheShelfOpens(source);
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    dragOut(target);
    EXPECT_EQ(target.droppedText(), text.toUtf8());
}

TEST_P(WaylandSession, whatWasDroppedIsPressedAndGoesOnUnderARestingPointer)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    GtkPeer source(m_desktop, {.files = {file}}, leftPlace());
    ASSERT_EQ(source.problem(), QString());
    GtkPeer target(m_desktop, {}, rightPlace());
    ASSERT_EQ(target.problem(), QString());
    start();
    hands().beginDrag(source.source(), edge());
    ASSERT_NO_FATAL_FAILURE(awaitDropTarget());
    // Where the only item of a shelf is.
    hands().glideTo(edge() + QPoint(-82, 22));
    dropWhenWelcome(source);
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    hands().press();
    carryTo(target);
    EXPECT_EQ(target.droppedAddresses().trimmed(), uriList({file}).trimmed());
}

TEST_P(WaylandSession, aDragThatIsRefusedElsewhereLeavesTheItemOnTheShelf)
{
    start();
    keep(makeFile(u"report.txt"_s, "report"));
    hands().beginDrag(corvane().at(38, 22), belowEdge());
    hands().glideTo(belowEdge());
    hands().release();
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
}

TEST_P(WaylandSession, aDragThatEndsElsewhereClosesTheShelfAgain)
{
    GtkPeer source(m_desktop, {.text = u"text"_s}, leftPlace());
    ASSERT_EQ(source.problem(), QString());
    GtkPeer target(m_desktop, {}, rightPlace());
    ASSERT_EQ(target.problem(), QString());
    start();
    hands().beginDrag(source.source(), target.target());
    EXPECT_TRUE(corvane().waitUntilShown());
    hands().glideTo(target.target());
    wiggleUntil([&] { return target.isTargetReady(); });
    hands().release();
    EXPECT_EQ(target.droppedText(), "text");
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_P(WaylandSession, pointersSelectionsAndWindowsThatMoveDoNotOpenTheShelf)
{
    // Words to be selected in place of its target.
    GtkPeer peer(m_desktop,
                 {.text = u"text"_s,
                  .habits = u"entry = Gtk.Entry(text='many words to be selected')\n"
                            "box.remove(target)\n"
                            "box.pack_start(entry, True, True, 0)\n"
                            "entry.show()"_s},
                 leftPlace());
    ASSERT_EQ(peer.problem(), QString());
    start();
    const auto moveAround = [&] {
        hands().glideTo(edge());
        hands().glideTo(peer.target());
    };
    const auto isStillHidden = [&] { return corvane().waitUntilReady() && !corvane().isShown(); };
    moveAround();
    EXPECT_TRUE(isStillHidden());
    hands().beginDrag(peer.target(), leftPlace().topLeft());
    moveAround();
    hands().release();
    EXPECT_TRUE(isStillHidden());
    hands().moveTo(peer.target());
    hands().keyDown(keys::super);
    hands().press();
    hands().moveBy({8, 0});
    moveAround();
    hands().release();
    hands().keyUp(keys::super);
    EXPECT_TRUE(isStillHidden());

    hands().beginDrag(peer.source(), edge());
    EXPECT_TRUE(corvane().waitUntilShown());
}

TEST_P(WaylandSession, aLongSlowDragFindsTheShelfAgainAtTheEdge)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    GtkPeer source(m_desktop, {.files = {file}}, leftPlace());
    ASSERT_EQ(source.problem(), QString());
    start();
    hands().beginDrag(source.source(), edge());
    ASSERT_TRUE(corvane().waitUntilShown());
    // Whether it is over nobody tells.
    ASSERT_TRUE(corvane().waitUntilHidden());
    hands().glideTo(edge());
    dropOnTheShelfBelowThePointer(source);
    EXPECT_EQ(source.endOfDrag(), "done");
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
}

TEST_P(LayerSession, aPointerKeptAtTheEdgeShowsAHiddenShelfThatHoldsSomething)
{
    start();
    keep(makeFile(u"report.txt"_s, "report"));
    hands().glideTo(belowEdge());
    EXPECT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(corvane().waitUntilHidden());
    hands().glideTo(edge());
    ASSERT_TRUE(corvane().waitUntilShown());
    hands().glideTo(belowEdge());
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_P(WaylandSession, clicksBesideTheShelfReachWhatLiesBelow)
{
    GtkPeer below(m_desktop, {.text = u"text"_s}, {0, 0, 1512, 300});
    ASSERT_EQ(below.problem(), QString());
    start();
    // The window covers the wallpaper, so that the shelf cannot be told from it: it is asked to
    // show itself, and the picture changes.
    const QRect middle(600, 0, 312, 60);
    const QImage before = m_desktop.pictureAtRest(middle);
    EXPECT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(eventually([&] { return server().picture(middle) != before; }));
    hands().click({500, 20});
    EXPECT_TRUE(eventually([&] { return below.presses() == 1; }));
}

TEST_P(WaylandSession, keysGoToTheShelfAfterAClickOnIt)
{
    start();
    keep(makeFile(u"report.txt"_s, "report"));
    hands().click(corvane().at(38, 22));
    // Compositors take a moment to move the keyboard after a click.
    EXPECT_TRUE(eventually([this] {
        hands().key(keys::backSpace);
        return !corvane().isShown();
    }));
}

TEST_P(WaylandSession, afterADropTheKeyboardIsWhereItWasBefore)
{
    GtkPeer typing(m_desktop, {}, rightPlace());
    ASSERT_EQ(typing.problem(), QString());
    GtkPeer source(m_desktop, {.files = {makeFile(u"report.txt"_s, "report")}}, leftPlace());
    ASSERT_EQ(source.problem(), QString());
    start();
    hands().beginDrag(source.source(), edge());
    dropWhereTheShelfOpens(source);
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    // To the program that it was dragged out of, which the press has given the keyboard.
    ASSERT_TRUE(eventually([&] {
        hands().key('k');
        return source.keys().contains("k");
    })) << "keys are typed somewhere else";
    hands().click(typing.target());
    ASSERT_TRUE(eventually([&] {
        hands().key('l');
        return typing.keys().contains("l");
    }));
}

TEST_P(LayerSession, theKeyboardGoesBackWhenThePointerLeavesTheShelf)
{
    GtkPeer typing(m_desktop, {}, rightPlace());
    ASSERT_EQ(typing.problem(), QString());
    start();
    keep(makeFile(u"report.txt"_s, "report"));
    hands().click(typing.target());
    ASSERT_TRUE(eventually([&] {
        hands().key('k');
        return typing.keys().contains("k");
    }));
    hands().click(corvane().at(38, 22));
    hands().glideTo(typing.target());
    ASSERT_TRUE(eventually([&] {
        hands().key('l');
        return typing.keys().contains("l");
    })) << "keys are typed somewhere else";
    EXPECT_TRUE(corvane().isShown());
}

/// KWin gives the keyboard to whatever a drag enters, and to its owner again when that goes away.
TEST_P(LayerSession, aDragThatPassesOverTheShelfLeavesTheKeyboardWhereItWas)
{
    start();
    keep(makeFile(u"report.txt"_s, "report"));
    GtkPeer source(m_desktop, {.text = u"text"_s}, leftPlace());
    ASSERT_EQ(source.problem(), QString());
    hands().beginDrag(source.source(), edge());
    ASSERT_NO_FATAL_FAILURE(holdOverShelf());
    hands().glideTo(besideTheShelf());
    hands().release();
    EXPECT_TRUE(eventually([&] {
        hands().key('k');
        return source.keys().contains("k");
    })) << "keys are typed somewhere else";
    EXPECT_TRUE(corvane().isShown());
}

TEST_P(LayerSessionWithoutXWayland, aDragThatTouchesTheEdgeLeavesTheKeyboardWhereItWas)
{
    GtkPeer source(m_desktop, {.text = u"text"_s}, leftPlace());
    ASSERT_EQ(source.problem(), QString());
    start();
    hands().beginDrag(source.source(), edge());
    hands().glideTo(edge() + QPoint(0, 20));
    // Away again before the shelf is there.
    hands().moveTo(edge());
    hands().moveTo(besideTheShelf());
    hands().release();
    ASSERT_TRUE(corvane().waitUntilShown());
    ASSERT_TRUE(corvane().waitUntilHidden());
    EXPECT_TRUE(eventually([&] {
        hands().key('k');
        return source.keys().contains("k");
    })) << "keys are typed somewhere else";
}

TEST_P(LayerSessionWithoutXWayland, aDragAtTheEdgeOpensTheShelfThatTakesIt)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    GtkPeer source(m_desktop, {.files = {file}}, leftPlace());
    ASSERT_EQ(source.problem(), QString());
    start();
    hands().beginDrag(source.source(), edge());
    hands().glideTo(edge());
    dropOnTheShelfBelowThePointer(source);
    EXPECT_EQ(source.endOfDrag(), "done");
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
}

} // namespace
} // namespace corvane::e2e
