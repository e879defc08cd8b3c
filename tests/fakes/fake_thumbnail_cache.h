#pragma once

#include "platform/pictures/thumbnail_cache.h"

#include <QHash>

namespace corvane::test {

/// Keeps pictures of one size in memory, by path and time. Call it from one thread at a time.
class FakeThumbnailCache : public ThumbnailCache {
public:
    static constexpr int pixelsKept = 128;

    Found find(const FileVersion &file, int /*pixels*/) const override
    {
        ++asked;
        const auto found = pictures.constFind(key(file));
        const auto picture = found == pictures.cend() ? std::nullopt : std::optional(*found);
        return {picture, failures.contains(key(file))};
    }
    int pixelsToMake(const FileVersion & /*file*/, int pixels) const override
    {
        return pixels > pixelsKept ? pixels : pixelsKept;
    }
    void keep(const FileVersion &file, const QImage &picture) const override
    {
        pictures.insert(key(file), picture);
    }
    void keepFailure(const FileVersion &file) const override { failures << key(file); }

    static QByteArray key(const FileVersion &file)
    {
        return file.path + ' ' + QByteArray::number(file.modificationTime);
    }

    mutable int asked = 0;
    mutable QHash<QByteArray, QImage> pictures;
    mutable QByteArrayList failures;
};

} // namespace corvane::test
