#pragma once

#include "core/item_loading.h"

#include <memory>

namespace corvane {

class FileIcons;
class ImageCodec;
class MainQueue;
class Screens;
class ThumbnailGenerator;
class WorkQueue;

/// Makes the small square pictures of the shelf's items.
///
/// Keeps nothing: the item keeps its picture. What it was given must outlive it and all work that
/// is under way; the service itself may go earlier, and then its requests are never answered.
class ThumbnailService : public ThumbnailSource {
public:
    /// Width and height in points.
    static constexpr double side = 30;
    /// Pixels per point where no screen says otherwise.
    static constexpr double defaultScale = 2;

    ThumbnailService(ThumbnailGenerator &generator, FileIcons &icons, const ImageCodec &codec,
                     const Screens &screens, MainQueue &mainQueue, WorkQueue &workQueue);
    ThumbnailService(const ThumbnailService &) = delete;
    ThumbnailService &operator=(const ThumbnailService &) = delete;
    ~ThumbnailService() override;

    /// The best picture of the file that there is, else its icon.
    void generateForFile(const QUrl &url, Completion completion) override;
    /// The bytes' picture, upright, scaled down while it is decoded; none when they are broken.
    void generateForImageData(const QByteArray &data, Completion completion) override;

private:
    double scale() const;

    ThumbnailGenerator &m_generator;
    FileIcons &m_icons;
    const ImageCodec &m_codec;
    const Screens &m_screens;
    MainQueue &m_mainQueue;
    WorkQueue &m_workQueue;
    /// Held weakly by all work; looked at on the main thread alone.
    std::shared_ptr<ThumbnailService *> m_self = std::make_shared<ThumbnailService *>(this);
};

} // namespace corvane
