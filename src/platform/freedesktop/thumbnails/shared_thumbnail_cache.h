#pragma once

#include "platform/pictures/thumbnail_cache.h"

#include <QByteArray>
#include <QByteArrayList>

#include <optional>

namespace corvane {

class ImageCodec;

/// The thumbnails that the desktop's programs share, by the rules of freedesktop.org: PNG files
/// below the user's cache folder, named by the MD5 of the file's address, each telling which file
/// at which time it shows.
class SharedThumbnailCache : public ThumbnailCache {
public:
    struct Places {
        /// The user's cache folder; empty for no cache at all.
        QByteArray cacheFolder;
        /// This program as the failures' folder is named: "corvane-1.2".
        QByteArray program;
        /// Nothing of what is in these folders is looked up or kept.
        QByteArrayList privateFolders;
    };

    /// The codec must outlive this.
    SharedThumbnailCache(const ImageCodec &codec, Places places);

    /// XDG_CACHE_HOME, else its default; empty without a home.
    static QByteArray environmentCacheFolder();

    Found find(const FileVersion &file, int pixels) const override;
    int pixelsToMake(const FileVersion &file, int pixels) const override;
    /// A file that changed just now is not kept: within the same second it may change again, and
    /// nobody could tell.
    void keep(const FileVersion &file, const QImage &picture) const override;
    void keepFailure(const FileVersion &file) const override;

private:
    bool isPrivate(const QByteArray &path) const;
    QByteArray failureFolder() const;
    std::optional<QByteArray> entry(const QByteArray &folder, const FileVersion &file) const;
    void write(const QByteArray &folder, const FileVersion &file, const QImage &picture) const;

    const ImageCodec &m_codec;
    Places m_places;
    QByteArray m_folder;
};

} // namespace corvane
