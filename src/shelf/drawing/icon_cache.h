#pragma once

#include <QImage>
#include <QRectF>
#include <QRgba64>

#include <functional>
#include <map>
#include <tuple>

class QPainter;

namespace corvane {

/// Bitmaps of icons, each made once. Its arguments come from code, never from outside, so there are
/// few and none is dropped.
class IconCache {
public:
    struct Key {
        int icon;
        double pointSize;
        QRgba64 tint;
        double inset;
        double weight;
        double scale;

        auto tied() const
        {
            return std::tuple(icon, pointSize, static_cast<quint64>(tint), inset, weight, scale);
        }
        friend bool operator<(const Key &left, const Key &right)
        {
            return left.tied() < right.tied();
        }
    };
    /// Paints into a square (y upward) of the key's point size less its inset on each side.
    using Paint = std::function<void(QPainter &, const QRectF &square)>;

    QImage image(const Key &key, const Paint &paint);

private:
    std::map<Key, QImage> m_images;
};

} // namespace corvane
