#pragma once

#include "platform/system/file_version.h"

#include <QImage>

#include <optional>

namespace corvane {

/// The desktop's cache of thumbnails, shared with other programs. Any thread; waits for the local
/// disk.
class ThumbnailCache {
public:
    struct Found {
        /// Not larger than the wanted pixels.
        std::optional<QImage> picture;
        /// This program failed before to make a picture of this version of the file.
        bool hasFailed = false;
    };

    virtual ~ThumbnailCache() = default;

    virtual Found find(const FileVersion &file, int pixels) const = 0;
    /// The size in pixels, at least `pixels`, in which a picture should be made so that the cache
    /// can keep it.
    virtual int pixelsToMake(const FileVersion &file, int pixels) const = 0;
    /// Stores a picture for all programs, unless the file is private. Failures are ignored: the
    /// picture is made again next time.
    virtual void keep(const FileVersion &file, const QImage &picture) const = 0;
    virtual void keepFailure(const FileVersion &file) const = 0;
};

} // namespace corvane
