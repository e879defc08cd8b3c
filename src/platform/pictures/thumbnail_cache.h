#pragma once

#include "platform/system/file_version.h"

#include <QImage>

#include <optional>

namespace corvane {

/// Thumbnails that were made before, by any program. Any thread; waits for the local disk.
class ThumbnailCache {
public:
    struct Found {
        /// Fits into the wanted pixels.
        std::optional<QImage> picture;
        /// This program could not make a picture of this version of the file.
        bool hasFailed = false;
    };

    virtual ~ThumbnailCache() = default;

    virtual Found find(const FileVersion &file, int pixels) const = 0;
    /// How large a picture of the file should be made, at least `pixels`, so that it can be kept.
    virtual int pixelsToMake(const FileVersion &file, int pixels) const = 0;
    /// Keeps a picture for every program, unless the file is a private one. Failures are silent:
    /// the next time it is made again.
    virtual void keep(const FileVersion &file, const QImage &picture) const = 0;
    virtual void keepFailure(const FileVersion &file) const = 0;
};

} // namespace corvane
