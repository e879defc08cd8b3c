#include "services/made_picture.h"

#include "platform/pictures/thumbnail_cache.h"

#include <algorithm>

namespace corvane::made_picture {

QImage fitted(const QImage &picture, int pixels)
{
    if (std::max(picture.width(), picture.height()) <= pixels)
        return picture;
    const QSize size
        = picture.size().scaled(pixels, pixels, Qt::KeepAspectRatio).expandedTo({1, 1});
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

void keepDecoded(const ThumbnailCache &cache, const FileVersion &file, const QImage &picture,
                 int pixelsMade)
{
    if (std::max(picture.width(), picture.height()) >= pixelsMade)
        cache.keep(file, picture);
}

} // namespace corvane::made_picture
