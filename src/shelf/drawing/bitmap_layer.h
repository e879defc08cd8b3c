#pragma once

#include "shelf/drawing/layer.h"

#include <QImage>

#include <functional>

namespace corvane {

/// A layer that shows a bitmap in its middle, pixel by pixel on the display's own grid.
class BitmapLayer : public Layer {
public:
    /// Makes the bitmap for a number of pixels per point, which is also the bitmap's own ratio.
    using Contents = std::function<QImage(double scale)>;

    using Layer::Layer;

    /// `key` names the contents: equal keys mean equal contents, and nothing is made again.
    void setContents(const QString &key, Contents contents);
    QString key() const { return m_key; }
    const Contents &contents() const { return m_contents; }

protected:
    void draw(QPainter &painter, QSizeF size, double scale) const override;

private:
    QString m_key;
    Contents m_contents;
    mutable QImage m_bitmap;
    mutable double m_bitmapScale = 0;
};

} // namespace corvane
