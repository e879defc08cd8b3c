#pragma once

#include "core/drop_item.h"
#include "platform/desktop/panel_window.h"

namespace corvane {

class ItemPreparation;

/// For `DragOut::whenReady`: waits for those of `items` that are still being made when the drag
/// begins, then passes the final contents on. Empty when all are ready already. `contents` has one
/// writer for each of `items`, in the same order. If an awaited item is removed meanwhile, nothing
/// at all is passed on, so that no target takes a part for the whole.
///
/// A picture whose file could not be written is passed on as bytes. A target that was offered files
/// does not take those, so the picture stays on the shelf.
///
/// `preparation` must outlive the returned function.
std::function<void(DragOut::Ready)> awaitedContents(const PasteboardContents &contents,
                                                    const QList<DropItem> &items,
                                                    ItemPreparation &preparation);

} // namespace corvane
