#include "platform/qt/qt_image_codec.h"

#include "platform/qt/regular_file.h"

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

constexpr std::array readableFormats
    = {"png", "jpeg", "gif", "bmp", "webp", "tiff", "svg",  "ico", "icns",
       "ppm", "pgm",  "pbm", "xpm", "avif", "heif", "heic", "jp2", "jxl"};
constexpr std::array lossyFormats = {"jpeg", "jpg", "webp", "avif", "heif", "heic", "jp2", "jxl"};

template<std::size_t Count>
bool isAmong(const std::array<const char *, Count> &formats, const QByteArray &format)
{
    return std::ranges::any_of(formats, [&](const char *known) { return format == known; });
}

/// Ready to be asked, or false when the bytes are no picture that we read.
bool prepare(QImageReader &reader, QIODevice &device)
{
    // Compressed SVG is the only picture that begins like this; nothing bounds what it expands to.
    if (device.peek(2) == "\x1f\x8b")
        return false;
    reader.setDevice(&device);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    return reader.canRead() && isAmong(readableFormats, reader.format());
}

bool isVector(const QImageReader &reader)
{
    return reader.format() == "svg";
}

/// Whether the decoded pixels stay below the limit. A size that the format does not tell before
/// decoding is held by the allocation limit instead.
bool fits(QSize size, QImage::Format format)
{
    if (!size.isValid())
        return true;
    qint64 bytesPerPixel = 4;
    if (format != QImage::Format_Invalid)
        bytesPerPixel
            = std::max<qint64>(bytesPerPixel, QImage::toPixelFormat(format).bitsPerPixel() / 8);
    return qint64{size.width()} * size.height() <= ImageCodec::maximumDecodedBytes / bytesPerPixel;
}

std::optional<QImage> read(QImageReader &reader)
{
    QImage image = reader.read();
    if (image.isNull())
        return std::nullopt;
    const auto format
        = image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    image = std::move(image).convertToFormat(format);
    image.setDevicePixelRatio(1);
    if (image.isNull())
        return std::nullopt;
    return image;
}

std::optional<QImage> decodeDevice(QIODevice &device)
{
    QImageReader reader;
    if (!prepare(reader, device) || !fits(reader.size(), reader.imageFormat()))
        return std::nullopt;
    return read(reader);
}

QSize scaledToFit(QSize size, int maximumPixels)
{
    return size.scaled(maximumPixels, maximumPixels, Qt::KeepAspectRatio).expandedTo({1, 1});
}

std::optional<QImage> thumbnailDevice(QIODevice &device, int maximumPixels)
{
    QImageReader reader;
    if (maximumPixels < 1 || !prepare(reader, device))
        return std::nullopt;
    const QSize size = reader.size();
    const bool vector = isVector(reader);
    if (!vector && !fits(size, reader.imageFormat()))
        return std::nullopt;
    const bool isLarger = std::max(size.width(), size.height()) > maximumPixels;
    // The picture is turned upright after it was scaled; a square limit holds either way.
    if (vector || isLarger)
        reader.setScaledSize(scaledToFit(size.isEmpty() ? QSize{1, 1} : size, maximumPixels));
    auto image = read(reader);
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
    if (!openRegularFile(file, url))
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
    QImageReader::setAllocationLimit(static_cast<int>(maximumDecodedBytes / (1024 * 1024)));
}

std::optional<QSize> QtImageCodec::pixelSize(const QByteArray &data) const
{
    return withData<QSize>(data, [](QIODevice &device) -> std::optional<QSize> {
        QImageReader reader;
        if (!prepare(reader, device) || reader.size().isEmpty())
            return std::nullopt;
        return reader.size();
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
    // For formats without loss Qt takes the quality as effort, and a high one as none.
    if (isAmong(lossyFormats, formats.first()))
        writer.setQuality(static_cast<int>(std::round(compressionQuality * 100)));
    const bool isJpeg = type.identifier() == QLatin1String("image/jpeg");
    if (!writer.write(isJpeg && image.hasAlphaChannel() ? onWhite(image) : image))
        return std::nullopt;
    return bytes;
}

} // namespace corvane
