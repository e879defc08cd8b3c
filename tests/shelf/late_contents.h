#pragma once

#include "fakes/shelf_desk.h"

#include <optional>

namespace corvane::test {

/// A picture that is still being made, into a file called "scan.png".
inline DropItem pictureBeingMade(ShelfDesk &desk)
{
    desk.codec.teach("tiff bytes", {3, 2});
    return *desk.pictures.ofTiffFile(desk.writtenFile("scan.tiff", "tiff bytes"));
}

/// What the drag that has begun hands over once everything in it is ready; nothing where it hands
/// over anything before, or does not wait.
inline std::optional<PasteboardContents> contentsHandedOverLate(ShelfDesk &desk)
{
    if (!desk.panel.dragOut || !desk.panel.dragOut->whenReady)
        return std::nullopt;
    std::optional<PasteboardContents> handedOver;
    desk.panel.dragOut->whenReady(
        [&](const std::optional<PasteboardContents> &contents) { handedOver = contents; });
    if (handedOver)
        return std::nullopt;
    desk.work.runAll();
    desk.clock.runPending();
    return handedOver;
}

} // namespace corvane::test
