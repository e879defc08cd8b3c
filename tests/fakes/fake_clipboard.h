#pragma once

#include "platform/pasteboard/clipboard.h"
#include "platform/pasteboard/pasteboard_writer.h"

namespace corvane::test {

/// A clipboard that remembers everything ever written to it.
class FakeClipboard : public Clipboard {
public:
    void write(const PasteboardContents &contents) override
    {
        writes.push_back(contents);
        ++changes;
    }
    qint64 changeCount() const override { return changes; }

    std::vector<PasteboardContents> writes;
    /// More of them where another program copies something.
    qint64 changes = 0;
};

} // namespace corvane::test
