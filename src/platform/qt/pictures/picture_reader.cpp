#include "platform/qt/pictures/picture_reader.h"

#include "platform/pictures/image_codec.h"
#include "platform/qt/pictures/svg_without_references.h"

#include <algorithm>
#include <array>

namespace corvane {

namespace {

constexpr std::array readableFormats
    = {"png", "jpeg", "gif", "bmp", "webp", "tiff", "svg",  "ico", "icns",
       "ppm", "pgm",  "pbm", "xpm", "avif", "heif", "heic", "jp2", "jxl"};

bool isReadable(const QByteArray &format)
{
    return std::ranges::any_of(readableFormats, [&](const char *known) { return format == known; });
}

} // namespace

bool PictureReader::open(QIODevice &device)
{
    // The signature of gzip; of pictures only compressed drawings have it.
    if (device.peek(2) == "\x1f\x8b")
        return false;
    m_reader.setDevice(&device);
    m_reader.setDecideFormatFromContent(true);
    m_reader.setAutoTransform(true);
    if (!m_reader.canRead() || !isReadable(m_reader.format()))
        return false;
    return !isVector() || openDrawing(device);
}

bool PictureReader::openDrawing(QIODevice &device)
{
    const auto drawing = svgWithoutReferences(device.read(maximumDrawingBytes + 1));
    if (!drawing)
        return false;
    m_drawing = *drawing;
    m_buffer.setData(m_drawing);
    m_buffer.open(QIODevice::ReadOnly);
    m_reader.setDevice(&m_buffer);
    m_reader.setDecideFormatFromContent(false);
    m_reader.setAutoDetectImageFormat(false);
    m_reader.setFormat("svg");
    return m_reader.canRead();
}

bool PictureReader::isVector() const
{
    return m_reader.format() == "svg";
}

bool PictureReader::fits() const
{
    const QSize size = m_reader.size();
    if (!size.isValid())
        return true;
    const QImage::Format format = m_reader.imageFormat();
    qint64 bytesPerPixel = 4;
    if (format != QImage::Format_Invalid)
        bytesPerPixel
            = std::max<qint64>(bytesPerPixel, QImage::toPixelFormat(format).bitsPerPixel() / 8);
    return qint64{size.width()} * size.height() <= ImageCodec::maximumDecodedBytes / bytesPerPixel;
}

std::optional<QImage> PictureReader::readAsStored()
{
    QImage image = m_reader.read();
    image.setDevicePixelRatio(1);
    return image.isNull() ? std::nullopt : std::optional(std::move(image));
}

std::optional<QImage> PictureReader::read()
{
    auto image = readAsStored();
    if (!image)
        return std::nullopt;
    const auto format
        = image->hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    QImage converted = std::move(*image).convertToFormat(format);
    return converted.isNull() ? std::nullopt : std::optional(std::move(converted));
}

} // namespace corvane
