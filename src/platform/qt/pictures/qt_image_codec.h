#pragma once

#include "platform/pictures/image_codec.h"

namespace corvane {

/// Pictures through Qt's image plug-ins. The format is decided by the contents, never by a name,
/// and only formats with a signature are read: the others see a picture in any bytes. Bitmaps come
/// upright; thumbnails as `Format_ARGB32_Premultiplied` or `Format_RGB32`, ready to be painted.
class QtImageCodec : public ImageCodec {
public:
    QtImageCodec();

    std::optional<QSize> pixelSize(const QByteArray &data) const override;
    std::optional<QImage> decode(const QByteArray &data) const override;
    std::optional<QImage> decodeFile(const QUrl &url) const override;
    /// Drawings that have no pixels of their own (SVG) are rendered at the wanted size.
    std::optional<QImage> thumbnail(const QByteArray &data, int maximumPixels) const override;
    std::optional<QImage> fileThumbnail(const QUrl &url, int maximumPixels) const override;
    std::optional<QByteArray> encode(const QImage &image, const UTType &type) const override;
};

} // namespace corvane
