// One of two outputs of a Wayland session goes while something is dragged, or lies on the shelf.

#include "e2e/desktop/nested_sway.h"
#include "e2e/wayland_session.h"

#include <ostream>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

enum class Side { Left, Right };

struct Unplugging {
    WindowManager compositor;
    /// That of the output which goes; with the left one the other moves to its place.
    Side side;
};

std::string nameOfUnplugging(const testing::TestParamInfo<Unplugging> &info)
{
    return nameOf(testing::TestParamInfo<DesktopKind>(sessionOf(info.param.compositor), 0))
        + (info.param.side == Side::Left ? "_left" : "_right");
}

void PrintTo(const Unplugging &unplugging, std::ostream *out)
{
    *out << nameOfUnplugging(testing::TestParamInfo<Unplugging>(unplugging, 0));
}

/// The shelf is on the output that goes.
class UnpluggedOutput : public WaylandSessionTest, public testing::WithParamInterface<Unplugging> {
protected:
    UnpluggedOutput()
        : WaylandSessionTest({.windowManager = GetParam().compositor,
                              .compositor = Compositor::None,
                              .size = {1500, 900},
                              .nested = {.outputs = 2}})
    {
    }
    // KWin cannot be given it back.
    ~UnpluggedOutput() override
    {
        if (GetParam().compositor == WindowManager::KWin)
            endDesktop(m_desktop);
    }

    void SetUp() override
    {
        WaylandSessionTest::SetUp();
        if (HasFatalFailure())
            return;
        if (auto *const sway = dynamic_cast<NestedSway *>(m_desktop.nested())) {
            while (!server().windows().isEmpty())
                sway->unplug(server());
            ASSERT_TRUE(sway->plug(server(), left()));
            ASSERT_TRUE(sway->plug(server(), right()));
        }
        start();
        corvane().lookAt(going());
    }

    QSize half() { return {server().size().width() / 2, server().size().height()}; }
    QRect left() { return {{}, half()}; }
    QRect right() { return {{half().width(), 0}, half()}; }
    QRect going() { return GetParam().side == Side::Left ? left() : right(); }
    /// Where the other one is once this has gone.
    QRect remaining() { return left(); }

    static QRect upperPlace(const QRect &output) { return {output.left() + 60, 300, 400, 200}; }
    static QRect lowerPlace(const QRect &output) { return {output.left() + 60, 600, 400, 200}; }

    void unplugIt()
    {
        ASSERT_TRUE(NestedCompositor::unplug(server(), going()));
        corvane().lookAt(remaining());
    }
    /// Has the shelf open on the output that goes, by a drag that is in the hand there.
    void pickUp(GtkPeer &source)
    {
        ASSERT_EQ(source.problem(), QString());
        hands().beginDrag(source.source(), going().center());
        awaitDropTarget();
    }
    void keepThere(const QString &file)
    {
        GtkPeer source(m_desktop, {.files = {file}}, upperPlace(going()));
        ASSERT_NO_FATAL_FAILURE(pickUp(source));
        ASSERT_NO_FATAL_FAILURE(dropWhereTheShelfOpens(source));
        ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    }
    /// On the output that is left, and it can be used.
    void expectKept(const QString &file)
    {
        ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
        GtkPeer target(m_desktop, {}, upperPlace(remaining()));
        ASSERT_EQ(target.problem(), QString());
        dragOut(target);
        EXPECT_EQ(target.droppedAddresses().trimmed(), uriList({file}).trimmed());
        EXPECT_TRUE(corvane().waitUntilHidden());
    }
};

INSTANTIATE_TEST_SUITE_P(, UnpluggedOutput,
                         testing::Values(Unplugging{WindowManager::Sway, Side::Left},
                                         Unplugging{WindowManager::KWin, Side::Right}),
                         nameOfUnplugging);

TEST_P(UnpluggedOutput, inADragTowardsTheShelfHasItOpenOnTheOtherAndTakeTheDrop)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    GtkPeer source(m_desktop, {.files = {file}}, upperPlace(going()));
    ASSERT_NO_FATAL_FAILURE(pickUp(source));
    ASSERT_NO_FATAL_FAILURE(unplugIt());
    hands().moveTo(upperPlace(remaining()).center());
    ASSERT_NO_FATAL_FAILURE(dropWhereTheShelfOpens(source));
    EXPECT_EQ(source.endOfDrag(), "done");
    expectKept(file);
}

