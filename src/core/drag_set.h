#pragma once

#include "core/drop_item.h"
#include "platform/desktop/panel_events.h"
#include "platform/pasteboard/pasteboard_writer.h"

#include <QList>

namespace corvane {

class DragWriter;
class SavedPictures;

/// What leaves the shelf in one drag.
struct DragSet {
    PasteboardContents contents;
    /// The items that leave if the target takes them, one for each writer. Items that cannot be
    /// dragged are left out and stay on the shelf.
    QList<DropItem> items;
    /// What each item is offered as: pictures in memory as files, which may still be being written.
    QList<DropItem> forms;
};

/// Chooses what of `items` can be dragged, and as what. Files that no longer exist are left out. A
/// picture that is held in memory is offered as its bytes when it is dragged alone. Among other
/// items it is offered as a file, because of several things programs take only files; it is left
/// out where no file can be made. If that leaves nothing, the first item is dragged alone.
DragSet makeDragSet(const QList<DropItem> &items, const DragWriter &writer,
                    SavedPictures &pictures);

/// Whether an item must stay although the target took `form`: the target made a link to a file in
/// the spool, which would lead nowhere once the shelf deletes that file.
bool isOnlyLinkedTo(const DropItem &form, DragOperation operation);

} // namespace corvane
