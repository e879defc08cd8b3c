#pragma once

#include "platform/pictures/thumbnail_generator.h"

namespace corvane {

class ExternalThumbnailers;
class FileLocality;
class ImageCodec;
class ThumbnailCache;
class WorkQueue;

/// Thumbnails of local files: from the desktop's shared cache, else decoded by ourselves, else made
/// by the desktop's thumbnail programs; none where all that fails. What was made is kept in the
/// cache, also that nothing could be made, or not within the bounds of decoding. All references
/// must outlive it, all but the work queue also the work.
class ThumbnailChain : public ThumbnailGenerator {
public:
    struct Context {
        const FileLocality &locality;
        const ThumbnailCache &cache;
        const ImageCodec &codec;
        ExternalThumbnailers &thumbnailers;
        WorkQueue &workQueue;
    };

    explicit ThumbnailChain(const Context &context);

    /// Completes on a thread of the work queue, and there says of remote files that they are.
    void generateBestRepresentation(const ThumbnailRequest &request,
                                    Completion completion) override;

private:
    Context m_context;
};

} // namespace corvane
