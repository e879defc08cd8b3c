#pragma once

#include "platform/pasteboard_writer.h"

namespace corvane::test {

/// A clipboard that remembers everything ever written to it.
class FakeGeneralPasteboard : public GeneralPasteboard {
public:
    void write(const PasteboardContents &contents) override { writes.push_back(contents); }

    std::vector<PasteboardContents> writes;
};

} // namespace corvane::test
