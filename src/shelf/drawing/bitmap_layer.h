#pragma once

#include "shelf/drawing/layer.h"

#include <QImage>

#include <functional>

namespace corvane {

/// A layer that shows a bitmap in its middle, unscaled, aligned to whole device pixels.
class BitmapLayer : public Layer {
public:
    /// Makes the bitmap for `scale` pixels per point; it must have `scale` as its device pixel
    /// ratio.
    using Contents = std::function<QImage(double scale)>;

    using Layer::Layer;

    /// `key` identifies the contents: with the key that is set already nothing changes, and the
    /// bitmap is kept.
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
