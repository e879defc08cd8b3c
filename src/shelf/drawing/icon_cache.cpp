#include "shelf/drawing/icon_cache.h"

#include "shelf/drawing/drawing.h"

#include <QPainter>

namespace corvane {

QImage IconCache::image(const Key &key, const Paint &paint)
{
    if (const auto found = m_images.find(key); found != m_images.end())
        return found->second;
    QImage bitmap = transparentBitmap({key.pointSize, key.pointSize}, key.scale);
    {
        QPainter painter(&bitmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(0, key.pointSize);
        painter.scale(1, -1);
        const double side = key.pointSize - 2 * key.inset;
        paint(painter, QRectF(key.inset, key.inset, side, side));
    }
    return m_images.emplace(key, bitmap).first->second;
}

} // namespace corvane
