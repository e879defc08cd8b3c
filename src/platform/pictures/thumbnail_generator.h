#pragma once

#include "platform/base/cancellation.h"

#include <QImage>
#include <QSizeF>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

/// A small picture of a file.
struct ThumbnailRequest {
    QUrl url;
    /// In points.
    QSizeF size;
    /// Pixels per point.
    double scale = 1;
    /// Once cancelled the answer may be none, and comes soon. Never null.
    std::shared_ptr<Cancellation> cancellation = std::make_shared<Cancellation>();

    /// The longer side in pixels, rounded.
    int pixels() const;
};

struct ThumbnailAnswer {
    /// Fits into the requested pixels.
    std::optional<QImage> picture;
    /// What is there is a folder, itself or behind a link.
    bool isFolder = false;
    /// The file lies behind a network, which may hang, and was not touched. Only such an answer
    /// asks for another generator.
    bool isRemote = false;
};

/// Makes thumbnails of files.
class ThumbnailGenerator {
public:
    using Completion = std::function<void(const ThumbnailAnswer &)>;

    virtual ~ThumbnailGenerator() = default;

    /// Calls `completion` exactly once, later, on a thread of its own choosing, with the best
    /// picture that there is, or with none. Main thread only.
    virtual void generateBestRepresentation(const ThumbnailRequest &request, Completion completion)
        = 0;
};

} // namespace corvane
