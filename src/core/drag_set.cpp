#include "core/drag_set.h"

#include "core/drag_writer.h"
#include "core/saved_pictures.h"

namespace corvane {

namespace {

void add(DragSet &set, const DropItem &item, const DropItem &form)
{
    set.contents.writers.push_back(DragWriter::pasteboardWriter(form));
    set.items << item;
    set.forms << form;
}

DragSet alone(const DropItem &item)
{
    DragSet set;
    add(set, item, item);
    return set;
}

} // namespace

DragSet makeDragSet(const QList<DropItem> &items, const DragWriter &dragWriter,
                    SavedPictures &pictures)
{
    const QList<DropItem> available = dragWriter.available(items);
    if (available.size() == 1)
        return alone(available.constFirst());

    DragSet set;
    set.contents.writers.reserve(static_cast<std::size_t>(available.size()));
    for (const DropItem &item : available) {
        const DropItem form = pictures.asFile(item);
        if (!std::holds_alternative<DropItem::ImageBytes>(form.payload()))
            add(set, item, form);
    }
    return set.items.isEmpty() && !available.isEmpty() ? alone(available.constFirst()) : set;
}

bool isOnlyLinkedTo(const DropItem &form, DragOperation operation)
{
    return operation == DragOperation::Link && form.isSpooled();
}

} // namespace corvane
