#include "core/awaited_contents.h"

#include "core/drag_writer.h"
#include "core/item_preparation.h"

#include <algorithm>

namespace corvane {

namespace {

std::optional<PasteboardContents> finalContents(PasteboardContents contents,
                                                const QList<DropItem> &items,
                                                const QList<DropItem> &ready)
{
    if (ready.size() != items.size())
        return std::nullopt;
    for (qsizetype i = 0; i < items.size(); ++i) {
        // An item that was ready from the start keeps the writer chosen for this drag.
        if (!items[i].isBeingMade())
            continue;
        contents.writers[static_cast<std::size_t>(i)] = DragWriter::pasteboardWriter(ready[i]);
    }
    return contents;
}

} // namespace

std::function<void(DragOut::Ready)> awaitedContents(const PasteboardContents &contents,
                                                    const QList<DropItem> &items,
                                                    ItemPreparation &preparation)
{
    if (std::none_of(items.begin(), items.end(),
                     [](const DropItem &item) { return item.isBeingMade(); }))
        return {};
    return [contents, items, &preparation](const DragOut::Ready &ready) {
        preparation.whenReady(items, [contents, items, ready](const QList<DropItem> &made) {
            ready(finalContents(contents, items, made));
        });
    };
}

} // namespace corvane
