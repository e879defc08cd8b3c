// What panels show after any sequence of what users do is what they would show if all of it was
// painted at once: nothing is left from before, and nothing is missing.

#include "fakes/canvas_panel.h"
#include "fakes/fake_drag_desktop.h"
#include "fakes/random_steps.h"
#include "fakes/shelf_model.h"
#include "golden/golden.h"
#include "input/monitored_clicks.h"
#include "shelf/bar/view_all_controller.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <utility>

namespace corvane::test {

namespace {

constexpr double frame = 1.0 / 60;

QImage pictureOf(QRgb color)
{
    QImage image(64, 48, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(color));
    return image;
}

testing::AssertionResult areSame(const CanvasPanel &panel, const QImage &expected)
{
    if (panel.canvas() == expected)
        return testing::AssertionSuccess();
    const QString wrong = leaveForALook(QStringLiteral("incremental.png"), panel.canvas());
    const QString right = leaveForALook(QStringLiteral("incremental-whole.png"), expected);
    return testing::AssertionFailure()
        << wrong.toStdString() << " is not like " << right.toStdString();
}

/// Shelf and bar of one model, as in the program, in panels that keep what they show.
class Panels : protected ShelfModel {
public:
    explicit Panels(RandomSteps & /*steps*/)
    {
        settings.setInViewCount(3);
        pointer.position = QPointF(700, 900);
        m_bar.emplace(ViewAllController::Context{{m_barPanel, desk.clock, desk.motion, desk.theme,
                                                  desk.keyboard, desk.dragWriter,
                                                  desk.savedPictures, desk.preparation},
                                                 store,
                                                 quickActions,
                                                 m_clicks,
                                                 feedback});
        m_shelf.emplace(HUDController::Context{shelfContext(m_shelfPanel), store, settings,
                                               feedback, screens, locator, quickActions, nullptr,
                                               &*m_bar});
    }

    void step(RandomSteps &steps);

private:
    struct Step {
        int weight;
        void (Panels::*play)(RandomSteps &steps);
    };

    // What users do, and what comes by itself
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

    ShelfView::Context shelfContext(PanelWindow &panel)
    {
        const ShelfView::Context usual = desk.context();
        return {panel,          usual.queue,      usual.motionPreference,
                usual.theme,    usual.animator,   usual.measurer,
                usual.keyboard, usual.ingest,     usual.dragWriter,
                usual.pictures, usual.preparation};
    }
    ShelfView &shelf() { return dynamic_cast<ShelfView &>(*m_shelfPanel.content); }
    CanvasPanel &anyPanel(RandomSteps &steps)
    {
        return m_barPanel.visible && steps.oneIn(2) ? m_barPanel : m_shelfPanel;
    }
    static QPointF topCentreOf(const CanvasPanel &panel)
    {
        return {panel.frame().width() / 2, panel.frame().height()};
    }
    static QPointF anyPoint(const CanvasPanel &panel, RandomSteps &steps)
    {
        return {static_cast<double>(steps.below(static_cast<int>(panel.frame().width()))) + 0.5,
                static_cast<double>(steps.below(static_cast<int>(panel.frame().height()))) + 0.5};
    }
    static void enter(ShelfView &view)
    {
        FakePasteboard pasteboard;
        pasteboard.offered = QStringList{QStringLiteral("text/plain")};
        pasteboard.text = QStringLiteral("hello");
        view.draggingEntered({pasteboard, {60, 20}, false});
    }
    void settle();
    void nextFrame();
    void compareWithWhole();
    void compareShelfWithFresh();
    void compareBarWithFresh();
    ShelfSnapshot snapshot() const;

