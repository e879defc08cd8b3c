#include "services/link_preview_service.h"

#include "core/characters.h"
#include "platform/base/main_queue.h"
#include "platform/base/work_queue.h"
#include "platform/pictures/image_codec.h"

#include <utility>

namespace corvane {

namespace {

bool isOfTheWeb(const QUrl &url)
{
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

bool isSuccess(const std::optional<WebResponse> &response)
{
    return response && response->statusCode >= 200 && response->statusCode <= 299;
}

QString shortened(const QString &text)
{
    // A character may have any number of accents.
    constexpr qsizetype maximumBytes = 16 * LinkPreviewService::maximumTextLength;
    return text.size() <= LinkPreviewService::maximumTextLength
        ? text
        : characters::prefix(text, LinkPreviewService::maximumTextLength, maximumBytes);
}

} // namespace

LinkPreviewService::LinkPreviewService(WebClient &webClient, const ImageCodec &codec,
                                       MainQueue &mainQueue, WorkQueue &workQueue,
                                       WorkQueue &slowWork, const Product &product)
    : m_webClient(webClient)
    , m_codec(codec)
    , m_mainQueue(mainQueue)
    , m_workQueue(workQueue)
    , m_slowWork(slowWork)
    , m_userAgent("Mozilla/5.0 (Macintosh; Intel Mac OS X) Corvane/" + product.version.toUtf8()
                  + " (+" + product.homePage.toUtf8() + ")")
{
}

LinkPreviewService::~LinkPreviewService() = default;

void LinkPreviewService::load(const QUrl &url, IsWanted isWanted, Completion completion)
{
    if (!isOfTheWeb(url)) {
        m_mainQueue.async(
            m_lifetime.guard([completion = std::move(completion)] { completion(std::nullopt); }));
        return;
    }
    m_waiting.push_back({url, std::move(isWanted), std::move(completion), {}});
    if (m_waiting.size() > maximumWaiting)
        m_waiting.pop_front();
    startNext();
}

void LinkPreviewService::startNext()
{
    while (m_running.size() - m_slow < maximumLoads && !m_waiting.empty()) {
        Load load = std::move(m_waiting.back());
        m_waiting.pop_back();
        if (!load.isWanted())
            continue;
        const Number number = ++m_lastNumber;
        m_running.emplace(number, std::move(load));
        fetchPreview(number);
    }
}

void LinkPreviewService::fetchPreview(Number number)
{
    WebRequest request;
    request.url = m_running.at(number).url;
    request.userAgent = m_userAgent;
    request.accept = "text/html,application/xhtml+xml";
    request.maximumBytes = page_reader::maximumPageBytes;
    m_webClient.get(request,
                    m_lifetime.guard([this, number](const std::optional<WebResponse> &response) {
                        readPage(number, response);
                    }));
}

void LinkPreviewService::readPage(Number number, const std::optional<WebResponse> &response)
{
    if (!isSuccess(response) || response->expectedContentLength >= refusedPageBytes) {
        finish(number, false);
        return;
    }
    const QUrl base = response->url.isEmpty() ? m_running.at(number).url : response->url;
    const auto take = m_lifetime.guard(
        [this, number, foundIn = response->foundIn](const page_reader::Preview &preview) {
            takePreview(number, preview, foundIn);
        });
    m_workQueue.run([&mainQueue = m_mainQueue, take, base, body = response->body] {
        page_reader::Preview preview = page_reader::parse(page_reader::decodePage(body), base);
        for (auto *text : {&preview.title, &preview.siteName}) {
            if (*text)
                *text = shortened(**text);
        }
        mainQueue.async([take, preview] { take(preview); });
    });
}

void LinkPreviewService::takePreview(Number number, const page_reader::Preview &preview,
                                     AddressSpace foundIn)
{
    Load &load = m_running.at(number);
    load.preview.title = preview.title.value_or(QString());
    load.preview.siteName = preview.siteName;
    if (preview.imageURL && isOfTheWeb(*preview.imageURL) && load.isWanted())
        fetchThumbnail(number, *preview.imageURL, foundIn);
    else
        finish(number, preview.isUseful());
}

void LinkPreviewService::fetchThumbnail(Number number, const QUrl &url, AddressSpace foundIn)
{
    WebRequest request;
    request.url = url;
    request.userAgent = m_userAgent;
    // One byte more, so that a picture that is too large is not mistaken for a whole one.
    request.maximumBytes = maximumPictureBytes + 1;
    request.foundIn = foundIn;
    m_webClient.get(request,
                    m_lifetime.guard([this, number](const std::optional<WebResponse> &response) {
                        decodePicture(number, response);
                    }));
}

void LinkPreviewService::decodePicture(Number number, const std::optional<WebResponse> &response)
{
    if (!isSuccess(response) || response->body.size() > maximumPictureBytes) {
        finish(number, true);
        return;
    }
    decode(number, response->body);
}

void LinkPreviewService::decode(Number number, const QByteArray &body)
{
    const bool isSlow = m_running.at(number).isSlow;
    const auto take = m_lifetime.guard(
        [this, number, body](const std::optional<QImage> &bitmap, bool isTooSlow) {
            takePicture(number, bitmap, isTooSlow, body);
        });
    WorkQueue &queue = isSlow ? m_slowWork : m_workQueue;
    queue.run([&codec = m_codec, &mainQueue = m_mainQueue, take, body, isSlow] {
        DecodingAttempt attempt;
        attempt.formats = DecodingAttempt::Formats::Web;
        attempt.patience
            = isSlow ? DecodingAttempt::Patience::Alone : DecodingAttempt::Patience::Brief;
        const auto bitmap = codec.thumbnail(body, pictureSide, attempt);
        const bool isTooSlow = attempt.outcome == DecodingAttempt::Outcome::TooSlow;
        mainQueue.async([take, bitmap, isTooSlow] { take(bitmap, isTooSlow); });
    });
}

void LinkPreviewService::takePicture(Number number, const std::optional<QImage> &bitmap,
                                     bool isTooSlow, const QByteArray &body)
{
    Load &load = m_running.at(number);
    if (bitmap && !bitmap->isNull())
        load.preview.image = Image{*bitmap, QSizeF(bitmap->size())};
    if (!isTooSlow || load.isSlow || m_slow == maximumSlowPictures || !load.isWanted()) {
        finish(number, true);
        return;
    }
    load.isSlow = true;
    ++m_slow;
    decode(number, body);
    startNext();
}

void LinkPreviewService::finish(Number number, bool hasPreview)
{
    const Load load = std::move(m_running.extract(number).mapped());
    if (load.isSlow)
        --m_slow;
    startNext();
    // Last, because the completion may destroy the service.
    load.completion(hasPreview ? std::optional(load.preview) : std::nullopt);
}

} // namespace corvane
