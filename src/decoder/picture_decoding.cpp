#include "decoder/picture_decoding.h"

#include "decoder/picture_reader.h"
#include "decoder/tiff_as_stored.h"

#include <QImageReader>

#include <algorithm>

namespace corvane::picture_decoding {

namespace {

QSize scaledToFit(QSize size, int maximumPixels)
{
    return size.scaled(maximumPixels, maximumPixels, Qt::KeepAspectRatio).expandedTo({1, 1});
}

} // namespace

void setLimits(decoder_protocol::Room room)
{
    QImageReader::setAllocationLimit(
        static_cast<int>(decoder_protocol::decodedBytesIn(room) / 1'048'576));
}

std::optional<QSize> pixelSize(QIODevice &device, Formats formats)
{
    PictureReader picture;
    if (!picture.open(device, formats) || picture.reader().size().isEmpty())
        return std::nullopt;
    return picture.reader().size();
}

std::optional<QImage> whole(QIODevice &device, Formats formats)
{
    TiffAsStored asStored(device);
    PictureReader picture;
    if (!picture.open(asStored, formats))
        return std::nullopt;
    auto image = picture.readAsStored();
    if (image)
        image = asStored.corrected(std::move(*image));
    return image;
}

std::optional<QImage> thumbnail(QIODevice &device, int maximumPixels, Formats formats)
{
    PictureReader picture;
    if (maximumPixels < 1 || !picture.open(device, formats))
        return std::nullopt;
    const QSize size = picture.reader().size();
    const bool vector = picture.isVector();
    const bool isLarger = std::max(size.width(), size.height()) > maximumPixels;
    // The reader scales before it turns the picture upright; a square limit is right for both.
    if (vector || isLarger)
        picture.reader().setScaledSize(
            scaledToFit(size.isEmpty() ? QSize{1, 1} : size, maximumPixels));
    auto image = picture.read();
    if (image && std::max(image->width(), image->height()) > maximumPixels)
        image = image->scaled(scaledToFit(image->size(), maximumPixels), Qt::IgnoreAspectRatio,
                              Qt::SmoothTransformation);
    return image;
}

} // namespace corvane::picture_decoding
