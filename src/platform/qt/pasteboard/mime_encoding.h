#pragma once

#include "platform/pasteboard/pasteboard_form.h"

#include <memory>

class QMimeData;

namespace corvane {

struct PasteboardContents;

/// What the encoded contents are for. File managers paste copied files only by a type of their own,
/// which in a drag would be taken for more than is meant.
enum class PasteboardKind {
    Drag,
    Clipboard,
};

/// Picture bytes under their own type (of several with one type the first), files and links
/// together as text/uri-list, and the plain text, which holds files by their paths and links by
/// their addresses. Takes time in proportion to the contents.
PasteboardForms formsOf(const PasteboardContents &contents, PasteboardKind kind);

/// Everything in one `QMimeData`.
std::unique_ptr<QMimeData> mimeDataFor(const PasteboardForms &forms);
std::unique_ptr<QMimeData> mimeDataFor(const PasteboardContents &contents, PasteboardKind kind);

} // namespace corvane
