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
    , m_slowQueue(mainQueue, maximumRunningSlowly)
{
}

ThumbnailService::~ThumbnailService() = default;

void ThumbnailService::setItemsInView(const std::function<QList<QUuid>()> &itemsInView)
{
    m_queue.setItemsInView(itemsInView);
    m_remoteQueue.setItemsInView(itemsInView);
    m_slowQueue.setItemsInView(itemsInView);
}

double ThumbnailService::scale() const
{
    const ScreenPointer screen = m_screens.mainScreen();
    const double ofScreen = screen ? screen->backingScaleFactor : defaultScale;
    return m_enlargement ? ofScreen * m_enlargement() : ofScreen;
}

void ThumbnailService::cancel(const QUuid &item)
{
    m_queue.cancel(item);
    m_remoteQueue.cancel(item);
    m_slowQueue.cancel(item);
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
    const ThumbnailRequest request
        = {job.url, QSizeF(side, side), scale(), cancellation, job.isPatient};
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
        again(m_remoteQueue, m_remoteGenerator, {job.item, job.url, job.completion, true});
        return;
    }
    if (answer.isSlow && !job.isPatient) {
        again(m_slowQueue, m_generator, {job.item, job.url, job.completion, false, true});
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

void ThumbnailService::again(ThumbnailQueue &queue, ThumbnailGenerator &generator,
                             const FileJob &job)
{
    queue.add(job.item,
              [this, &generator, job](const std::shared_ptr<Cancellation> &cancellation,
                                      const ThumbnailQueue::Done &done) {
                  begin(generator, job, cancellation, done);
              });
}

void ThumbnailService::generateForImageData(const QUuid &item, const QByteArray &data,
                                            Completion completion)
{
    add(m_queue, {item, data, std::move(completion)});
}

void ThumbnailService::add(ThumbnailQueue &queue, const DataJob &job)
{
    queue.add(job.item,
              [this, job](const std::shared_ptr<Cancellation> &cancellation,
                          const ThumbnailQueue::Done &done) { begin(job, cancellation, done); });
}

void ThumbnailService::begin(const DataJob &job, const std::shared_ptr<Cancellation> &cancellation,
                             const ThumbnailQueue::Done &done)
{
    const auto end = m_lifetime.guard(
        [this, job, cancellation, done](std::optional<Image> image, bool isSlow) {
            done();
            if (cancellation->isCancelled())
                return;
            if (isSlow && !job.isPatient)
                add(m_slowQueue, {job.item, job.data, job.completion, true});
            else
                job.completion(std::move(image));
        });
    const int maximumPixels = static_cast<int>(std::round(side * scale()));
    m_workQueue.run(
        [&codec = m_codec, &mainQueue = m_mainQueue, job, maximumPixels, cancellation, end] {
            DecodingAttempt attempt;
            attempt.patience = job.isPatient ? DecodingAttempt::Patience::Alone
                                             : DecodingAttempt::Patience::Brief;
            attempt.cancellation = cancellation.get();
            std::optional<Image> image;
            if (!cancellation->isCancelled())
                image = atDisplaySize(codec.thumbnail(job.data, maximumPixels, attempt));
            const bool isSlow = attempt.outcome == DecodingAttempt::Outcome::TooSlow;
            mainQueue.async([end, image, isSlow] { end(image, isSlow); });
        });
}

} // namespace corvane
