#pragma once

#include "platform/system/ut_type.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QUrl>

#include <optional>

namespace corvane {

/// Decodes and encodes pictures. Any thread. The bytes are not trusted: a picture whose pixels need
/// more than `maximumDecodedBytes` is not decoded, and broken bytes give none.
class ImageCodec {
public:
    /// The most memory that the pixels of one decoded picture may take.
    static constexpr qint64 maximumDecodedBytes = 256LL * 1024 * 1024;
    /// The quality for lossy formats, 0 to 1.
    static constexpr double compressionQuality = 0.92;

    virtual ~ImageCodec() = default;

    /// The first picture's size in pixels as stored, without decoding it.
    virtual std::optional<QSize> pixelSize(const QByteArray &data) const = 0;
    /// The first picture at full size, with all bits of its channels and with the colours of
    /// translucent pixels.
    virtual std::optional<QImage> decode(const QByteArray &data) const = 0;
    virtual std::optional<QImage> decodeFile(const QUrl &url) const = 0;
    /// The first picture, upright, scaled while decoding so that its longer side is at most
    /// `maximumPixels`. A smaller picture keeps its size.
    virtual std::optional<QImage> thumbnail(const QByteArray &data, int maximumPixels) const = 0;
    virtual std::optional<QImage> fileThumbnail(const QUrl &url, int maximumPixels) const = 0;
    /// Encodes the picture; keeps what `decode` keeps as far as the type allows. None if the type
    /// cannot be written.
    virtual std::optional<QByteArray> encode(const QImage &image, const UTType &type) const = 0;
};

} // namespace corvane
