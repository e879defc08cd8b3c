#include "core/image_converter.h"

#include "core/spool_place.h"
#include "platform/pictures/image_codec.h"

namespace corvane {

namespace {

bool write(std::optional<QImage> picture, const UTType &type, const ImageCodec &codec,
           const SpoolPlace &to)
{
    if (!picture || !to.isWanted())
        return false;
    const auto encoded = codec.encode(*picture, type);
    // A decoded picture can take 256 MB; it is freed before the file is written, which takes time.
    picture.reset();
    return encoded && to.write(*encoded);
}

} // namespace

ImageConverter::ImageConverter(const ImageCodec &codec)
    : m_codec(codec)
{
}

bool ImageConverter::transcode(const QUrl &fileAt, const UTType &type, const SpoolPlace &to) const
{
    return to.isWanted() && write(m_codec.decodeFile(fileAt), type, m_codec, to);
}

bool ImageConverter::transcode(const QByteArray &data, const UTType &type,
                               const SpoolPlace &to) const
{
    return to.isWanted() && write(m_codec.decode(data), type, m_codec, to);
}

} // namespace corvane