    CanvasPanel m_shelfPanel;
    CanvasPanel m_barPanel;
    FakeDragDesktop m_desktop;
    MonitoredClicks m_clicks{m_desktop, m_desktop.pointer};
    std::optional<ViewAllController> m_bar;
    std::optional<HUDController> m_shelf;
    std::size_t m_answered = 0;
    int m_made = 0;
    /// From the top centre, which stays where it is when the panel resizes.
    std::optional<QPointF> m_overShelf;
    std::optional<QPointF> m_overBar;
};

void Panels::drop(RandomSteps &steps)
{
    QList<DropItem> items;
    for (int i = steps.below(4); i >= 0; --i) {
        const QString name = QStringLiteral("item %1.png").arg(++m_made);
        items << (steps.oneIn(2) ? ShelfDesk::fileItem(name) : ShelfDesk::textItem(name));
    }
    steps.note(QStringLiteral("drop %1").arg(items.size()));
    store.accept(items);
}

void Panels::page(RandomSteps &steps)
{
    const bool isBar = m_barPanel.visible && steps.oneIn(2);
    const double delta = steps.oneOf({-60.0, 60.0});
    steps.note(QStringLiteral("page %1 by %2").arg(isBar ? u"bar" : u"shelf").arg(delta));
    CanvasPanel &panel = isBar ? m_barPanel : m_shelfPanel;
    panel.content->scrollWheel({delta, true, ScrollEvent::Phase::None, desk.clock.now()});
}

void Panels::hover(RandomSteps &steps)
{
    CanvasPanel &panel = anyPanel(steps);
    const QPointF point = anyPoint(panel, steps);
    const bool isBar = &panel == &m_barPanel;
    steps.note(QStringLiteral("hover %1 at %2, %3")
                   .arg(isBar ? u"bar" : u"shelf")
                   .arg(point.x())
                   .arg(point.y()));
    panel.content->mouseMoved({point});
    if (isBar)
        m_overBar = point;
    else
        m_overShelf = point - topCentreOf(panel);
}

void Panels::leave(RandomSteps &steps)
{
    steps.note(QStringLiteral("the pointer leaves"));
    m_shelfPanel.content->mouseExited();
    m_barPanel.content->mouseExited();
    m_overShelf.reset();
    m_overBar.reset();
}

void Panels::press(RandomSteps &steps)
{
    CanvasPanel &panel = anyPanel(steps);
    const QPointF point = anyPoint(panel, steps);
    steps.note(QStringLiteral("press %1 at %2, %3")
                   .arg(&panel == &m_barPanel ? u"bar" : u"shelf")
                   .arg(point.x())
                   .arg(point.y()));
    panel.content->mouseDown({point});
    panel.content->mouseUp({point});
}

void Panels::tick(RandomSteps &steps)
{
    if (store.items().isEmpty())
        return;
    const int index = steps.below(static_cast<int>(store.items().size()));
    steps.note(QStringLiteral("tick %1").arg(index));
    store.toggleSelection(DropItem(store.items().at(index)));
}

void Panels::remove(RandomSteps &steps)
{
    if (store.items().isEmpty())
        return;
    const int index = steps.below(static_cast<int>(store.items().size()));
    steps.note(QStringLiteral("remove %1").arg(index));
    store.discard(index, false);
}

void Panels::focus(RandomSteps &steps)
{
    const int index = steps.below(8);
    steps.note(QStringLiteral("focus %1").arg(index));
    store.focus(index);
}

void Panels::thumbnailArrives(RandomSteps &steps)
{
    if (m_answered == thumbnails.requests.size())
        return;
    const QRgb color = steps.oneOf({0xFFAA3322U, 0xFF22AA33U, 0xFF3322AAU});
    steps.note(QStringLiteral("a thumbnail arrives"));
    thumbnails.requests.at(m_answered++).completion(Image{pictureOf(color), {30, 30}});
    desk.clock.runPending();
}

void Panels::describe(RandomSteps &steps)
{
    if (store.items().isEmpty())
        return;
    const auto &item = store.items().at(steps.below(static_cast<int>(store.items().size())));
    steps.note(QStringLiteral("an item is described"));
    store.describe(QUuid(item.id()), QStringLiteral("%1 KB").arg(steps.below(900)));
}

void Panels::toggleBar(RandomSteps &steps)
{
    steps.note(QStringLiteral("toggle the bar"));
    store.toggleViewAll();
}

void Panels::toggleShelf(RandomSteps &steps)
{
    steps.note(QStringLiteral("toggle the shelf"));
    m_shelf->toggleByHand();
}

void Panels::dragEnters(RandomSteps &steps)
{
    steps.note(QStringLiteral("a drag enters"));
    store.dragBegan();
    enter(shelf());
}

void Panels::dragLeaves(RandomSteps &steps)
{
    steps.note(QStringLiteral("the drag leaves"));
    shelf().draggingExited();
    store.dragEnded();
}

void Panels::flash(RandomSteps &steps)
{
    steps.note(QStringLiteral("flash"));
    feedback.show(QStringLiteral("Message %1").arg(steps.below(9)));
}

void Panels::setInView(RandomSteps &steps)
{
    const int count = steps.oneOf({1, 2, 3, 6});
    steps.note(QStringLiteral("%1 in view").arg(count));
    settings.setInViewCount(count);
}

void Panels::setScale(RandomSteps &steps)
{
    const double scale = steps.oneOf({1.0, 1.5, 2.0});
    steps.note(QStringLiteral("scale %1").arg(scale));
    m_shelfPanel.setScale(scale);
    m_barPanel.setScale(scale);
}

void Panels::reduceMotion(RandomSteps &steps)
{
    desk.motion.reduces = steps.oneIn(2);
    steps.note(QStringLiteral("reduced motion %1").arg(desk.motion.reduces));
}

void Panels::timePasses(RandomSteps &steps)
{
    const int frames = steps.oneOf({1, 2, 5, 11});
    steps.note(QStringLiteral("%1 frames").arg(frames));
    for (int i = 0; i < frames && !testing::Test::HasFailure(); ++i) {
        nextFrame();
        compareWithWhole();
    }
}

void Panels::nextFrame()
{
    desk.clock.advance(frame);
    m_shelfPanel.repaint();
    m_barPanel.repaint();
}

void Panels::compareWithWhole()
{
    for (CanvasPanel *panel : {&m_shelfPanel, &m_barPanel}) {
        if (panel->visible) {
            ASSERT_TRUE(areSame(*panel, panel->whole()))
                << (panel == &m_barPanel ? "the bar" : "the shelf")
                << " still shows something that it was not asked to repaint";
        }
    }
}

/// Long enough for the shelf to come to rest, and for what follows its rest.
void Panels::settle()
{
    for (int i = 0; i < 60; ++i)
        nextFrame();
}

ShelfSnapshot Panels::snapshot() const
{
    const int total = static_cast<int>(store.items().size());
    const int first = store.scrollOffset();
    ShelfSnapshot snapshot;
    snapshot.state = store.state();
    snapshot.inViewCount = settings.inViewCount();
    snapshot.totalCount = total;
    snapshot.focusedIndex = store.focusedIndex();
    snapshot.receptive = store.isDragInFlight();
    for (int i = first; i < std::min(first + snapshot.inViewCount, total); ++i)
        snapshot.visible.emplace_back(i, store.items().at(i));
    snapshot.canScrollBack = first > 0;
    snapshot.canScrollForward = first + snapshot.inViewCount < total;
    return snapshot;
}

void Panels::compareShelfWithFresh()
{
    const ShelfLook &look = shelf().look();
    // It is where the other one came to rest.
    const bool reduced = std::exchange(desk.motion.reduces, true);
    CanvasPanel panel;
    ShelfView view(shelfContext(panel));
    panel.setContent(&view);
    panel.setScale(m_shelfPanel.scale());
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

void Panels::compareBarWithFresh()
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

void Panels::step(RandomSteps &steps)
{
    static constexpr std::array<Step, 19> table{{{6, &Panels::drop},
                                                 {6, &Panels::page},
                                                 {8, &Panels::hover},
                                                 {2, &Panels::leave},
                                                 {4, &Panels::press},
                                                 {5, &Panels::tick},
                                                 {3, &Panels::remove},
                                                 {4, &Panels::focus},
                                                 {5, &Panels::thumbnailArrives},
                                                 {2, &Panels::describe},
                                                 {4, &Panels::toggleBar},
                                                 {1, &Panels::toggleShelf},
                                                 {2, &Panels::dragEnters},
                                                 {3, &Panels::dragLeaves},
                                                 {3, &Panels::flash},
                                                 {2, &Panels::setInView},
                                                 {1, &Panels::setScale},
                                                 {1, &Panels::reduceMotion},
                                                 {6, &Panels::timePasses}}};
    playOneOf(*this, steps, table);
    if (!m_barPanel.visible)
        m_overBar.reset();
    m_shelfPanel.repaint();
    m_barPanel.repaint();
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
    playAtRandom<Panels>(12, 60);
}

} // namespace corvane::test
