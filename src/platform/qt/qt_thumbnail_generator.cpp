#include "platform/qt/qt_thumbnail_generator.h"

#include "platform/image_codec.h"
#include "platform/work_queue.h"

#include <algorithm>
#include <cmath>

namespace corvane {

QtThumbnailGenerator::QtThumbnailGenerator(const ImageCodec &codec, WorkQueue &workQueue)
    : m_codec(codec)
    , m_workQueue(workQueue)
{
}

void QtThumbnailGenerator::generateBestRepresentation(const ThumbnailRequest &request,
                                                      Completion completion)
{
    const double side = std::max(request.size.width(), request.size.height()) * request.scale;
    const int pixels = static_cast<int>(std::clamp(std::round(side), 1.0, 16'384.0));
    m_workQueue.run(
        [&codec = m_codec, url = request.url, pixels, completion = std::move(completion)] {
            completion(codec.fileThumbnail(url, pixels));
        });
}

} // namespace corvane
