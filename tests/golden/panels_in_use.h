#pragma once

#include "fakes/canvas_panel.h"
#include "fakes/fake_drag_desktop.h"
#include "fakes/random_steps.h"
#include "fakes/shelf_model.h"
#include "input/monitored_clicks.h"
#include "shelf/bar/view_all_controller.h"

#include <optional>

namespace corvane::test {

/// Shelf and bar of one model, as in the program, in panels that keep what they show; and what
/// users do with them.
class PanelsInUse : protected ShelfModel {
public:
    PanelsInUse();
    virtual ~PanelsInUse() = default;

protected:
    /// Something that users do, or that comes by itself. Both panels are painted after it, as far
    /// as they were asked to be.
    void play(RandomSteps &steps);
    /// Called for each frame that passes while a step is played.
    virtual void frameWasPainted() = 0;
    /// Long enough for the shelf to come to rest, and for what follows its rest.
    void settle();

    /// What the shelf has to show now.
    ShelfSnapshot snapshot() const;
    ShelfView::Context shelfContext(PanelWindow &panel);
    ShelfView &shelf() { return dynamic_cast<ShelfView &>(*m_shelfPanel.content); }
    /// A text is dragged onto it.
    static void enter(ShelfView &view);
    static QPointF topCentreOf(const CanvasPanel &panel)
    {
        return {panel.frame().width() / 2, panel.frame().height()};
    }

    CanvasPanel m_shelfPanel;
    CanvasPanel m_barPanel;
    FakeDragDesktop m_desktop;
    MonitoredClicks m_clicks{m_desktop, m_desktop.pointer};
    std::optional<ViewAllController> m_bar;
    std::optional<HUDController> m_shelf;
    /// From the top centre, which stays where it is when the panel resizes.
    std::optional<QPointF> m_overShelf;
    std::optional<QPointF> m_overBar;

private:
    struct Step {
        int weight;
        void (PanelsInUse::*play)(RandomSteps &steps);
    };

    void drop(RandomSteps &steps);
    void page(RandomSteps &steps);
    void hover(RandomSteps &steps);
    void leave(RandomSteps &steps);
    void press(RandomSteps &steps);
    void tick(RandomSteps &steps);
    void remove(RandomSteps &steps);
    void focus(RandomSteps &steps);
    void thumbnailArrives(RandomSteps &steps);
    void describe(RandomSteps &steps);
    void toggleBar(RandomSteps &steps);
    void toggleShelf(RandomSteps &steps);
    void dragEnters(RandomSteps &steps);
    void dragLeaves(RandomSteps &steps);
    void flash(RandomSteps &steps);
    void setInView(RandomSteps &steps);
    void setScale(RandomSteps &steps);
    void reduceMotion(RandomSteps &steps);
    void timePasses(RandomSteps &steps);

    CanvasPanel &anyPanel(RandomSteps &steps);
    void nextFrame();

    std::size_t m_answered = 0;
    int m_made = 0;
};

} // namespace corvane::test
