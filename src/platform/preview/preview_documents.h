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

    /// A picture fitted into `wanted` pixels, or the pages of a document; none for anything else,
    /// also for what is broken, locked by a password, or larger than may be decoded. Only regular
    /// files are read, and what they refer to is not.
    virtual std::optional<Opened> open(const QUrl &url, QSize wanted) = 0;
};

} // namespace corvane
