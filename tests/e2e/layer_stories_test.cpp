// What holds in Wayland sessions alone, beside the stories of every desktop.

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

    // Another, because a compositor that is behind may have left that one anywhere on its way.
    GtkPeer resting(m_desktop, {.text = u"text"_s}, rightPlace());
    ASSERT_EQ(resting.problem(), QString());
    hands().beginDrag(resting.source(), edge());
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

// The strip at the edge lies below it, though the panels lie above. Under KWin it does so only
// while nothing else on that screen was activated later, be it an invisible window of ours.
TEST_P(LayerSession, aWindowThatFillsTheScreenKeepsItsTopEdgeWhileTheShelfIsHidden)
{
    start();
    keep(makeFile(u"report.txt"_s, "report"));
    hands().glideTo(belowEdge());
    EXPECT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(corvane().waitUntilHidden());
    GtkPeer film(m_desktop,
                 {.habits
                  = u"window.connect('button-press-event', lambda *a: window.fullscreen())\n"
                    "window.connect('window-state-event', lambda w, e: "
                    "e.new_window_state & Gdk.WindowState.FULLSCREEN and "
                    "tell('full yes') or False)"_s},
                 rightPlace());
    ASSERT_EQ(film.problem(), QString());
    hands().click(film.source());
    // Which it may say before it has painted all of it, and compositors go by that.
    ASSERT_TRUE(film.hasSaid("full"));
    const QRect corner(QPoint(2, server().size().height() - 3), QSize(1, 1));
    ASSERT_TRUE(eventually([&] {
        return (server().picture(corner).pixel(0, 0) | 0xff000000U) != NestedCompositor::wallpaper;
    }));
    m_desktop.pictureAtRest({{}, server().size()});
    const auto expectItHearsAPressAtTheEdge = [&] {
        const int before = film.presses();
        // In its left half, and where the strip is.
        const QPoint place = edge() - QPoint(30, 0);
        hands().glideTo(place);
        hands().click(place);
        EXPECT_TRUE(eventually([&] { return film.presses() > before; }));
        hands().glideTo(belowEdge());
    };
    expectItHearsAPressAtTheEdge();
    // By hand it comes all the same.
    const QRect middle(edge() - QPoint(20, 0), QSize(40, 40));
    const QImage bare = m_desktop.pictureAtRest(middle);
    EXPECT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(eventually([&] { return server().picture(middle) != bare; }));
    EXPECT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(eventually([&] { return server().picture(middle) == bare; }));
    expectItHearsAPressAtTheEdge();
}

TEST_P(LayerSession, whatIsDraggedOutIsSeenAroundThePointer)
{
    start();
    keep(makeFile(u"report.txt"_s, "report"));
    const QPoint place = belowEdge() + QPoint(0, 100);
    // Up and to the left of the pointer, which is in the pictures, too.
    const QRect beside(place - QPoint(12, 12), QSize(8, 8));
    const QImage bare = m_desktop.pictureAtRest(beside);
    hands().beginDrag(corvane().at(38, 22), place);
    hands().glideTo(place);
    EXPECT_TRUE(eventually([&] { return server().picture(beside) != bare; }));
    hands().release();
    EXPECT_TRUE(eventually([&] { return server().picture(beside) == bare; }));
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
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
