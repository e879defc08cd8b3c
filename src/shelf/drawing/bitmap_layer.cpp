#include "shelf/drawing/bitmap_layer.h"

#include "shelf/drawing/drawing.h"

namespace corvane {

void BitmapLayer::setContents(const QString &key, Contents contents)
{
    if (key == m_key)
        return;
    m_key = key;
    m_contents = std::move(contents);
    m_bitmapScale = 0;
    needsDisplay();
}

void BitmapLayer::draw(QPainter &painter, QSizeF size, double scale) const
{
    Layer::draw(painter, size, scale);
    if (!m_contents)
        return;
    if (m_bitmapScale != scale) {
        m_bitmap = m_contents(scale);
        m_bitmapScale = scale;
    }
    const QSizeF bitmap = m_bitmap.deviceIndependentSize();
    drawOnPixels(painter, m_bitmap,
                 {(size.width() - bitmap.width()) / 2, (size.height() - bitmap.height()) / 2});
}

} // namespace corvane
