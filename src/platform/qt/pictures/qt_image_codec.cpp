#include "platform/qt/pictures/qt_image_codec.h"

#include "platform/qt/pictures/picture_reader.h"
#include "platform/qt/pictures/tiff_as_stored.h"
#include "platform/system/file_url.h"
#include "platform/system/regular_file.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace corvane {

namespace {

/// The quality that Qt converts to compression level 1 of zlib. A scanned page takes 0.4 s with it
/// instead of 2.5 s, and becomes a fifth larger.
constexpr int quickCompression = 85;

constexpr std::array lossyFormats = {"jpeg", "jpg", "webp", "avif", "heif", "heic", "jp2", "jxl"};

template<std::size_t Count>
bool isAmong(const std::array<const char *, Count> &formats, const QByteArray &format)
{
    return std::ranges::any_of(formats, [&](const char *known) { return format == known; });
}

std::optional<QImage> decodeDevice(QIODevice &device)
{
    TiffAsStored asStored(device);
    PictureReader picture;
    if (!picture.open(asStored) || !picture.fits())
        return std::nullopt;
    auto image = picture.readAsStored();
    if (image)
        image = asStored.corrected(std::move(*image));
    return image;
}

/// Qt cannot write floating-point pixels to PNG; sixteen bits keep most of their precision.
QImage withWholeNumbers(QImage image)
{
    switch (image.format()) {
    case QImage::Format_RGBX16FPx4:
    case QImage::Format_RGBX32FPx4:
        return std::move(image).convertToFormat(QImage::Format_RGBX64);
    case QImage::Format_RGBA16FPx4:
    case QImage::Format_RGBA16FPx4_Premultiplied:
    case QImage::Format_RGBA32FPx4:
    case QImage::Format_RGBA32FPx4_Premultiplied:
        return std::move(image).convertToFormat(QImage::Format_RGBA64);
    default:
        return image;
    }
}

QSize scaledToFit(QSize size, int maximumPixels)
{
    return size.scaled(maximumPixels, maximumPixels, Qt::KeepAspectRatio).expandedTo({1, 1});
}

std::optional<QImage> thumbnailDevice(QIODevice &device, int maximumPixels)
{
    PictureReader picture;
    if (maximumPixels < 1 || !picture.open(device))
        return std::nullopt;
    const QSize size = picture.reader().size();
    const bool vector = picture.isVector();
    if (!vector && !picture.fits())
        return std::nullopt;
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

template<typename Result, typename Function>
std::optional<Result> withData(const QByteArray &data, Function function)
{
    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    return function(buffer);
}

template<typename Result, typename Function>
std::optional<Result> withFile(const QUrl &url, Function function)
{
    QFile file;
    if (!regular_file::open(file, file_url::nativePath(url)))
        return std::nullopt;
    return function(file);
}

QImage onWhite(const QImage &image)
{
    QImage opaque(image.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(0, 0, image);
    return opaque;
}

} // namespace

QtImageCodec::QtImageCodec()
{
    QImageReader::setAllocationLimit(static_cast<int>(maximumDecodedBytes / 1'048'576));
}

std::optional<QSize> QtImageCodec::pixelSize(const QByteArray &data) const
{
    return withData<QSize>(data, [](QIODevice &device) -> std::optional<QSize> {
        PictureReader picture;
        if (!picture.open(device) || picture.reader().size().isEmpty())
            return std::nullopt;
        return picture.reader().size();
    });
}

std::optional<QImage> QtImageCodec::decode(const QByteArray &data) const
{
    return withData<QImage>(data, decodeDevice);
}

std::optional<QImage> QtImageCodec::decodeFile(const QUrl &url) const
{
    return withFile<QImage>(url, decodeDevice);
}

std::optional<QImage> QtImageCodec::thumbnail(const QByteArray &data, int maximumPixels) const
{
    return withData<QImage>(
        data, [=](QIODevice &device) { return thumbnailDevice(device, maximumPixels); });
}

std::optional<QImage> QtImageCodec::fileThumbnail(const QUrl &url, int maximumPixels) const
{
    return withFile<QImage>(
        url, [=](QIODevice &device) { return thumbnailDevice(device, maximumPixels); });
}

std::optional<QByteArray> QtImageCodec::encode(const QImage &image, const UTType &type) const
{
    const auto formats = QImageWriter::imageFormatsForMimeType(type.identifier().toLatin1());
    if (formats.isEmpty() || image.isNull())
        return std::nullopt;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, formats.first());
    // For lossless formats Qt takes the quality as compression effort, where a high quality means
    // none.
    if (isAmong(lossyFormats, formats.first()))
        writer.setQuality(static_cast<int>(std::round(compressionQuality * 100)));
    else if (formats.first() == "png")
        writer.setQuality(quickCompression);
    const bool isJpeg = type.identifier() == QLatin1String("image/jpeg");
    if (!writer.write(isJpeg && image.hasAlphaChannel() ? onWhite(image) : withWholeNumbers(image)))
        return std::nullopt;
    return bytes;
}

} // namespace corvane
