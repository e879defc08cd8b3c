#include "services/remote_thumbnails.h"

#include "platform/base/main_queue.h"
#include "platform/base/work_queue.h"
#include "platform/pictures/image_codec.h"
#include "platform/pictures/thumbnail_cache.h"
#include "platform/system/file_url.h"
#include "platform/system/remote_files.h"
#include "platform/system/ut_type.h"
#include "services/made_picture.h"

#include <utility>

namespace corvane {

namespace {

/// By its name: to look inside would already be to read it.
bool mayBePicture(const FileVersion &file)
{
    const QString extension = file_url::pathExtension(file_url::lastPathComponent(file.path));
    return file.size <= RemoteThumbnails::maximumBytes
        && UTType::forFilenameExtension(extension).identifier().startsWith(QLatin1String("image/"));
}

ThumbnailAnswer decoded(const RemoteThumbnails::Context &context, const ThumbnailRequest &request,
                        const FileVersion &file, const QByteArray &data)
{
    const int toMake = context.cache.pixelsToMake(file, request.pixels());
    DecodingAttempt attempt;
    attempt.cancellation = request.cancellation.get();
    const auto picture = context.codec.thumbnail(data, toMake, attempt);
    if (attempt.outcome == DecodingAttempt::Outcome::OverBounds)
        context.cache.keepFailure(file);
    if (!picture)
        return {};
    made_picture::keepDecoded(context.cache, file, *picture, toMake);
    return {made_picture::fitted(*picture, request.pixels())};
}

} // namespace

RemoteThumbnails::RemoteThumbnails(const Context &context)
    : m_context(context)
{
}

RemoteThumbnails::~RemoteThumbnails() = default;

void RemoteThumbnails::generateBestRepresentation(const ThumbnailRequest &request,
                                                  Completion completion)
{
    m_context.files.inspect(file_url::nativePath(request.url),
                            m_lifetime.guard([this, request, completion = std::move(completion)](
                                                 const std::optional<FileVersion> &file) {
                                inspected(request, file, completion);
                            }));
}

void RemoteThumbnails::inspected(const ThumbnailRequest &request,
                                 const std::optional<FileVersion> &file,
                                 const Completion &completion)
{
    if (!file || file->kind != FileVersion::Kind::Regular || request.cancellation->isCancelled()) {
        completion({std::nullopt, file && file->kind == FileVersion::Kind::Folder});
        return;
    }
    const auto readNow = m_lifetime.guard(
        [this, request, file = *file, completion] { read(request, file, completion); });
    m_context.workQueue.run([context = m_context, readNow, request, file = *file, completion] {
        const ThumbnailCache::Found found = context.cache.find(file, request.pixels());
        if (found.picture || found.hasFailed || !mayBePicture(file)) {
            completion({found.picture});
            return;
        }
        context.mainQueue.async(readNow);
    });
}

void RemoteThumbnails::read(const ThumbnailRequest &request, const FileVersion &file,
                            const Completion &completion)
{
    if (request.cancellation->isCancelled()) {
        completion({});
        return;
    }
    m_context.files.read(file.path, maximumBytes,
                         m_lifetime.guard([context = m_context, request, file,
                                           completion](const std::optional<QByteArray> &data) {
                             if (!data || request.cancellation->isCancelled()) {
                                 completion({});
                                 return;
                             }
                             context.workQueue.run(
                                 [context, request, file, completion, data = *data] {
                                     completion(decoded(context, request, file, data));
                                 });
                         }));
}

} // namespace corvane
