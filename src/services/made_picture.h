#pragma once

#include "platform/system/file_version.h"

#include <QImage>

namespace corvane {

class ThumbnailCache;

/// A picture that was made of a file, at the size that the cache asked for, on its way to the
/// shelf.
namespace made_picture {

/// Scaled down smoothly so that the longer side is at most `pixels`.
QImage fitted(const QImage &picture, int pixels);

/// Keeps what was decoded in the cache. A picture below the cache's size is the file's own whole
/// picture: it is as quickly read from the file.
void keepDecoded(const ThumbnailCache &cache, const FileVersion &file, const QImage &picture,
                 int pixelsMade);

} // namespace made_picture

} // namespace corvane
