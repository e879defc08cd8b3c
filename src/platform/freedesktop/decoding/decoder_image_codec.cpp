#include "platform/freedesktop/decoding/decoder_image_codec.h"

#include "platform/freedesktop/decoding/received_picture.h"
#include "platform/pictures/picture_memory.h"
#include "platform/pictures/plain_png.h"
#include "platform/system/file_url.h"
#include "platform/system/file_version.h"
#include "platform/system/regular_file.h"

#include <algorithm>
#include <array>
#include <utility>

namespace corvane {

namespace {

using decoder_protocol::Request;
using decoder_protocol::Task;
using decoder_protocol::Type;
using AttemptOutcome = DecodingAttempt::Outcome;
using Patience = DecodingAttempt::Patience;

decoder_protocol::Formats formatsOf(DecodingAttempt::Formats formats)
{
    switch (formats) {
    case DecodingAttempt::Formats::Any:
        break;
    case DecodingAttempt::Formats::Web:
        return decoder_protocol::Formats::Web;
    case DecodingAttempt::Formats::Png:
        return decoder_protocol::Formats::Png;
    }
    return decoder_protocol::Formats::Any;
}

std::optional<Type> typeOf(const UTType &type)
{
    static const std::array types = {std::pair{QStringLiteral("image/png"), Type::Png},
                                     std::pair{QStringLiteral("image/jpeg"), Type::Jpeg},
                                     std::pair{QStringLiteral("image/tiff"), Type::Tiff},
                                     std::pair{QStringLiteral("image/webp"), Type::WebP}};
    const auto *const found = std::ranges::find_if(
        types, [&](const auto &known) { return known.first == type.identifier(); });
    return found == types.end() ? std::nullopt : std::optional(found->second);
}

} // namespace

DecoderImageCodec::DecoderImageCodec(DecoderPool &pool)
    : m_pool(pool)
{
}

std::optional<QSize> DecoderImageCodec::pixelSize(const QByteArray &data) const
{
    const FileDescriptor contents = picture_memory::of(data);
    if (!contents.isOpen())
        return std::nullopt;
    Request request;
    request.task = Task::Size;
    request.milliseconds = thumbnailTime;
    const auto result = m_pool.run({request, {contents.number()}});
    const QSize size = result.reply.pictureSize;
    return result.outcome == AttemptOutcome::Made && !size.isEmpty() ? std::optional(size)
                                                                     : std::nullopt;
}

std::optional<QImage> DecoderImageCodec::thumbnail(const QByteArray &data, int maximumPixels,
                                                   DecodingAttempt &attempt) const
{
    const FileDescriptor contents = picture_memory::of(data);
    attempt.outcome = AttemptOutcome::Interrupted;
    return contents.isOpen() ? thumbnailOf(contents, maximumPixels, attempt) : std::nullopt;
}

std::optional<QImage> DecoderImageCodec::fileThumbnail(const QUrl &url, int maximumPixels,
                                                       DecodingAttempt &attempt) const
{
    const QByteArray path = file_url::nativePath(url);
    const FileDescriptor contents = regular_file::open(path);
    if (contents.isOpen())
        return thumbnailOf(contents, maximumPixels, attempt);
    // A file that may not be read, or that there is no descriptor for, may be fine.
    const auto file = FileVersion::at(path);
    const bool isOther = file && file->kind != FileVersion::Kind::Regular;
    attempt.outcome = isOther ? AttemptOutcome::Unreadable : AttemptOutcome::Interrupted;
    return std::nullopt;
}

std::optional<QImage> DecoderImageCodec::thumbnailOf(const FileDescriptor &contents,
                                                     int maximumPixels,
                                                     DecodingAttempt &attempt) const
{
    attempt.outcome = AttemptOutcome::Unreadable;
    if (maximumPixels < 1)
        return std::nullopt;
    const bool isBrief = attempt.patience == Patience::Brief;
    const int side = std::min(maximumPixels, decoder_protocol::maximumSide);
    DecoderPool::Job job;
    job.request.task = Task::Thumbnail;
    job.request.formats = formatsOf(attempt.formats);
    job.request.wanted = {side, side};
    job.request.milliseconds = isBrief ? briefTime : thumbnailTime;
    job.descriptors = {contents.number()};
    job.urgency = attempt.patience == Patience::Alone ? DecoderPool::Urgency::SlowThumbnail
                                                      : DecoderPool::Urgency::Thumbnail;
    job.isBrief = isBrief;
    job.cancellation = attempt.cancellation;
    const auto result = m_pool.run(job);
    attempt.outcome = result.outcome;
    if (isBrief && (result.isOverTime || result.lacksRoom))
        attempt.outcome = AttemptOutcome::TooSlow;
    auto picture = receivedPicture(result.reply, result.pixels);
    const bool fits = picture && std::max(picture->width(), picture->height()) <= side;
    if (result.outcome == AttemptOutcome::Made && !fits)
        attempt.outcome = AttemptOutcome::OverBounds;
    return fits ? std::move(picture) : std::nullopt;
}

bool DecoderImageCodec::transcode(const QByteArray &data, const UTType &type,
                                  const FileDescriptor &target, Cancellation &cancellation) const
{
    return transcodeTo(picture_memory::of(data), type, target, cancellation);
}

bool DecoderImageCodec::transcodeFile(const QUrl &url, const UTType &type,
                                      const FileDescriptor &target,
                                      Cancellation &cancellation) const
{
    return transcodeTo(regular_file::open(file_url::nativePath(url)), type, target, cancellation);
}

bool DecoderImageCodec::transcodeTo(const FileDescriptor &contents, const UTType &type,
                                    const FileDescriptor &target, Cancellation &cancellation) const
{
    const auto wanted = typeOf(type);
    if (!contents.isOpen() || !target.isOpen() || !wanted)
        return false;
    DecoderPool::Job job;
    job.request.task = Task::Transcode;
    job.request.type = *wanted;
    job.request.milliseconds = conversionTime;
    job.descriptors = {contents.number(), target.number()};
    job.urgency = DecoderPool::Urgency::Conversion;
    job.cancellation = &cancellation;
    return m_pool.run(job).outcome == AttemptOutcome::Made;
}

std::optional<QByteArray> DecoderImageCodec::encode(const QImage &image, const UTType &type) const
{
    return type == UTType::png() ? plainPng(image) : std::nullopt;
}

} // namespace corvane
