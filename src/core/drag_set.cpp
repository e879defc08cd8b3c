#include "core/drag_set.h"

#include "core/drag_writer.h"
#include "core/scratch_spool.h"

#include <QCoreApplication>

namespace corvane {

namespace {

DragSet alone(const DropItem &item)
{
    DragSet set;
    set.contents.writers.push_back(DragWriter::pasteboardWriter(item));
    set.items << item;
    return set;
}

std::optional<QUrl> saved(const DropItem &item, const DropItem::ImageBytes &image,
                          ScratchSpool &spool)
{
    const QString extension = image.type.preferredFilenameExtension();
    return spool.store(image.data, item.title(),
                       extension.isEmpty() ? QStringLiteral("png") : extension);
}

} // namespace

DragSet makeDragSet(const QList<DropItem> &items, const DragWriter &dragWriter, ScratchSpool &spool)
{
    const QList<DropItem> available = dragWriter.available(items);
    if (available.size() == 1)
        return alone(available.constFirst());

    DragSet set;
    set.contents.writers.reserve(static_cast<std::size_t>(available.size()));
    for (const DropItem &item : available) {
        PasteboardWriter writer = DragWriter::pasteboardWriter(item);
        if (const auto *image = std::get_if<DropItem::ImageBytes>(&item.payload())) {
            const auto url = saved(item, *image, spool);
            if (!url)
                continue;
            set.savedFiles << *url;
            writer = {PasteboardWriter::File{*url}};
        }
        set.contents.writers.push_back(std::move(writer));
        set.items << item;
    }
    return set.items.isEmpty() && !available.isEmpty() ? alone(available.constFirst()) : set;
}

QString stayedMessage(qsizetype stayed, qsizetype all)
{
    if (stayed >= all)
        return QCoreApplication::translate("ShelfView", "It was not taken");
    return QCoreApplication::translate("ShelfView", "%1 of %2 were not taken").arg(stayed).arg(all);
}

} // namespace corvane
