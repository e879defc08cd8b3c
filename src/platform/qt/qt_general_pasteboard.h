#pragma once

#include "platform/pasteboard_writer.h"

namespace corvane {

/// The clipboard through Qt, which hands its contents to a clipboard manager at exit.
class QtGeneralPasteboard : public GeneralPasteboard {
public:
    void write(const PasteboardContents &contents) override;
};

} // namespace corvane
