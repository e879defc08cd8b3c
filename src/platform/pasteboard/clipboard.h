#pragma once

#include <QtGlobal>

namespace corvane {

struct PasteboardContents;

/// The desktop's clipboard. Main thread only.
class Clipboard {
public:
    virtual ~Clipboard() = default;

    /// Replaces what is on the clipboard by `contents`.
    virtual void write(const PasteboardContents &contents) = 0;
    /// A number that changes whenever a program, ours included, has put something on the clipboard.
    virtual qint64 changeCount() const = 0;
};

} // namespace corvane