TEST_P(UnpluggedOutput, underADragThatIsOverTheShelfLeavesNothingOpen)
{
    GtkPeer source(m_desktop, {.text = u"text"_s}, upperPlace(going()));
    ASSERT_NO_FATAL_FAILURE(pickUp(source));
    ASSERT_NO_FATAL_FAILURE(holdOverShelf());
    ASSERT_NO_FATAL_FAILURE(unplugIt());
    hands().moveTo(remaining().center());
    hands().release();
    EXPECT_NE(source.endOfDrag(), "");
    EXPECT_TRUE(corvane().waitUntilHidden());
    const QString file = makeFile(u"report.txt"_s, "report");
    GtkPeer next(m_desktop, {.files = {file}}, lowerPlace(remaining()));
    ASSERT_EQ(next.problem(), QString());
    hands().beginDrag(next.source(), remaining().center());
    ASSERT_NO_FATAL_FAILURE(dropWhereTheShelfOpens(next));
    expectKept(file);
}

TEST_P(UnpluggedOutput, withAnItemOnTheShelfHasItOnTheOther)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    ASSERT_NO_FATAL_FAILURE(keepThere(file));
    ASSERT_NO_FATAL_FAILURE(unplugIt());
    expectKept(file);
}

TEST_P(UnpluggedOutput, withAHiddenShelfLeavesTheEdgeOfTheOtherToShowIt)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    ASSERT_NO_FATAL_FAILURE(keepThere(file));
    EXPECT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(corvane().waitUntilHidden());
    ASSERT_NO_FATAL_FAILURE(unplugIt());
    hands().moveTo(remaining().center());
    hands().glideTo({remaining().center().x(), 0});
    // What comes up under a pointer that rests is not what it came to.
    EXPECT_TRUE(wiggleUntil([&] { return corvane().isShown(); }));
    expectKept(file);
}

TEST_P(UnpluggedOutput, whileADropIsStillBeingFetchedCostsNothingOfIt)
{
    const QString gate = makeFolder(u"gate"_s) + u"/open"_s;
    const auto keepsItBack = u"import os, time\n"
                             "def wait(*arguments):\n"
                             "    tell('asked', 'now')\n"
                             "    while not os.path.exists('%1'):\n"
                             "        time.sleep(0.01)\n"
                             "source.connect('drag-data-get', wait)"_s.arg(gate);
    GtkPeer source(m_desktop, {.text = u"text"_s, .habits = keepsItBack}, upperPlace(going()));
    ASSERT_NO_FATAL_FAILURE(pickUp(source));
    ASSERT_NO_FATAL_FAILURE(dropWhereTheShelfOpens(source));
    ASSERT_TRUE(source.hasSaid("asked"));
    ASSERT_NO_FATAL_FAILURE(unplugIt());
    makeFile(u"gate/open"_s, {});
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    GtkPeer target(m_desktop, {}, lowerPlace(remaining()));
    ASSERT_EQ(target.problem(), QString());
    dragOut(target);
    EXPECT_EQ(target.droppedText(), "text");
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_P(UnpluggedOutput, inADragOutOfTheShelfThatIsLetGoNowhereCostsNoItem)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    ASSERT_NO_FATAL_FAILURE(keepThere(file));
    hands().beginDrag(corvane().at(38, 22), going().center());
    hands().glideTo(going().center());
    ASSERT_NO_FATAL_FAILURE(unplugIt());
    hands().moveTo(remaining().center());
    hands().glideTo(remaining().center() + QPoint(0, 250));
    hands().release();
    expectKept(file);
}

TEST_P(UnpluggedOutput, inADragOutOfTheShelfDoesNotEndIt)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    ASSERT_NO_FATAL_FAILURE(keepThere(file));
    // Where it is found on the other one, too.
    GtkPeer target(m_desktop, {}, upperPlace(remaining()));
    ASSERT_EQ(target.problem(), QString());
    hands().beginDrag(corvane().at(38, 22), going().center());
    hands().glideTo(going().center());
    ASSERT_NO_FATAL_FAILURE(unplugIt());
    hands().moveTo(target.target() + QPoint(0, 200));
    hands().glideTo(target.target());
    ASSERT_TRUE(wiggleUntil([&] { return target.isTargetReady(); })) << target.output();
    hands().release();
    EXPECT_EQ(target.droppedAddresses().trimmed(), uriList({file}).trimmed());
    EXPECT_TRUE(corvane().waitUntilHidden());
}

} // namespace
} // namespace corvane::e2e
