#include "core/image_converter.h"

#include "core/scratch_spool.h"
#include "platform/file_url.h"
#include "platform/image_codec.h"

namespace corvane {

namespace {

std::optional<QUrl> write(const std::optional<QImage> &picture, const UTType &type,
                          const QString &basename, const ImageCodec &codec, ScratchSpool &spool)
{
    if (!picture)
        return std::nullopt;
    const auto encoded = codec.encode(*picture, type);
    if (!encoded)
        return std::nullopt;
    const QString extension = type.preferredFilenameExtension();
    return spool.store(*encoded, basename, extension.isEmpty() ? QStringLiteral("png") : extension);
}

} // namespace

ImageConverter::ImageConverter(const ImageCodec &codec, ScratchSpool &spool)
    : m_codec(codec)
    , m_spool(spool)
{
}

std::optional<QUrl> ImageConverter::transcode(const QUrl &fileAt, const UTType &type) const
{
    return write(m_codec.decodeFile(fileAt), type, file_url::stem(fileAt), m_codec, m_spool);
}

std::optional<QUrl> ImageConverter::transcode(const QByteArray &data, const UTType &type,
                                              const QString &basename) const
{
    return write(m_codec.decode(data), type, basename, m_codec, m_spool);
}

} // namespace corvane
