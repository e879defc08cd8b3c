#include "services/thumbnail_chain.h"

#include "platform/base/work_queue.h"
#include "platform/pictures/external_thumbnailers.h"
#include "platform/pictures/image_codec.h"
#include "platform/pictures/thumbnail_cache.h"
#include "platform/system/file_locality.h"
#include "platform/system/file_url.h"
#include "platform/system/file_version.h"
#include "services/made_picture.h"

#include <QtEndian>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

/// As a PNG begins: a signature, and a chunk that says how wide and how high it is.
bool isModestPng(const QByteArray &png)
{
    constexpr quint32 largestSide = 4096;
    constexpr qsizetype width = 16;
    constexpr qsizetype height = 20;
    constexpr qsizetype headerSize = 33;
    const auto fits = [&](qsizetype at) {
        const auto side = qFromBigEndian<quint32>(png.constData() + at);
        return side > 0 && side <= largestSide;
    };
    return png.startsWith("\x89PNG\r\n\x1a\n") && png.size() >= headerSize && fits(width)
        && fits(height);
}

/// What a thumbnail program left, which may be anything: a PNG of a modest size, or nothing.
std::optional<QImage> decoded(const ImageCodec &codec, const QByteArray &png, int pixels,
                              DecodingAttempt &attempt)
{
    attempt.formats = DecodingAttempt::Formats::Png;
    return isModestPng(png) ? codec.thumbnail(png, pixels, attempt) : std::nullopt;
}

/// Whether the attempt says something about the contents; others say that we could not.
bool isVerdict(DecodingAttempt::Outcome outcome)
{
    using Outcome = DecodingAttempt::Outcome;
    return outcome == Outcome::Unreadable || outcome == Outcome::OverBounds;
}

std::optional<QImage> madeByProgram(const ThumbnailChain::Context &context, const FileVersion &file,
                                    int pixels, Cancellation &cancellation)
{
    using Outcome = ExternalThumbnailers::Result::Outcome;
    const auto result = context.thumbnailers.run(file, pixels, cancellation);
    if (result.outcome == Outcome::NotThere || result.outcome == Outcome::Stopped)
        return std::nullopt;
    DecodingAttempt attempt;
    attempt.cancellation = &cancellation;
    std::optional<QImage> picture;
    if (result.outcome == Outcome::Made)
        picture = decoded(context.codec, result.png, pixels, attempt);
    if (picture)
        context.cache.keep(file, *picture);
    else if (isVerdict(attempt.outcome))
        context.cache.keepFailure(file);
    return picture;
}

ThumbnailAnswer madeOfFile(const ThumbnailChain::Context &context, const ThumbnailRequest &request,
                           const FileVersion &file)
{
    using Outcome = DecodingAttempt::Outcome;
    using Patience = DecodingAttempt::Patience;
    const int toMake = context.cache.pixelsToMake(file, request.pixels());
    DecodingAttempt attempt;
    attempt.patience = request.isPatient ? Patience::Alone : Patience::Brief;
    attempt.cancellation = request.cancellation.get();
    auto picture = context.codec.fileThumbnail(request.url, toMake, attempt);
    if (picture)
        made_picture::keepDecoded(context.cache, file, *picture, toMake);
    else if (attempt.outcome == Outcome::TooSlow)
        return {.picture = std::nullopt, .isSlow = true};
    else if (attempt.outcome == Outcome::OverBounds)
        context.cache.keepFailure(file);
    else if (attempt.outcome == Outcome::Unreadable && !request.cancellation->isCancelled())
        picture = madeByProgram(context, file, toMake, *request.cancellation);
    if (!picture)
        return {};
    return {made_picture::fitted(*picture, request.pixels())};
}

ThumbnailAnswer make(const ThumbnailChain::Context &context, const ThumbnailRequest &request)
{
    const QByteArray path = file_url::nativePath(request.url);
    if (path.isEmpty() || request.cancellation->isCancelled())
        return {};
    if (context.locality.isRemote(path))
        return {std::nullopt, false, true};
    const auto file = FileVersion::at(path);
    if (!file || file->kind != FileVersion::Kind::Regular)
        return {std::nullopt, file && file->kind == FileVersion::Kind::Folder};

    const ThumbnailCache::Found found = context.cache.find(*file, request.pixels());
    if (found.picture || found.hasFailed)
        return {found.picture};
    return madeOfFile(context, request, *file);
}

} // namespace

ThumbnailChain::ThumbnailChain(const Context &context)
    : m_context(context)
{
}

void ThumbnailChain::generateBestRepresentation(const ThumbnailRequest &request,
                                                Completion completion)
{
    m_context.workQueue.run([context = m_context, request, completion = std::move(completion)] {
        completion(make(context, request));
    });
}

} // namespace corvane
