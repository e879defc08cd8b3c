#pragma once

#include <QImage>
#include <QSizeF>
#include <QUrl>

#include <functional>
#include <optional>

namespace corvane {

/// A small picture of a file.
struct ThumbnailRequest {
    QUrl url;
    /// In points.
    QSizeF size;
    /// Pixels per point.
    double scale = 1;
};

/// Makes thumbnails of files.
class ThumbnailGenerator {
public:
    using Completion = std::function<void(std::optional<QImage>)>;

    virtual ~ThumbnailGenerator() = default;

    /// Calls `completion` exactly once, later, on a thread of its own choosing, with the best
    /// picture that fits into the requested pixels, or with none. Main thread only.
    virtual void generateBestRepresentation(const ThumbnailRequest &request, Completion completion)
        = 0;
};

} // namespace corvane
