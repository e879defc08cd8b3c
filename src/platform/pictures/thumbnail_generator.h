#pragma once

#include "platform/base/cancellation.h"

#include <QImage>
#include <QSizeF>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

/// A request for a small picture of a file.
struct ThumbnailRequest {
    QUrl url;
    /// In points.
    QSizeF size;
    /// Pixels per point.
    double scale = 1;
    /// Never null. After cancelling, the answer comes soon and may be none.
    std::shared_ptr<Cancellation> cancellation = std::make_shared<Cancellation>();
    /// Asked again for a file whose picture needs long. Never more than one of these at once.
    bool isPatient = false;

    /// The longer side in pixels, rounded.
    int pixels() const;
};

struct ThumbnailAnswer {
    /// Fits into the requested pixels.
    std::optional<QImage> picture;
    /// It is a folder, or a link to one.
    bool isFolder = false;
    /// The file is behind a network, which may not answer, and was not touched. Another generator
    /// has to be asked.
    bool isRemote = false;
    /// Its picture needs long; it has to be asked for patiently.
    bool isSlow = false;
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
