#pragma once

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

/// Everything in one `QMimeData`: files and links together as text/uri-list, picture bytes under
/// their own type (of several with one type the first), and the plain text.
std::unique_ptr<QMimeData> mimeDataFor(const PasteboardContents &contents, PasteboardKind kind);

} // namespace corvane
