#include "decoder/picture_reader.h"

#include "decoder/png_chunks.h"
#include "decoder/svg_without_references.h"
#include "platform/pictures/image_codec.h"

#include <algorithm>
#include <array>
#include <new>

namespace corvane {

namespace {

constexpr std::array readableFormats
    = {"png", "jpeg", "gif", "bmp", "webp", "tiff", "svg",  "ico", "icns",
       "ppm", "pgm",  "pbm", "xpm", "avif", "heif", "heic", "jp2", "jxl"};

bool isReadable(const QByteArray &format)
{
    return std::ranges::any_of(readableFormats, [&](const char *known) { return format == known; });
}

/// The format that most pictures are of, by their first bytes; empty for the others. Qt itself
/// would load the plug-ins of all formats and ask each.
QByteArray commonFormat(const QByteArray &beginning)
{
    if (beginning.startsWith("\x89PNG\r\n\x1a\n"))
        return "png";
    if (beginning.startsWith("\xff\xd8\xff"))
        return "jpeg";
    if (beginning.startsWith("GIF87a") || beginning.startsWith("GIF89a"))
        return "gif";
    if (beginning.startsWith("RIFF") && beginning.mid(8, 4) == "WEBP")
        return "webp";
    if (beginning.mid(4, 4) == "ftyp" && beginning.mid(8, 3) == "avi")
        return "avif";
    if (beginning.startsWith(QByteArray("II*\0", 4))
        || beginning.startsWith(QByteArray("MM\0*", 4)))
        return "tiff";
    return {};
}

/// Whether the size stands at the beginning of every whole file of that format.
bool tellsItsSize(const QByteArray &format)
{
    constexpr std::array formats
        = {"png", "jpeg", "gif", "bmp", "webp", "tiff", "ico", "ppm", "pgm", "pbm"};
    return std::ranges::any_of(formats, [&](const char *known) { return format == known; });
}

/// Whether its pictures may be PNG files.
bool isIcon(const QByteArray &format)
{
    return format == "ico" || format == "icns";
}

bool isAllowed(const QByteArray &format, PictureReader::Formats formats)
{
    switch (formats) {
    case PictureReader::Formats::Any:
        return true;
    case PictureReader::Formats::Web:
        return !format.isEmpty() && format != "tiff";
    case PictureReader::Formats::Png:
        return format == "png";
    }
    return false;
}

} // namespace

bool PictureReader::open(QIODevice &device, Formats formats)
{
    m_reader.setDevice(&device);
    m_reader.setAutoTransform(true);
    if (!recognise(device, formats))
        return false;
    return !isVector() || openDrawing(device);
}

bool PictureReader::recognise(QIODevice &device, Formats formats)
{
    constexpr qint64 enough = 12;
    const QByteArray beginning = device.peek(enough);
    const QByteArray format = commonFormat(beginning);
    // The signature of gzip; of pictures only compressed drawings have it.
    if (!isAllowed(format, formats) || beginning.startsWith("\x1f\x8b"))
        return false;
    if (format == "png" && !hasModestChunks(device))
        return false;
    if (format == "tiff")
        m_reader.setDevice(&m_tiff.emplace(device));
    if (!format.isEmpty()) {
        m_reader.setAutoDetectImageFormat(false);
        m_reader.setFormat(format);
        return m_reader.canRead();
    }
    m_reader.setDecideFormatFromContent(true);
    return m_reader.canRead() && isReadable(m_reader.format())
        && (!isIcon(m_reader.format()) || hasModestIcons(device));
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

/// What the pixels take while the picture is decoded with the options set; none if the format does
/// not tell its size before.
std::optional<qint64> PictureReader::decodedBytes() const
{
    QSize size = m_reader.size();
    if (!size.isValid())
        return std::nullopt;
    const QSize wanted = m_reader.scaledSize();
    // Its library leaves out what would be scaled away, by halves.
    if (m_reader.format() == "jpeg" && !wanted.isEmpty()) {
        for (int denominator = 8; denominator > 1; denominator /= 2) {
            if (size.width() / denominator >= wanted.width()
                && size.height() / denominator >= wanted.height()) {
                size = {size.width() / denominator + 1, size.height() / denominator + 1};
                break;
            }
        }
    }
    const QImage::Format format = m_reader.imageFormat();
    qint64 bytesPerPixel = 4;
    if (format != QImage::Format_Invalid)
        bytesPerPixel
            = std::max<qint64>(bytesPerPixel, QImage::toPixelFormat(format).bitsPerPixel() / 8);
    return qint64{size.width()} * size.height() * bytesPerPixel;
}

std::optional<QImage> PictureReader::readAsStored()
{
    constexpr qint64 mebibyte = 1'048'576;
    const qint64 room
        = std::min(ImageCodec::maximumDecodedBytes, QImageReader::allocationLimit() * mebibyte);
    const auto bytes = isVector() ? std::optional<qint64>(0) : decodedBytes();
    if (bytes && *bytes > ImageCodec::maximumDecodedBytes)
        return std::nullopt;
    if (bytes && *bytes > room)
        throw std::bad_alloc();
    const QSize whole = m_reader.size();
    QImage image = m_reader.read();
    image.setDevicePixelRatio(1);
    if (!image.isNull())
        return image;
    // Libraries do not tell want of memory from anything else. A picture that is decoded line after
    // line may have to be held as a whole all the same.
    constexpr int bytesPerPixel = 4;
    const bool isSmall = bytes ? qint64{whole.width()} * whole.height() <= room / bytesPerPixel
                               : tellsItsSize(m_reader.format());
    if (!isSmall && room < ImageCodec::maximumDecodedBytes)
        throw std::bad_alloc();
    return std::nullopt;
}

std::optional<QImage> PictureReader::read()
{
    auto image = readAsStored();
    if (!image)
        return std::nullopt;
    const auto format
        = image->hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    QImage converted = std::move(*image).convertToFormat(format);
    if (converted.isNull())
        throw std::bad_alloc();
    return converted;
}

} // namespace corvane
