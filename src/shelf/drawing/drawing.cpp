#include "shelf/drawing/drawing.h"

#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace corvane {

QImage transparentBitmap(QSizeF size, double scale)
{
    const QSize pixels(std::max(1, static_cast<int>(std::round(size.width() * scale))),
                       std::max(1, static_cast<int>(std::round(size.height() * scale))));
    QImage bitmap(pixels, QImage::Format_ARGB32_Premultiplied);
    bitmap.setDevicePixelRatio(scale);
    bitmap.fill(Qt::transparent);
    return bitmap;
}

void drawOnPixels(QPainter &painter, const QImage &bitmap, QPointF lowerLeft)
{
    const double ratio = painter.device()->devicePixelRatio();
    const QPointF corner = painter.deviceTransform().map(lowerLeft);
    const QPointF topLeft(std::round(corner.x()), std::round(corner.y()) - bitmap.height());
    const QTransform world = painter.worldTransform();
    painter.resetTransform();
    // Pixel by pixel, also where the bitmap was made for a painter that enlarges.
    if (bitmap.devicePixelRatio() == ratio)
        painter.drawImage(topLeft / ratio, bitmap);
    else
        painter.drawImage(QRectF(topLeft / ratio, QSizeF(bitmap.size()) / ratio), bitmap,
                          QRectF(bitmap.rect()));
    painter.setWorldTransform(world);
}

QImage fitted(const QImage &bitmap, QSizeF size, double cornerRadius, double scale)
{
    QImage result = transparentBitmap(size, scale);
    if (bitmap.isNull())
        return result;
    const QSize space = result.size();
    const QSize fit = bitmap.size().scaled(space, Qt::KeepAspectRatio).expandedTo({1, 1});
    const QRect pixels((space.width() - fit.width()) / 2, (space.height() - fit.height()) / 2,
                       fit.width(), fit.height());
    const QRectF place(pixels);

    QImage scaled = bitmap.scaled(fit, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(1);
    result.setDevicePixelRatio(1);
    {
        QPainter painter(&result);
        painter.setRenderHint(QPainter::Antialiasing);
        QBrush brush(scaled);
        brush.setTransform(QTransform::fromTranslate(place.x(), place.y()));
        painter.setPen(Qt::NoPen);
        painter.setBrush(brush);
        const double radius
            = std::min({cornerRadius * scale, place.width() / 2, place.height() / 2});
        painter.drawRoundedRect(place, radius, radius);
    }
    result.setDevicePixelRatio(scale);
    return result;
}

} // namespace corvane
