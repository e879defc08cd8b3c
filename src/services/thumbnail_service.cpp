#include "services/thumbnail_service.h"

#include "platform/base/main_queue.h"
#include "platform/base/work_queue.h"
#include "platform/desktop/screens.h"
#include "platform/pictures/file_icons.h"
#include "platform/pictures/image_codec.h"

#include <algorithm>
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

ThumbnailService::ThumbnailService(ThumbnailGenerator &generator,
                                   ThumbnailGenerator &remoteGenerator, FileIcons &icons,
                                   const ImageCodec &codec, const Screens &screens,
                                   MainQueue &mainQueue, WorkQueue &workQueue)
    : m_generator(generator)
    , m_remoteGenerator(remoteGenerator)
    , m_icons(icons)
    , m_codec(codec)
    , m_screens(screens)
    , m_mainQueue(mainQueue)
    , m_workQueue(workQueue)
    , m_queue(mainQueue, maximumRunning)
    , m_remoteQueue(mainQueue, maximumRunningRemotely)
{
}

ThumbnailService::~ThumbnailService() = default;

void ThumbnailService::setItemsInView(const std::function<QList<QUuid>()> &itemsInView)
{
    m_queue.setItemsInView(itemsInView);
    m_remoteQueue.setItemsInView(itemsInView);
}

double ThumbnailService::scale() const
{
    const ScreenPointer screen = m_screens.mainScreen();
    return screen ? screen->backingScaleFactor : defaultScale;
}

void ThumbnailService::cancel(const QUuid &item)
{
    m_queue.cancel(item);
    m_remoteQueue.cancel(item);
}

void ThumbnailService::generateForFile(const QUuid &item, const QUrl &url, Completion completion)
{
    m_queue.add(
        item,
        [this, job = FileJob{item, url, std::move(completion)}](
            const std::shared_ptr<Cancellation> &cancellation, const ThumbnailQueue::Done &done) {
            begin(m_generator, job, cancellation, done);
        });
}

void ThumbnailService::generateForFiles(std::vector<File> files, FilesCompletion completion)
{
    std::vector<QUuid> items(files.size());
    std::transform(files.begin(), files.end(), items.begin(),
                   [](const File &file) { return file.item; });
    m_queue.add(std::move(items),
                [this, files = std::move(files), completion = std::move(completion)](
                    std::size_t position, const std::shared_ptr<Cancellation> &cancellation,
                    const ThumbnailQueue::Done &done) {
                    const File &file = files[position];
                    const auto completed
                        = [completion, item = file.item](std::optional<Image> image) {
                              completion(item, std::move(image));
                          };
                    begin(m_generator, {file.item, file.url, completed}, cancellation, done);
                });
}

void ThumbnailService::begin(ThumbnailGenerator &generator, const FileJob &job,
                             const std::shared_ptr<Cancellation> &cancellation,
                             const ThumbnailQueue::Done &done)
{
    const ThumbnailRequest request = {job.url, QSizeF(side, side), scale(), cancellation};
    const auto end = m_lifetime.guard([this, request, job, done](const ThumbnailAnswer &answer) {
        done();
        answered(request, job, answer);
    });
    // The generator answers on a thread of its own, where only what outlives it may be touched.
    generator.generateBestRepresentation(
        request, [&mainQueue = m_mainQueue, end](const ThumbnailAnswer &answer) {
            mainQueue.async([end, answer] { end(answer); });
        });
}

void ThumbnailService::answered(const ThumbnailRequest &request, const FileJob &job,
                                const ThumbnailAnswer &answer)
{
    if (request.cancellation->isCancelled())
        return;
    if (answer.isRemote && !job.isRemote) {
        m_remoteQueue.add(job.item,
                          [this, remote = FileJob{job.item, job.url, job.completion, true}](
                              const std::shared_ptr<Cancellation> &cancellation,
                              const ThumbnailQueue::Done &done) {
                              begin(m_remoteGenerator, remote, cancellation, done);
                          });
        return;
    }
    if (const auto image = atDisplaySize(answer.picture)) {
        job.completion(image);
        return;
    }
    Image icon = answer.isFolder ? m_icons.iconForFolder(side, request.scale)
                                 : m_icons.iconForFile(job.url, side, request.scale);
    icon.size = QSizeF(side, side);
    job.completion(icon);
}

void ThumbnailService::generateForImageData(const QUuid &item, const QByteArray &data,
                                            Completion completion)
{
    m_queue.add(
        item,
        [this, data, completion = std::move(completion)](
            const std::shared_ptr<Cancellation> &cancellation, const ThumbnailQueue::Done &done) {
            const int maximumPixels = static_cast<int>(std::round(side * scale()));
            m_workQueue.run([&codec = m_codec, &mainQueue = m_mainQueue, data, maximumPixels,
                             completion, cancellation, done] {
                const auto image = cancellation->isCancelled()
                    ? std::nullopt
                    : atDisplaySize(codec.thumbnail(data, maximumPixels));
                mainQueue.async([completion, image, cancellation, done] {
                    done();
                    if (!cancellation->isCancelled())
                        completion(image);
                });
            });
        });
}

} // namespace corvane
