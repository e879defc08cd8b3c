#pragma once

#include "platform/pasteboard/pasteboard_form.h"

#include <memory>

class QMimeData;

namespace corvane {

struct PasteboardContents;

/// Where the contents go. For the clipboard, files are also given in a type of file managers, which
/// need it to paste; in a drag it might be taken for a command to copy.
enum class PasteboardKind {
    Drag,
    Clipboard,
};

/// The contents as forms: picture bytes under their own type (of several with the same type the
/// first), files and links together as text/uri-list, and plain text, with files as paths and links
/// as addresses. Takes time in proportion to the contents.
PasteboardForms formsOf(const PasteboardContents &contents, PasteboardKind kind);

/// All forms in one `QMimeData`.
std::unique_ptr<QMimeData> mimeDataFor(const PasteboardForms &forms);
std::unique_ptr<QMimeData> mimeDataFor(const PasteboardContents &contents, PasteboardKind kind);

} // namespace corvane
