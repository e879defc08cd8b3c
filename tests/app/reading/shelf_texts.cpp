#include "app/reading/all_texts.h"
#include "core/byte_count.h"
#include "core/item_description.h"
#include "core/text_descriptions.h"
#include "fakes/fake_drag_desktop.h"
#include "fakes/shelf_model.h"
#include "input/monitored_clicks.h"
#include "input/shortcut.h"
#include "shelf/accessible_shelf.h"
#include "shelf/bar/view_all_controller.h"
#include "shelf/bar/view_all_view.h"
#include "shelf/drawing/text_layer.h"

#include <algorithm>

namespace corvane::test {

namespace {

void addTexts(const Layer &layer, QStringList &lines)
{
    const auto *const text = dynamic_cast<const TextLayer *>(&layer);
    if (text && !text->string().isEmpty())
        lines << text->string();
    for (const Layer *sublayer : layer.sublayers())
        addTexts(*sublayer, lines);
}

/// What is said of it and of all that is in it, a line each.
void addSpoken(const AccessibleNode &node, QStringList &lines)
{
    QStringList words{node.name, node.description};
    for (const AccessibleNode::Action &action : node.actions)
        words << action.text;
    lines << words.join(QLatin1String(" | "));
    for (const AccessibleNode &child : node.children)
        addSpoken(child, lines);
}

/// One of each kind, without what stands below its title.
QList<DropItem> itemsOfEachKind()
{
    const QString title = QStringLiteral("letter");
    DropItem folder(DropItem::File{{}, true}, title, {}, false);
    return {DropItem(DropItem::File{}, title, {}, false),
            folder,
            DropItem(DropItem::Text{title}, title, {}, false),
            DropItem(DropItem::Link{}, title, {}, false),
            DropItem(DropItem::ImageBytes{"x", UTType::png()}, title, {}, false),
            DropItem::beingMade({}, title, {}, {})};
}

ShelfSnapshot snapshotOf(const QList<DropItem> &items, int inView)
{
    ShelfSnapshot snapshot;
    snapshot.state = ShelfState::Occupied;
    snapshot.inViewCount = inView;
    snapshot.totalCount = static_cast<int>(items.size());
    snapshot.canScrollForward = inView < snapshot.totalCount;
    for (int i = 0; i < std::min(inView, snapshot.totalCount); ++i)
        snapshot.visible.emplace_back(i, items[i]);
    return snapshot;
}

} // namespace

TextTable textsForScreenReaders()
{
    ShelfDesk desk;
    QStringList lines;
    const QList<DropItem> items = itemsOfEachKind();
    ShelfView shelf(desk.context());
    for (const int inView : {1, 6}) {
        const ShelfSnapshot snapshot = snapshotOf(items, inView);
        ShelfDesk::fit(desk.panel, shelf, snapshot);
        shelf.apply(snapshot);
        desk.clock.advance(2);
        addSpoken(shelf.accessible(), lines);
    }
    desk.panel.setFrame({100, 500, 600, 132});
    const QList<DropItem> inTheBar = items + itemsOfEachKind();
    const QSet<QUuid> noneSelected;
    ViewAllView bar({desk.panel, desk.clock, desk.motion, desk.theme, desk.keyboard,
                     desk.dragWriter, desk.savedPictures, desk.preparation});
    bar.apply(inTheBar, noneSelected, 0);
    addSpoken(bar.accessible(), lines);
    const auto news = [&](int before, int now, int inView) {
        ShelfSnapshot after = snapshotOf(items.first(now), inView);
        after.focusedIndex = std::max(now - 1, 0);
        if (now < before)
            after.lastThatLeft = items[before - 1].title();
        lines << accessible_shelf::newsOf(snapshotOf(items.first(before), inView), after);
    };
    news(1, 0, 6);
    news(2, 1, 6);
    news(5, 4, 6);
    news(5, 3, 6);
    news(0, 1, 6);
    // The last one is not in view.
    news(5, 6, 3);
    news(0, 3, 6);
    // Nor is the one that leaves.
    news(6, 5, 3);
    news(6, 1, 3);
    news(6, 0, 3);
    lines << accessible_shelf::hiddenNews();
    desk.panel.setFrame({100, 400, 600, 200});
    ShelfSnapshot nothing;
    nothing.state = ShelfState::Expanded;
    ShelfView empty(desk.context());
    empty.apply(nothing);
    addSpoken(empty.accessible(), lines);
    TextTable table;
    table.add(QStringLiteral("What screen readers are told"), lines);
    return table;
}

TextTable textsOfItems()
{
    ShelfDesk desk;
    QStringList lines;
    const item_description::FileName file(QStringLiteral("letter.txt"));
    const auto described = [&](FileVersion::Kind kind, qint64 size) {
        return item_description::ofFile(file, FileVersion{"/letter.txt", kind, 0, size});
    };
    lines << described(FileVersion::Kind::Folder, 0) << described(FileVersion::Kind::Regular, 1);
    for (qint64 size = 5; size < 4'000'000'000'000'000'000; size *= 1'000)
        lines << described(FileVersion::Kind::Regular, size);
    lines << described(FileVersion::Kind::Regular, 5'000'000'000'000'000'000);
    for (const int length : {1, 2, 5, 21})
        lines << TextDescriptions::atOnce(QString(length, u'a'));
    lines << TextDescriptions::atOnce(QString(TextDescriptions::mostCountedAtOnce + 1, u'a'));
    const auto subtitleOf
        = [](const std::optional<DropItem> &item) { return item ? item->subtitle() : QString(); };
    const UTType tiff(QStringLiteral("image/tiff"));
    lines << subtitleOf(desk.pictures.ofBytes("bytes", tiff));
    desk.codec.sizes.insert("picture", {1200, 800});
    lines << PictureItems::describe("picture", UTType::png(), desk.codec);
    ShelfDesk full;
    full.writtenFile("Corvane-4711", "in the way of the spool");
    lines << full.pictures.ofBytes("picture", UTType::png()).title();
    TextTable table;
    table.add(QStringLiteral("Items"), lines);
    return table;
}

TextTable textsOfTheShelfsHint()
{
    ShelfModel model;
    HUDController shelf(model.controllerContext());
    auto &view = dynamic_cast<ShelfView &>(*model.desk.panel.content);
    model.store.dragBegan();
    model.desk.clock.runPending();
    QStringList lines;
    addTexts(view.layers().root(), lines);
    FakePasteboard pasteboard;
    pasteboard.offered = QStringList{QStringLiteral("text/plain")};
    pasteboard.text = QStringLiteral("hello");
    view.draggingEntered({pasteboard, {146, 20}, false});
    addTexts(view.layers().root(), lines);
    TextTable table;
    table.add(QStringLiteral("Hint on the empty shelf"), lines);
    return table;
}

TextTable textsOfKeys()
{
    QStringList lines;
    const auto add = [&lines](std::uint32_t modifiers, const QString &character) {
        lines << Shortcut{KeyPosition::A, modifiers, character}.shown();
    };
    add(Shortcut::command | Shortcut::shift, QStringLiteral("D"));
    add(Shortcut::control | Shortcut::option | Shortcut::shift | Shortcut::command,
        QStringLiteral("F5"));
    // One that no toolkit knows.
    add(Shortcut::control, QStringLiteral("KEY"));
    for (const char *sign :
         {"↩", "⇥", "␣", "⌫", "⌦", "⎋", "←", "→", "↑", "↓", "↖", "↘", "⇞", "⇟", "⌤"})
        add(Shortcut::control, QString::fromUtf8(sign));
    TextTable table;
    table.add(QStringLiteral("Keys"), lines);
    return table;
}

TextTable textsOfTheShelfsMessages()
{
    ShelfModel model;
    HUDController shelf(model.controllerContext());
    auto &view = dynamic_cast<ShelfView &>(*model.desk.panel.content);
    QStringList lines;
    const auto flashed = [&](const char *deed, const auto &act) {
        act();
        model.desk.clock.runPending();
        lines << QLatin1String(deed) + QLatin1String(": ") + view.look().flashMessage;
        // As long as one is shown.
        model.desk.clock.advance(3);
    };
    const QString name = QStringLiteral("a");
    const DropItem file = ShelfDesk::fileItem(name);
    const DropItem text = ShelfDesk::textItem(name);
    const DropItem link(DropItem::Link{QUrl(QStringLiteral("https://a.test/"))}, name, {}, false);
    const DropItem image(DropItem::ImageBytes{"x", UTType::png()}, name, {}, false);
    for (const auto &[kind, item] :
         {std::pair("copied file", file), std::pair("copied text", text),
          std::pair("copied link", link), std::pair("copied picture", image)}) {
        model.store.clearAll();
        model.store.accept({item});
        flashed(kind, [&] { view.onCopy(); });
    }
    model.desk.keyboard.modifiers = Modifier::Option;
    flashed("copied picture with Option held", [&] {
        view.onCopy();
        model.work.runAll();
    });
    model.desk.keyboard.modifiers = {};
    model.store.clearAll();
    model.store.accept({text});
    flashed("kept", [&] { view.onEjected(text.id(), true); });
    model.store.accept({link, text});
    flashed("copied three", [&] { model.quickActions.copy({text, link, file}); });

    FakePanelWindow panel;
    FakeDragDesktop desktop;
    MonitoredClicks clicks(desktop, desktop.pointer);
    ViewAllController bar(ViewAllController::Context{
        {panel, model.desk.clock, model.desk.motion, model.desk.theme, model.desk.keyboard,
         model.desk.dragWriter, model.desk.savedPictures, model.desk.preparation},
        model.store,
        model.quickActions,
        clicks,
        model.feedback});
    // Drags the first of the items, and the others that are ticked, to where `taken` is taken.
    const auto dragOut
        = [&](const QList<DropItem> &items, const QList<qsizetype> &taken, bool isAlone) {
              model.store.clearAll();
              model.store.accept(items);
              model.store.toggleViewAll();
              if (isAlone)
                  model.store.toggleSelection(items.constFirst());
              bar.render({600, 900, 300, 60}, model.screen, 1);
              const QPointF middle = bar.view().layout().tiles.at(0).root.center();
              panel.content->mouseDown({middle});
              panel.content->mouseDragged({middle + QPointF(9, 0)});
              if (!panel.dragOut)
                  return;
              panel.dragOutEvents.released();
              panel.dragOutEvents.ended({DragOperation::Copy, taken, true});
              panel.dragOut.reset();
          };
    const QList<DropItem> three{ShelfDesk::textItem(name), ShelfDesk::textItem(name),
                                ShelfDesk::textItem(name)};
    flashed("one of one stayed", [&] { dragOut(three, {}, true); });
    flashed("one of three stayed", [&] { dragOut(three, {0, 1}, false); });
    flashed("nothing to drag", [&] { dragOut({file, ShelfDesk::fileItem(name)}, {}, false); });
    TextTable table;
    table.add(QStringLiteral("Messages on the shelf"), lines);
    return table;
}

TextTable textsOfTheBar()
{
    ShelfModel model;
    FakePanelWindow panel;
    FakeDragDesktop desktop;
    MonitoredClicks clicks(desktop, desktop.pointer);
    ViewAllController bar(ViewAllController::Context{
        {panel, model.desk.clock, model.desk.motion, model.desk.theme, model.desk.keyboard,
         model.desk.dragWriter, model.desk.savedPictures, model.desk.preparation},
        model.store,
        model.quickActions,
        clicks,
        model.feedback});
    model.store.accept({ShelfDesk::textItem(QStringLiteral("a")),
                        ShelfDesk::textItem(QStringLiteral("b")),
                        ShelfDesk::textItem(QStringLiteral("c"))});
    model.store.toggleViewAll();
    QStringList lines;
    const auto add = [&](const char *state) {
        bar.render({600, 900, 300, 60}, model.screen, 1);
        lines << QLatin1String(state) + QLatin1String(": ") + bar.view().layout().selectionText;
    };
    add("all of three ticked");
    model.store.toggleSelection(model.store.items()[0]);
    add("two of three ticked");
    model.store.toggleSelection(model.store.items()[1]);
    add("one of three ticked");
    model.store.toggleSelection(model.store.items()[2]);
    add("none of three ticked");
    TextTable table;
    table.add(QStringLiteral("The bar"), lines);
    return table;
}

} // namespace corvane::test
