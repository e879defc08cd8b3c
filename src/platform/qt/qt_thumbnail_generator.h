#pragma once

#include "platform/thumbnail_generator.h"

namespace corvane {

class ImageCodec;
class WorkQueue;

/// Thumbnails of files that are pictures themselves; none for the others. Both references must
/// outlive it, and the codec also the work.
class QtThumbnailGenerator : public ThumbnailGenerator {
public:
    QtThumbnailGenerator(const ImageCodec &codec, WorkQueue &workQueue);

    /// Completes on a thread of the work queue.
    void generateBestRepresentation(const ThumbnailRequest &request,
                                    Completion completion) override;

private:
    const ImageCodec &m_codec;
    WorkQueue &m_workQueue;
};

} // namespace corvane
