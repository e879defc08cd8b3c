#pragma once

#include <QtGlobal>

namespace corvane {

struct PasteboardContents;

/// The clipboard.
class Clipboard {
public:
    virtual ~Clipboard() = default;

    /// Clears it, then writes `contents` in one go.
    virtual void write(const PasteboardContents &contents) = 0;
    /// Another number whenever anybody, also another program, has put something there.
    virtual qint64 changeCount() const = 0;
};

} // namespace corvane
