#pragma once

#include "platform/system/ut_type.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QUrl>

#include <optional>

namespace corvane {

/// Decodes and encodes pictures. Any thread. The bytes are a stranger's: a picture whose pixels
/// would not fit into `maximumDecodedBytes` is not decoded, and broken bytes yield none.
class ImageCodec {
public:
    static constexpr qint64 maximumDecodedBytes = 256LL * 1024 * 1024;
    /// For formats that lose something, 0 to 1.
    static constexpr double compressionQuality = 0.92;

    virtual ~ImageCodec() = default;

    /// The first picture's size in pixels as stored, without decoding it.
    virtual std::optional<QSize> pixelSize(const QByteArray &data) const = 0;
    /// The first picture, whole: all bits of its channels, and the colours of translucent pixels.
    virtual std::optional<QImage> decode(const QByteArray &data) const = 0;
    virtual std::optional<QImage> decodeFile(const QUrl &url) const = 0;
    /// The first picture, upright, scaled while decoding so that its longer side is at most
    /// `maximumPixels`. A smaller picture keeps its size.
    virtual std::optional<QImage> thumbnail(const QByteArray &data, int maximumPixels) const = 0;
    virtual std::optional<QImage> fileThumbnail(const QUrl &url, int maximumPixels) const = 0;
    /// Keeps what `decode` keeps where the type can. None when the type cannot be written.
    virtual std::optional<QByteArray> encode(const QImage &image, const UTType &type) const = 0;
};

} // namespace corvane
