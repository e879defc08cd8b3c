#pragma once

#include "platform/pictures/image.h"

#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

namespace corvane {

/// What a web page says about itself.
struct LinkPreview {
    QString title;
    std::optional<QString> siteName;
    std::optional<Image> image;
};

/// Where the store gets its link previews from.
class LinkPreviewSource {
public:
    using Completion = std::function<void(std::optional<LinkPreview>)>;
    using IsWanted = std::function<bool()>;

    virtual ~LinkPreviewSource() = default;

    /// Calls `completion` at most once, later, on the main thread, with none when nothing was
    /// found. `isWanted` is asked before each request: once it says no, because the item has left
    /// or the user has switched previews off, nothing more is fetched. Both are called on the main
    /// thread only.
    virtual void load(const QUrl &url, IsWanted isWanted, Completion completion) = 0;
};

} // namespace corvane
