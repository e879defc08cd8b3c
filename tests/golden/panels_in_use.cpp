#include "golden/panels_in_use.h"

#include <array>

namespace corvane::test {

namespace {

constexpr double frame = 1.0 / 60;

QImage pictureOf(QRgb color)
{
    QImage image(64, 48, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(color));
    return image;
}

QPointF anyPoint(const CanvasPanel &panel, RandomSteps &steps)
{
    return {static_cast<double>(steps.below(static_cast<int>(panel.frame().width()))) + 0.5,
            static_cast<double>(steps.below(static_cast<int>(panel.frame().height()))) + 0.5};
}

} // namespace

PanelsInUse::PanelsInUse()
{
    settings.setInViewCount(3);
    pointer.position = QPointF(700, 900);
    m_bar.emplace(
        ViewAllController::Context{{m_barPanel, desk.clock, desk.motion, desk.theme, desk.keyboard,
                                    desk.dragWriter, desk.savedPictures, desk.preparation},
                                   store,
                                   quickActions,
                                   m_clicks,
                                   feedback});
    m_shelf.emplace(HUDController::Context{shelfContext(m_shelfPanel), store, settings, feedback,
                                           screens, locator, quickActions, nullptr, &*m_bar});
}

ShelfView::Context PanelsInUse::shelfContext(PanelWindow &panel)
{
    const ShelfView::Context usual = desk.context();
    return {panel,          usual.queue,      usual.motionPreference,
            usual.theme,    usual.animator,   usual.measurer,
            usual.keyboard, usual.ingest,     usual.dragWriter,
            usual.pictures, usual.preparation};
}

void PanelsInUse::enter(ShelfView &view)
{
    FakePasteboard pasteboard;
    pasteboard.offered = QStringList{QStringLiteral("text/plain")};
    pasteboard.text = QStringLiteral("hello");
    view.draggingEntered({pasteboard, {60, 20}, false});
}

CanvasPanel &PanelsInUse::anyPanel(RandomSteps &steps)
{
    return m_barPanel.visible && steps.oneIn(2) ? m_barPanel : m_shelfPanel;
}

void PanelsInUse::drop(RandomSteps &steps)
{
    QList<DropItem> items;
    for (int i = steps.below(4); i >= 0; --i) {
        const QString name = QStringLiteral("item %1.png").arg(++m_made);
        items << (steps.oneIn(2) ? ShelfDesk::fileItem(name) : ShelfDesk::textItem(name));
    }
    steps.note(QStringLiteral("drop %1").arg(items.size()));
    store.accept(items);
}

void PanelsInUse::page(RandomSteps &steps)
{
    const bool isBar = m_barPanel.visible && steps.oneIn(2);
    const double delta = steps.oneOf({-60.0, 60.0});
    steps.note(QStringLiteral("page %1 by %2").arg(isBar ? u"bar" : u"shelf").arg(delta));
    CanvasPanel &panel = isBar ? m_barPanel : m_shelfPanel;
    panel.content->scrollWheel({delta, true, ScrollEvent::Phase::None, desk.clock.now()});
}

void PanelsInUse::hover(RandomSteps &steps)
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

void PanelsInUse::leave(RandomSteps &steps)
{
    steps.note(QStringLiteral("the pointer leaves"));
    m_shelfPanel.content->mouseExited();
    m_barPanel.content->mouseExited();
    m_overShelf.reset();
    m_overBar.reset();
}

void PanelsInUse::press(RandomSteps &steps)
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

void PanelsInUse::tick(RandomSteps &steps)
{
    if (store.items().isEmpty())
        return;
    const int index = steps.below(static_cast<int>(store.items().size()));
    steps.note(QStringLiteral("tick %1").arg(index));
    store.toggleSelection(DropItem(store.items().at(index)));
}

void PanelsInUse::remove(RandomSteps &steps)
{
    if (store.items().isEmpty())
        return;
    const int index = steps.below(static_cast<int>(store.items().size()));
    steps.note(QStringLiteral("remove %1").arg(index));
    store.discard(index, false);
}

void PanelsInUse::focus(RandomSteps &steps)
{
    const int index = steps.below(8);
    steps.note(QStringLiteral("focus %1").arg(index));
    store.focus(index);
}

void PanelsInUse::thumbnailArrives(RandomSteps &steps)
{
    if (m_answered == thumbnails.requests.size())
        return;
    const QRgb color = steps.oneOf({0xFFAA3322U, 0xFF22AA33U, 0xFF3322AAU});
    steps.note(QStringLiteral("a thumbnail arrives"));
    thumbnails.requests.at(m_answered++).completion(Image{pictureOf(color), {30, 30}});
    desk.clock.runPending();
}

void PanelsInUse::describe(RandomSteps &steps)
{
    if (store.items().isEmpty())
        return;
    const auto &item = store.items().at(steps.below(static_cast<int>(store.items().size())));
    steps.note(QStringLiteral("an item is described"));
    store.describe(QUuid(item.id()), QStringLiteral("%1 KB").arg(steps.below(900)));
}

void PanelsInUse::toggleBar(RandomSteps &steps)
{
    steps.note(QStringLiteral("toggle the bar"));
    store.toggleViewAll();
}

void PanelsInUse::toggleShelf(RandomSteps &steps)
{
    steps.note(QStringLiteral("toggle the shelf"));
    m_shelf->toggleByHand();
}

void PanelsInUse::dragEnters(RandomSteps &steps)
{
    steps.note(QStringLiteral("a drag enters"));
    store.dragBegan();
    enter(shelf());
}

void PanelsInUse::dragLeaves(RandomSteps &steps)
{
    steps.note(QStringLiteral("the drag leaves"));
    shelf().draggingExited();
    store.dragEnded();
}

void PanelsInUse::flash(RandomSteps &steps)
{
    steps.note(QStringLiteral("flash"));
    feedback.show({Message::Kind::ItemsCopied, steps.below(9)});
}

void PanelsInUse::setInView(RandomSteps &steps)
{
    const int count = steps.oneOf({1, 2, 3, 6});
    steps.note(QStringLiteral("%1 in view").arg(count));
    settings.setInViewCount(count);
}

void PanelsInUse::setScale(RandomSteps &steps)
{
    const double scale = steps.oneOf({1.0, 1.5, 2.0});
    steps.note(QStringLiteral("scale %1").arg(scale));
    m_shelfPanel.setScale(scale);
    m_barPanel.setScale(scale);
}

void PanelsInUse::reduceMotion(RandomSteps &steps)
{
    desk.motion.reduces = steps.oneIn(2);
    steps.note(QStringLiteral("reduced motion %1").arg(desk.motion.reduces));
}

void PanelsInUse::timePasses(RandomSteps &steps)
{
    const int frames = steps.oneOf({1, 2, 5, 11});
    steps.note(QStringLiteral("%1 frames").arg(frames));
    for (int i = 0; i < frames && !testing::Test::HasFailure(); ++i) {
        nextFrame();
        frameWasPainted();
    }
}

void PanelsInUse::nextFrame()
{
    desk.clock.advance(frame);
    m_shelfPanel.repaint();
    m_barPanel.repaint();
}

void PanelsInUse::settle()
{
    for (int i = 0; i < 60; ++i)
        nextFrame();
}

ShelfSnapshot PanelsInUse::snapshot() const
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

void PanelsInUse::play(RandomSteps &steps)
{
    static constexpr std::array<Step, 19> table{{{6, &PanelsInUse::drop},
                                                 {6, &PanelsInUse::page},
                                                 {8, &PanelsInUse::hover},
                                                 {2, &PanelsInUse::leave},
                                                 {4, &PanelsInUse::press},
                                                 {5, &PanelsInUse::tick},
                                                 {3, &PanelsInUse::remove},
                                                 {4, &PanelsInUse::focus},
                                                 {5, &PanelsInUse::thumbnailArrives},
                                                 {2, &PanelsInUse::describe},
                                                 {4, &PanelsInUse::toggleBar},
                                                 {1, &PanelsInUse::toggleShelf},
                                                 {2, &PanelsInUse::dragEnters},
                                                 {3, &PanelsInUse::dragLeaves},
                                                 {3, &PanelsInUse::flash},
                                                 {2, &PanelsInUse::setInView},
                                                 {1, &PanelsInUse::setScale},
                                                 {1, &PanelsInUse::reduceMotion},
                                                 {6, &PanelsInUse::timePasses}}};
    playOneOf(*this, steps, table);
    if (!m_barPanel.visible)
        m_overBar.reset();
    m_shelfPanel.repaint();
    m_barPanel.repaint();
}

} // namespace corvane::test
