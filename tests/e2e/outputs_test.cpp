// Outputs of a Wayland session that come and go.

#include "e2e/desktop/nested_sway.h"
#include "e2e/wayland_session.h"

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

/// On a desktop of its own, whose outputs it may change.
class SwayOutputs : public WaylandSessionTest {
protected:
    SwayOutputs()
        : WaylandSessionTest({.windowManager = WindowManager::Sway,
                              .compositor = Compositor::None,
                              .size = {1500, 900},
                              .nested = NestedCompositor::Kind{}})
    {
    }

    NestedSway &sway() { return dynamic_cast<NestedSway &>(*m_desktop.nested()); }
    QRect whole() { return {{}, server().size()}; }

    void unplugAndPlugIn()
    {
        sway().unplug(server());
        ASSERT_TRUE(sway().plug(server(), whole()));
    }

    /// In the places of `halves`.
    void plugInTwo()
    {
        sway().unplug(server());
        const auto [left, right] = halves();
        ASSERT_TRUE(sway().plug(server(), left));
        ASSERT_TRUE(sway().plug(server(), right));
    }
    void plugInOneAgain()
    {
        sway().unplug(server());
        sway().unplug(server());
        ASSERT_TRUE(sway().plug(server(), whole()));
    }

    /// Still on the shelf, which can be used.
    void expectKept(const QString &file)
    {
        GtkPeer target(m_desktop, {}, rightPlace());
        ASSERT_EQ(target.problem(), QString());
        dragOut(target);
        EXPECT_EQ(target.droppedAddresses().trimmed(), uriList({file}).trimmed());
        EXPECT_TRUE(corvane().waitUntilHidden());
    }
};

TEST_F(SwayOutputs, anOpenShelfComesBackWithTheOutputAndWhatLiesOnIt)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    start();
    keep(file);
    unplugAndPlugIn();
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    expectKept(file);
}

TEST_F(SwayOutputs, anOutputUnpluggedInTheMiddleOfADragCostsNoItemAndTheShelfOpensForTheNext)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    start();
    keep(file);
    {
        GtkPeer source(m_desktop, {.text = u"text"_s}, leftPlace());
        ASSERT_EQ(source.problem(), QString());
        hands().beginDrag(source.source(), belowEdge());
        ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::empty.height()));
        unplugAndPlugIn();
        hands().moveTo(belowEdge());
        hands().release();
    }
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    expectKept(file);
    keep(file);
}

TEST_F(SwayOutputs, theShelfOpensOnTheOutputThatADragOrByHandThePointerIsOn)
{
    const auto [left, right] = halves();
    ASSERT_NO_FATAL_FAILURE(plugInTwo());
    expectTheShelfOnTheOutputOfTheDrag(left, right, Drags::StayOnAnOutput);
    m_corvane.reset();
    expectTheShelfByHandOnTheOutputOfThePointer(left, right);

    ASSERT_NO_FATAL_FAILURE(plugInOneAgain());
}

// The pointer is on one of them for the compositor, in whichever window it is here.
TEST_F(SwayOutputs, ofTwoInTheSamePlaceTheOneWithTheDragHasTheShelf)
{
    const auto [left, right] = halves();
    ASSERT_NO_FATAL_FAILURE(plugInTwo());
    ASSERT_TRUE(sway().layOutputsOverOneAnother());
    const QString file = makeFile(u"report.txt"_s, "report");
    start();
    const auto isShownOn = lookAtOutputs(left, right);
    GtkPeer source(m_desktop, {.files = {file}}, {60, 400, 400, 200});
    ASSERT_EQ(source.problem(), QString());
    hands().beginDrag(source.source(), left.center());
    ASSERT_TRUE(wiggleUntil([&] { return isShownOn(left) || isShownOn(right); }));
    EXPECT_NE(isShownOn(left), isShownOn(right));
    corvane().lookAt(isShownOn(left) ? left : right);
    ASSERT_NO_FATAL_FAILURE(dropWhereTheShelfOpens(source));
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    EXPECT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(eventually([&] { return !isShownOn(left) && !isShownOn(right); }));
    EXPECT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(eventually([&] { return isShownOn(left) || isShownOn(right); }));
    EXPECT_NE(isShownOn(left), isShownOn(right));

    ASSERT_NO_FATAL_FAILURE(plugInOneAgain());
}

/// On desktops that have two from the beginning.
class WaylandOutputs : public WaylandSession { };

DesktopKind twoOutputs(WindowManager compositor)
{
    return {.windowManager = compositor,
            .compositor = Compositor::None,
            .size = {1500, 900},
            .nested = {.outputs = 2}};
}

INSTANTIATE_TEST_SUITE_P(Every, WaylandOutputs,
                         testing::Values(twoOutputs(WindowManager::KWin),
                                         twoOutputs(WindowManager::Mutter)),
                         nameOf);

TEST_P(WaylandOutputs, theShelfOpensByHandOnTheOutputThatThePointerIsOn)
{
    const auto [left, right] = halves();
    expectTheShelfByHandOnTheOutputOfThePointer(left, right);
}

TEST_P(WaylandOutputs, aDragThatBeginsWhileTheShelfIsOpenForAnotherHasItOnItsOutput)
{
    const auto [left, right] = halves();
    GtkPeer first(m_desktop, {.text = QStringLiteral("text")}, {left.left() + 60, 400, 400, 200});
    ASSERT_EQ(first.problem(), QString());
    GtkPeer second(m_desktop, {.text = QStringLiteral("text")}, {right.left() + 60, 400, 400, 200});
    ASSERT_EQ(second.problem(), QString());
    start();
    const auto isShownOn = lookAtOutputs(left, right);
    hands().beginDrag(first.source(), left.center());
    EXPECT_TRUE(wiggleUntil([&] { return isShownOn(left); }));
    hands().release();
    hands().beginDrag(second.source(), right.center());
    EXPECT_TRUE(wiggleUntil([&] { return isShownOn(right) && !isShownOn(left); }));
    hands().release();
}

TEST_P(WaylandOutputs, theShelfOpensOnTheOutputThatADragIsOn)
{
    const auto [left, right] = halves();
    expectTheShelfOnTheOutputOfTheDrag(left, right, Drags::Cross);
}

} // namespace
} // namespace corvane::e2e
