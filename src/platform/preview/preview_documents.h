#pragma once

#include "platform/preview/preview_content.h"

#include <optional>
#include <variant>

namespace corvane {

/// Opens pictures and documents for previews. Any thread.
class PreviewDocuments {
public:
    using Opened = std::variant<PreviewContent::Picture, PreviewContent::Pages>;

    virtual ~PreviewDocuments() = default;

    /// A picture fitted into `wanted` pixels, or the pages of a document. None for anything else,
    /// and for files that are broken, need a password, or are too large to decode. Only regular
    /// files are read, and no files that they refer to. None, soon, if it is cancelled.
    virtual std::optional<Opened> open(const QUrl &url, QSize wanted, Cancellation &cancellation)
        = 0;
};

} // namespace corvane
