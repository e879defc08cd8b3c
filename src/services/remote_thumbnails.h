#pragma once

#include "platform/base/lifetime.h"
#include "platform/pictures/thumbnail_generator.h"
#include "platform/system/file_version.h"

namespace corvane {

class ImageCodec;
class MainQueue;
class RemoteFiles;
class ThumbnailCache;
class WorkQueue;

/// Thumbnails of files behind a network, which may be slow, or never answer.
///
/// Only what waits for the network is done on threads that may be lost to it: the file is looked
/// at, and, where the cache has no picture of it, a picture file of a moderate size is read.
/// Everything else happens where the other thumbnails are made. Thumbnail programs are not given
/// such files: they would read them whole. All references must outlive it, cache and codec also the
/// work.
class RemoteThumbnails : public ThumbnailGenerator {
public:
    static constexpr qint64 maximumBytes = 32LL * 1024 * 1024;

    struct Context {
        RemoteFiles &files;
        const ThumbnailCache &cache;
        const ImageCodec &codec;
        MainQueue &mainQueue;
        WorkQueue &workQueue;
    };

    explicit RemoteThumbnails(const Context &context);
    RemoteThumbnails(const RemoteThumbnails &) = delete;
    RemoteThumbnails &operator=(const RemoteThumbnails &) = delete;
    ~RemoteThumbnails() override;

    /// Completes on any thread; never once this object is gone.
    void generateBestRepresentation(const ThumbnailRequest &request,
                                    Completion completion) override;

private:
    void inspected(const ThumbnailRequest &request, const std::optional<FileVersion> &file,
                   const Completion &completion);
    void read(const ThumbnailRequest &request, const FileVersion &file,
              const Completion &completion);

    Context m_context;
    Lifetime m_lifetime;
};

} // namespace corvane
