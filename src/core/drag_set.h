#pragma once

#include "core/drop_item.h"
#include "platform/desktop/panel_window.h"
#include "platform/pasteboard/pasteboard_writer.h"

#include <QList>

namespace corvane {

class DragWriter;
class SavedPictures;

/// What leaves the shelf in one drag.
struct DragSet {
    PasteboardContents contents;
    /// The items whose contents are in it, one for each writer. Others cannot travel and stay.
    QList<DropItem> items;
    /// The form in which each of them travels: pictures in memory as files, which may still be
    /// being written.
    QList<DropItem> forms;
};

/// Puts together what of `items` can travel. A file that is gone cannot. A picture that is held in
/// memory travels as its bytes when it is alone; beside others, where a target takes addresses or
/// nothing, it travels as a file, and stays where none can be made. Where nothing else can travel
/// the first one goes alone.
DragSet makeDragSet(const QList<DropItem> &items, const DragWriter &writer,
                    SavedPictures &pictures);

/// Whether an item must stay although the target took `form`: a link to a file of the shelf's own
/// leads nowhere once the shelf has deleted it.
bool isOnlyLinkedTo(const DropItem &form, DragOperation operation);

} // namespace corvane
