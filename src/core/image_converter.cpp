#include "core/image_converter.h"

#include "core/spool_place.h"
#include "platform/pictures/image_codec.h"

namespace corvane {

ImageConverter::ImageConverter(const ImageCodec &codec)
    : m_codec(codec)
{
}

bool ImageConverter::transcode(const QUrl &fileAt, const UTType &type, const SpoolPlace &to) const
{
    return to.write([&](const FileDescriptor &file) {
        return m_codec.transcodeFile(fileAt, type, file, to.cancellation()) && to.isWanted();
    });
}

bool ImageConverter::transcode(const QByteArray &data, const UTType &type,
                               const SpoolPlace &to) const
{
    return to.write([&](const FileDescriptor &file) {
        return m_codec.transcode(data, type, file, to.cancellation()) && to.isWanted();
    });
}

} // namespace corvane
