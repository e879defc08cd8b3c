#include "services/thumbnail_service.h"

#include "platform/file_icons.h"
#include "platform/image_codec.h"
#include "platform/main_queue.h"
#include "platform/screens.h"
#include "platform/thumbnail_generator.h"
#include "platform/work_queue.h"

#include <cmath>
#include <utility>

namespace corvane {

namespace {

/// Shown square whatever its shape: whoever draws it fits it in.
std::optional<Image> atDisplaySize(const std::optional<QImage> &bitmap)
{
    if (!bitmap || bitmap->isNull())
        return std::nullopt;
    return Image{*bitmap, QSizeF(ThumbnailService::side, ThumbnailService::side)};
}

} // namespace

ThumbnailService::ThumbnailService(ThumbnailGenerator &generator, FileIcons &icons,
                                   const ImageCodec &codec, const Screens &screens,
                                   MainQueue &mainQueue, WorkQueue &workQueue)
    : m_generator(generator)
    , m_icons(icons)
    , m_codec(codec)
    , m_screens(screens)
    , m_mainQueue(mainQueue)
    , m_workQueue(workQueue)
{
}

ThumbnailService::~ThumbnailService() = default;

double ThumbnailService::scale() const
{
    const ScreenPointer screen = m_screens.mainScreen();
    return screen ? screen->backingScaleFactor : defaultScale;
}

void ThumbnailService::generateForFile(const QUrl &url, Completion completion)
{
    const ThumbnailRequest request = {url, QSizeF(side, side), scale()};
    // The generator answers on a thread of its own, where only what outlives it may be touched.
    m_generator.generateBestRepresentation(
        request,
        [&mainQueue = m_mainQueue, weak = std::weak_ptr(m_self), request,
         completion = std::move(completion)](const std::optional<QImage> &bitmap) {
            mainQueue.async([weak, request, completion, image = atDisplaySize(bitmap)] {
                const auto self = weak.lock();
                if (!self)
                    return;
                if (image) {
                    completion(image);
                    return;
                }
                Image icon = (*self)->m_icons.iconForFile(request.url, side, request.scale);
                icon.size = QSizeF(side, side);
                completion(icon);
            });
        });
}

void ThumbnailService::generateForImageData(const QByteArray &data, Completion completion)
{
    const int maximumPixels = static_cast<int>(std::round(side * scale()));
    m_workQueue.run([&codec = m_codec, &mainQueue = m_mainQueue, weak = std::weak_ptr(m_self), data,
                     maximumPixels, completion = std::move(completion)] {
        const auto image = atDisplaySize(codec.thumbnail(data, maximumPixels));
        mainQueue.async([weak, completion, image] {
            if (weak.lock())
                completion(image);
        });
    });
}

} // namespace corvane
