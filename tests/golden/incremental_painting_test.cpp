// What panels show after any sequence of what users do is what they would show if all of it was
// painted at once: nothing is left from before, and nothing is missing.

#include "golden/golden.h"
#include "golden/panels_in_use.h"

#include <gtest/gtest.h>

#include <utility>

namespace corvane::test {

namespace {

testing::AssertionResult areSame(const CanvasPanel &panel, const QImage &expected)
{
    if (panel.canvas() == expected)
        return testing::AssertionSuccess();
    const QString wrong = leaveForALook(QStringLiteral("incremental.png"), panel.canvas());
    const QString right = leaveForALook(QStringLiteral("incremental-whole.png"), expected);
    return testing::AssertionFailure()
        << wrong.toStdString() << " is not like " << right.toStdString();
}

/// Panels whose pictures are compared with pictures that are made afresh.
class ComparedPanels : public PanelsInUse {
public:
    explicit ComparedPanels(RandomSteps &steps)
    {
        desk.theme.direction = steps.oneOf({Qt::LeftToRight, Qt::RightToLeft});
        if (desk.theme.direction == Qt::RightToLeft)
            steps.note(QStringLiteral("mirrored"));
    }

    void step(RandomSteps &steps);

private:
    void frameWasPainted() override { compareWithWhole(); }
    void compareWithWhole();
    void compareShelfWithFresh();
    void compareBarWithFresh();
};

void ComparedPanels::compareWithWhole()
{
    for (CanvasPanel *panel : {&m_shelfPanel, &m_barPanel}) {
        if (panel->visible) {
            ASSERT_TRUE(areSame(*panel, panel->whole()))
                << (panel == &m_barPanel ? "the bar" : "the shelf")
                << " still shows something that it was not asked to repaint";
        }
    }
}

void ComparedPanels::compareShelfWithFresh()
{
    const ShelfLook &look = shelf().look();
    // It is where the other one came to rest.
    const bool reduced = std::exchange(desk.motion.reduces, true);
    CanvasPanel panel;
    ShelfView view(shelfContext(panel));
    panel.setContent(&view);
    panel.setScale(m_shelfPanel.scale());
    view.onWantsRoom = [&] {
        panel.setFrame({m_shelfPanel.frame().topLeft(), view.preferredSize(view.look().snapshot)});
    };
    panel.setFrame({m_shelfPanel.frame().topLeft(), view.preferredSize(snapshot())});
    ShelfSnapshot settled = snapshot();
    if (!look.flashMessage.isEmpty()) {
        settled.receptive = false;
        view.apply(settled);
        view.flash(look.flashMessage);
    }
    view.apply(snapshot());
    if (look.isDragTargeted)
        enter(view);
    if (m_overShelf)
        view.mouseMoved({*m_overShelf + topCentreOf(panel)});
    panel.orderFrontRegardless();
    panel.repaint();
    desk.motion.reduces = reduced;
    ASSERT_EQ(m_shelfPanel.frame().size(), panel.frame().size());
    ASSERT_TRUE(areSame(m_shelfPanel, panel.canvas()))
        << "the shelf is not what it would be if it was made now";
}

void ComparedPanels::compareBarWithFresh()
{
    CanvasPanel panel;
    panel.setFrame(m_barPanel.frame());
    ViewAllView view({panel, desk.clock, desk.motion, desk.theme, desk.keyboard, desk.dragWriter,
                      desk.savedPictures, desk.preparation});
    panel.setContent(&view);
    panel.setScale(m_barPanel.scale());
    view.apply(store.items(), store.selection(), m_bar->offset());
    if (const auto tile = m_bar->view().hovered()) {
        // While the pointer is on a control the tile that it came from stays the hovered one.
        const int index = store.indexOf(*tile).value_or(-1) - m_bar->offset();
        if (index >= 0 && index < static_cast<int>(view.layout().tiles.size()))
            view.mouseMoved(
                {view.layout().tiles.at(static_cast<std::size_t>(index)).root.center()});
    }
    if (m_overBar)
        view.mouseMoved({*m_overBar});
    panel.orderFrontRegardless();
    panel.repaint();
    ASSERT_TRUE(areSame(m_barPanel, panel.canvas()))
        << "the bar is not what it would be if it was made now";
}

void ComparedPanels::step(RandomSteps &steps)
{
    play(steps);
    compareWithWhole();
    if (testing::Test::HasFatalFailure() || !steps.oneIn(3))
        return;
    settle();
    compareWithWhole();
    if (m_barPanel.visible && !testing::Test::HasFatalFailure())
        compareBarWithFresh();
    if (m_shelfPanel.visible && !testing::Test::HasFatalFailure())
        compareShelfWithFresh();
}

} // namespace

TEST(IncrementalPainting, IsWhatPaintingEverythingWouldBe)
{
    playAtRandom<ComparedPanels>(12, 60);
}

} // namespace corvane::test
