#pragma once

#include "platform/pictures/image_codec.h"

namespace corvane {

/// The codec by Qt's image plug-ins. Formats are recognised by the contents, never by a name, and
/// only formats with a signature are read, because the others accept any bytes. Pictures come
/// upright; thumbnails as `Format_ARGB32_Premultiplied` or `Format_RGB32`, ready to be painted.
class QtImageCodec : public ImageCodec {
public:
    QtImageCodec();

    std::optional<QSize> pixelSize(const QByteArray &data) const override;
    std::optional<QImage> decode(const QByteArray &data) const override;
    std::optional<QImage> decodeFile(const QUrl &url) const override;
    /// Drawings (SVG) are rendered at the wanted size.
    std::optional<QImage> thumbnail(const QByteArray &data, int maximumPixels) const override;
    std::optional<QImage> fileThumbnail(const QUrl &url, int maximumPixels) const override;
    std::optional<QByteArray> encode(const QImage &image, const UTType &type) const override;
};

} // namespace corvane
