#pragma once

#include "core/link_preview_source.h"
#include "platform/base/lifetime.h"
#include "platform/web/web_client.h"
#include "services/page_reader.h"

#include <QByteArray>

#include <cstdint>
#include <deque>
#include <map>

namespace corvane {

class ImageCodec;
class MainQueue;
class WorkQueue;

/// Fetches the page behind a link and the picture that the page names, one after the other.
///
/// Keeps nothing once a load has ended. Few loads run at a time; of those that wait the newest is
/// next, because its item is what the user looks at. A picture that takes long to decode is put
/// aside, and keeps no other load waiting. Everything is called on the main thread; pages are read
/// and pictures decoded beside it. What the service was given must outlive it and
/// all work that is under way; the service itself may go earlier, and then nothing is answered.
class LinkPreviewService : public LinkPreviewSource {
public:
    /// A page is refused whose server declares so many bytes or more.
    static constexpr qint64 refusedPageBytes = 12LL * 1024 * 1024;
    /// A picture of more bytes is not decoded.
    static constexpr qint64 maximumPictureBytes = 4LL * 1024 * 1024;
    /// The picture's longer side.
    static constexpr int pictureSide = 192;
    static constexpr std::size_t maximumLoads = 4;
    /// Of pictures that take long; where more are put aside, further ones are not shown.
    static constexpr std::size_t maximumSlowPictures = 16;
    /// Where more wait, the oldest get no preview.
    static constexpr std::size_t maximumWaiting = 10'000;
    /// Longer titles and names are cut, in characters: an item shows one line.
    static constexpr qsizetype maximumTextLength = 1000;

    /// What the User-Agent of requests is made of.
    struct Product {
        QString version;
        QString homePage;
    };

    /// Pictures that take long are decoded on `slowWork`.
    LinkPreviewService(WebClient &webClient, const ImageCodec &codec, MainQueue &mainQueue,
                       WorkQueue &workQueue, WorkQueue &slowWork, const Product &product);
    LinkPreviewService(const LinkPreviewService &) = delete;
    LinkPreviewService &operator=(const LinkPreviewService &) = delete;
    ~LinkPreviewService() override;

    void load(const QUrl &url, IsWanted isWanted, Completion completion) override;

private:
    struct Load {
        QUrl url;
        IsWanted isWanted;
        Completion completion;
        /// As far as it is known.
        LinkPreview preview;
        bool isSlow = false;
    };
    /// Work that runs elsewhere carries its load's number alone: what the caller handed over is
    /// neither called nor destroyed on another thread.
    using Number = std::uint64_t;

    void startNext();
    void fetchPreview(Number number);
    void readPage(Number number, const std::optional<WebResponse> &response);
    void takePreview(Number number, const page_reader::Preview &preview, AddressSpace foundIn);
    void fetchThumbnail(Number number, const QUrl &url, AddressSpace foundIn);
    void decodePicture(Number number, const std::optional<WebResponse> &response);
    /// `body` is what was decoded, should it have to be decoded again.
    void takePicture(Number number, const std::optional<QImage> &bitmap, bool isTooSlow,
                     const QByteArray &body);
    void decode(Number number, const QByteArray &body);
    /// With what the load has found, or with none.
    void finish(Number number, bool hasPreview);

    WebClient &m_webClient;
    const ImageCodec &m_codec;
    MainQueue &m_mainQueue;
    WorkQueue &m_workQueue;
    WorkQueue &m_slowWork;
    QByteArray m_userAgent;
    std::deque<Load> m_waiting;
    std::map<Number, Load> m_running;
    /// Of those that run, how many have a slow picture.
    std::size_t m_slow = 0;
    Number m_lastNumber = 0;
    Lifetime m_lifetime;
};

} // namespace corvane
