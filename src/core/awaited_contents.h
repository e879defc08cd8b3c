#pragma once

#include "core/drop_item.h"
#include "platform/desktop/panel_window.h"

namespace corvane {

class ItemPreparation;

/// What a drag-out hands over once the items that are still being made when it begins are ready;
/// empty when none is. `contents` has one writer for each of `items`. Where one of these is removed
/// meanwhile nothing is handed over at all, so that no target takes a part for the whole. A picture
/// whose file could not be written is then no part of the files that were announced: it stays.
std::function<void(DragOut::Ready)> awaitedContents(const PasteboardContents &contents,
                                                    const QList<DropItem> &items,
                                                    ItemPreparation &preparation);

} // namespace corvane
