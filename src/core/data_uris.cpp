#include "core/data_uris.h"

#include "platform/base/main_queue.h"
#include "platform/base/work_queue.h"
#include "platform/system/file_locality.h"
#include "platform/system/file_url.h"
#include "platform/system/regular_file.h"
#include "platform/system/remote_files.h"

#include <utility>

namespace corvane {

namespace {

std::optional<QString> dataUriOf(const std::optional<QByteArray> &bytes, const QString &mediaType)
{
    if (!bytes || bytes->size() >= DataUris::limit)
        return std::nullopt;
    const QString type
        = mediaType.isEmpty() ? QStringLiteral("application/octet-stream") : mediaType;
    return QString(QStringLiteral("data:") + type + QStringLiteral(";base64,")
                   + QString::fromLatin1(bytes->toBase64()));
}

} // namespace

DataUris::DataUris(const FileLocality &locality, RemoteFiles &remoteFiles, WorkQueue &workQueue,
                   MainQueue &mainQueue)
    : m_locality(locality)
    , m_remoteFiles(remoteFiles)
    , m_workQueue(workQueue)
    , m_mainQueue(mainQueue)
{
}

void DataUris::make(const DropItem &item, Made made)
{
    if (const auto *file = std::get_if<DropItem::File>(&item.payload())) {
        makeOfFile(*file, std::move(made));
    } else if (const auto *image = std::get_if<DropItem::ImageBytes>(&item.payload())) {
        encode([bytes = image->data] { return bytes; }, image->type.preferredMimeType(),
               std::move(made));
    } else if (const auto *text = std::get_if<DropItem::Text>(&item.payload());
               text && text->string.size() < limit) {
        encode([string = text->string] { return string.toUtf8(); }, QStringLiteral("text/plain"),
               std::move(made));
    } else {
        m_mainQueue.async([made = std::move(made)] { made(std::nullopt); });
    }
}

void DataUris::makeOfFile(const DropItem::File &file, Made made)
{
    const QByteArray path = file_url::nativePath(file.url);
    const QString extension = file_url::pathExtension(file.url);
    const QString type = UTType::forFilenameExtension(extension).preferredMimeType();
    if (!m_locality.isRemote(path)) {
        encode([path] { return regular_file::contents(path, limit - 1); }, type, std::move(made));
        return;
    }
    m_remoteFiles.read(path, limit - 1,
                       [this, type, made = std::move(made)](std::optional<QByteArray> bytes) {
                           encode([bytes = std::move(bytes)] { return bytes; }, type, made);
                       });
}

void DataUris::encode(Read read, const QString &mediaType, Made made)
{
    m_workQueue.run([&queue = m_mainQueue, read = std::move(read), mediaType,
                     made = std::move(made)]() mutable {
        auto uri = dataUriOf(read(), mediaType);
        queue.async([uri = std::move(uri), made = std::move(made)] { made(uri); });
    });
}

} // namespace corvane
