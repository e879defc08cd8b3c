#pragma once

#include "core/thumbnail_source.h"
#include "platform/base/lifetime.h"
#include "platform/pictures/thumbnail_generator.h"
#include "services/thumbnail_queue.h"

#include <QList>
#include <QUuid>

#include <functional>
#include <memory>
#include <vector>

namespace corvane {

class FileIcons;
class ImageCodec;
class MainQueue;
class Screens;
class WorkQueue;

/// Makes the small square pictures of the shelf's items: what is in view first, of the rest the
/// newest, two at a time, and none for an item that left.
///
/// Files behind a network wait in a row of their own, where a server that does not answer keeps
/// nobody else; and so do pictures that need long, once that was noticed. Keeps nothing: the item
/// keeps its picture. What it was given must outlive it and all work that is under way; the service
/// itself may go earlier, and then its requests are never answered.
class ThumbnailService : public ThumbnailSource {
public:
    /// Width and height in points.
    static constexpr double side = 30;
    /// Pixels per point where no screen says otherwise.
    static constexpr double defaultScale = 2;
    /// Each may hold a decoded picture.
    static constexpr std::size_t maximumRunning = 2;
    static constexpr std::size_t maximumRunningRemotely = 1;
    static constexpr std::size_t maximumRunningSlowly = 1;

    /// `remoteGenerator` is asked for what `generator` found to be remote.
    ThumbnailService(ThumbnailGenerator &generator, ThumbnailGenerator &remoteGenerator,
                     FileIcons &icons, const ImageCodec &codec, const Screens &screens,
                     MainQueue &mainQueue, WorkQueue &workQueue);
    ThumbnailService(const ThumbnailService &) = delete;
    ThumbnailService &operator=(const ThumbnailService &) = delete;
    ~ThumbnailService() override;

    /// Tells which items are in view; without it none is.
    void setItemsInView(const std::function<QList<QUuid>()> &itemsInView);
    /// How much larger than `side` thumbnails are shown, asked for each that is made; 1 unless set.
    void setEnlargement(std::function<double()> enlargement)
    {
        m_enlargement = std::move(enlargement);
    }

    /// The best picture of the file that there is, else its icon.
    void generateForFile(const QUuid &item, const QUrl &url, Completion completion) override;
    void generateForFiles(std::vector<File> files, FilesCompletion completion) override;
    /// The bytes' picture, upright, scaled down while it is decoded; none when they are broken.
    void generateForImageData(const QUuid &item, const QByteArray &data,
                              Completion completion) override;
    void cancel(const QUuid &item) override;

private:
    struct FileJob {
        QUuid item;
        QUrl url;
        Completion completion;
        bool isRemote = false;
        bool isPatient = false;
    };
    struct DataJob {
        QUuid item;
        QByteArray data;
        Completion completion;
        bool isPatient = false;
    };

    double scale() const;
    void begin(ThumbnailGenerator &generator, const FileJob &job,
               const std::shared_ptr<Cancellation> &cancellation, const ThumbnailQueue::Done &done);
    void answered(const ThumbnailRequest &request, const FileJob &job,
                  const ThumbnailAnswer &answer);
    void again(ThumbnailQueue &queue, ThumbnailGenerator &generator, const FileJob &job);
    void add(ThumbnailQueue &queue, const DataJob &job);
    void begin(const DataJob &job, const std::shared_ptr<Cancellation> &cancellation,
               const ThumbnailQueue::Done &done);

    ThumbnailGenerator &m_generator;
    ThumbnailGenerator &m_remoteGenerator;
    FileIcons &m_icons;
    const ImageCodec &m_codec;
    const Screens &m_screens;
    MainQueue &m_mainQueue;
    WorkQueue &m_workQueue;
    ThumbnailQueue m_queue;
    ThumbnailQueue m_remoteQueue;
    ThumbnailQueue m_slowQueue;
    std::function<double()> m_enlargement;
    Lifetime m_lifetime;
};

} // namespace corvane
