#include "platform/freedesktop/decoding/decoder_documents.h"

#include "platform/freedesktop/decoding/received_picture.h"
#include "platform/pictures/image_codec.h"
#include "platform/system/file_url.h"
#include "platform/system/regular_file.h"

#include <fcntl.h>

#include <mutex>
#include <utility>

namespace corvane {

namespace {

using decoder_protocol::Request;
using decoder_protocol::Task;
using AttemptOutcome = DecodingAttempt::Outcome;

bool isWithin(QSize size, QSize limit)
{
    return size.width() <= limit.width() && size.height() <= limit.height();
}

/// A file that stays open, so that all requests are about the same one.
class DecodedDocument : public PreviewDocument {
public:
    DecodedDocument(DecoderPool &pool, FileDescriptor file)
        : m_pool(pool)
        , m_file(std::move(file))
        , m_document(pool.newDocument())
    {
    }

    DecoderPool::Result ask(Task task, int part, QSize wanted, Cancellation &cancellation)
    {
        // With a place of its own: a decoder that was given up may still be reading.
        const QByteArray path = "/proc/self/fd/" + QByteArray::number(m_file.number());
        const FileDescriptor again(::open(path.constData(), O_RDONLY | O_CLOEXEC));
        DecoderPool::Job job;
        job.request.task = task;
        job.request.wanted = wanted;
        job.request.part = part;
        job.request.document = m_document;
        job.request.milliseconds = DecoderDocuments::previewTime;
        job.descriptors = {again.isOpen() ? again.number() : m_file.number()};
        job.urgency = DecoderPool::Urgency::Preview;
        job.cancellation = &cancellation;
        return m_pool.run(job);
    }

    /// Once it is known to be an animation.
    void setRepeats(int repeats) { m_roundsLeft = repeats; }

    std::optional<QImage> render(int page, QSize pixels, Cancellation &cancellation) override
    {
        constexpr qint64 most = ImageCodec::maximumDecodedBytes / 4;
        const QSize largest{decoder_protocol::maximumSide, decoder_protocol::maximumSide};
        if (pixels.isEmpty() || page < 0 || page > decoder_protocol::maximumFrame
            || !isWithin(pixels, largest) || qint64{pixels.width()} * pixels.height() > most)
            return std::nullopt;
        const auto result = ask(Task::Render, page, pixels, cancellation);
        auto picture = receivedPicture(result.reply, result.pixels);
        return picture && picture->size() == pixels ? std::move(picture) : std::nullopt;
    }

    std::optional<Frame> nextFrame(QSize limit, Cancellation &cancellation) override
    {
        const std::lock_guard lock(m_mutex);
        if (limit.isEmpty())
            return std::nullopt;
        if (auto frame = readFrame(limit, cancellation))
            return frame;
        // A file with a single frame is no animation; one that is broken after its first frame is
        // not started again.
        if (m_nextFrame < 2 || m_roundsLeft == 0)
            return std::nullopt;
        if (m_roundsLeft > 0)
            --m_roundsLeft;
        m_nextFrame = 0;
        return readFrame(limit, cancellation);
    }

private:
    std::optional<Frame> readFrame(QSize limit, Cancellation &cancellation)
    {
        if (m_nextFrame > decoder_protocol::maximumFrame)
            return std::nullopt;
        const auto result = ask(Task::Frame, m_nextFrame, limit, cancellation);
        auto picture = receivedPicture(result.reply, result.pixels);
        if (!picture || !isWithin(picture->size(), limit))
            return std::nullopt;
        ++m_nextFrame;
        return Frame{std::move(*picture), result.reply.milliseconds / 1000.0};
    }

    DecoderPool &m_pool;
    FileDescriptor m_file;
    std::uint32_t m_document;
    std::mutex m_mutex;
    int m_nextFrame = 0;
    /// How often the animation still repeats; negative for ever.
    int m_roundsLeft = 0;
};

} // namespace

DecoderDocuments::DecoderDocuments(DecoderPool &pool)
    : m_pool(pool)
{
}

std::optional<PreviewDocuments::Opened> DecoderDocuments::open(const QUrl &url, QSize wanted,
                                                               Cancellation &cancellation)
{
    FileDescriptor file = regular_file::open(file_url::nativePath(url));
    if (!file.isOpen() || wanted.isEmpty())
        return std::nullopt;
    const QSize largest{decoder_protocol::maximumSide, decoder_protocol::maximumSide};
    auto document = std::make_shared<DecodedDocument>(m_pool, std::move(file));
    const auto result = document->ask(Task::Open, 0, wanted.boundedTo(largest), cancellation);
    const decoder_protocol::Reply &reply = result.reply;
    if (result.outcome != AttemptOutcome::Made)
        return std::nullopt;
    if (reply.pages > 0) {
        PreviewContent::Pages pages;
        pages.count = reply.pages;
        pages.sizes = reply.pageSizes;
        pages.document = std::move(document);
        return pages;
    }
    auto fitted = receivedPicture(reply, result.pixels);
    if (!fitted || !isWithin(fitted->size(), wanted) || reply.pictureSize.isEmpty())
        return std::nullopt;
    document->setRepeats(reply.repeats);
    PreviewContent::Picture picture;
    picture.pixelSize = reply.pictureSize;
    picture.fitted = std::move(*fitted);
    picture.isVector = reply.isVector;
    picture.isAnimated = reply.isAnimated;
    picture.document = std::move(document);
    return picture;
}

} // namespace corvane
