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

    /// Calls `completion` at most once, later, on the main thread; none when nothing was found.
    /// What has not been fetched yet once `isWanted` says no is not fetched any more: an item may
    /// leave, or the user forbid it, while others are being loaded. Main thread only, both.
    virtual void load(const QUrl &url, IsWanted isWanted, Completion completion) = 0;
};

} // namespace corvane
