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

TEST_F(SwayOutputs, theShelfOpensOnTheOutputWhoseEdgeADragCameTo)
{
    const QSize half(server().size().width() / 2, server().size().height());
    const QRect left({}, half);
    const QRect right({half.width(), 0}, half);
    sway().unplug(server());
    ASSERT_TRUE(sway().plug(server(), left));
    ASSERT_TRUE(sway().plug(server(), right));
    start();
    GtkPeer source(m_desktop, {.text = u"text"_s}, {810, 400, 400, 200});
    ASSERT_EQ(source.problem(), QString());

    // The end of the drag is assumed first, so that there is a strip on each output.
    hands().beginDrag(source.source(), right.center());
    const auto isShownOn = [this](const QRect &output) {
        return server().picture(output).pixel(output.width() / 2, 20) != NestedSway::wallpaper;
    };
    ASSERT_TRUE(eventually([&] { return isShownOn(left) || isShownOn(right); }));
    ASSERT_TRUE(eventually([&] { return !isShownOn(left) && !isShownOn(right); }));
    hands().glideTo({right.center().x(), 0});
    wiggleUntil([&] { return isShownOn(right); });
    EXPECT_FALSE(isShownOn(left));
    hands().release();

    sway().unplug(server());
    sway().unplug(server());
    ASSERT_TRUE(sway().plug(server(), whole()));
}

} // namespace
} // namespace corvane::e2e
